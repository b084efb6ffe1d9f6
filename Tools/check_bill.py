#!/usr/bin/env python3
"""Whether a package's bill of materials says what SPDX 2.3 asks for, and what lies in the package.

usage: check_bill.py PREFIX [DOCUMENT]     the document is PREFIX/share/doc/proupsells/proupsells.spdx.json where none is named
"""
import hashlib
import json
import pathlib
import re
import sys

IDENTIFIER = re.compile(r"SPDXRef-[A-Za-z0-9.-]+\Z")
# Licences that anything of ours has or stands on, and how they are put together.
LICENCES = {"MIT", "OFL-1.1", "FTL", "GPL-2.0-or-later", "GPL-2.0-only", "GPL-3.0-only", "LGPL-3.0-only", "libpng-2.0", "BSD-2-Clause", "BSD-3-Clause",
            "MIT-Modern-Variant", "Unicode-DFS-2016", "NOASSERTION", "NONE"}
RELATIONSHIPS = {"DESCRIBES", "CONTAINS", "DEPENDS_ON", "GENERATED_FROM"}
LENGTHS = {"SHA1": 40, "SHA256": 64}


def missing(owner, thing, keys):
    return [f"{owner}: {key} is missing" for key in keys if not thing.get(key)]


def document_complaints(document):
    yield from missing("document", document, ["spdxVersion", "dataLicense", "SPDXID", "name", "documentNamespace", "creationInfo", "packages", "files",
                                              "relationships"])
    if document.get("spdxVersion") != "SPDX-2.3":
        yield "document: the version is not SPDX-2.3"
    if document.get("dataLicense") != "CC0-1.0":
        yield "document: dataLicense is not CC0-1.0"
    if document.get("SPDXID") != "SPDXRef-DOCUMENT":
        yield "document: SPDXID is not SPDXRef-DOCUMENT"
    if not re.match(r"[a-z][a-z0-9+.-]*:[^#\s]+\Z", document.get("documentNamespace", "")):
        yield "document: documentNamespace is no absolute URI without #"
    creation = document.get("creationInfo", {})
    if not re.match(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ\Z", creation.get("created", "")):
        yield "creationInfo: created is no time such as 2026-01-31T12:00:00Z"
    creators = creation.get("creators", [])
    if not creators or not all(re.match(r"(Person|Organization|Tool): \S", creator) for creator in creators):
        yield "creationInfo: creators are to begin with Person, Organization or Tool"


def licence_complaints(owner, thing, keys):
    for key in keys:
        if key not in thing:
            continue
        for word in re.findall(r"[^\s()]+", thing[key]):
            if word not in LICENCES | {"AND", "OR", "WITH"}:
                yield f"{owner}: {key} has {word}, which is no licence that is known here"


def package_complaints(package):
    owner = f"package {package.get('name')}"
    yield from missing(owner, package, ["name", "SPDXID", "versionInfo", "downloadLocation"])
    yield from licence_complaints(owner, package, ["licenseConcluded", "licenseDeclared"])
    if package.get("filesAnalyzed", True) and not package.get("packageVerificationCode", {}).get("packageVerificationCodeValue"):
        yield f"{owner}: its files were looked at, and packageVerificationCode is missing"


def file_complaints(entry):
    owner = f"file {entry.get('fileName')}"
    yield from missing(owner, entry, ["fileName", "SPDXID", "checksums"])
    yield from licence_complaints(owner, entry, ["licenseConcluded"])
    if not entry.get("fileName", "").startswith("./"):
        yield f"{owner}: its name does not begin with ./"
    checksums = {checksum.get("algorithm"): checksum.get("checksumValue", "") for checksum in entry.get("checksums", [])}
    for algorithm, length in LENGTHS.items():
        if not re.match(f"[0-9a-f]{{{length}}}\\Z", checksums.get(algorithm, "")):
            yield f"{owner}: it has no {algorithm} of {length} hexadecimal digits"


def relationship_complaints(document):
    known = [document.get("SPDXID")] + [thing.get("SPDXID") for thing in document.get("packages", []) + document.get("files", [])]
    for identifier in known:
        if not IDENTIFIER.match(str(identifier)):
            yield f"{identifier}: no identifier such as SPDXRef-File-1"
        if known.count(identifier) > 1:
            yield f"{identifier}: it is given twice"
    contained = set()
    for relationship in document.get("relationships", []):
        kind, ends = relationship.get("relationshipType"), (relationship.get("spdxElementId"), relationship.get("relatedSpdxElement"))
        if kind not in RELATIONSHIPS:
            yield f"relationship {ends}: {kind} is none that is used here"
        for end in ends:
            if end not in known:
                yield f"relationship {ends}: there is no {end}"
        if kind == "CONTAINS":
            contained.add(ends[1])
    if not any(relationship.get("relationshipType") == "DESCRIBES" for relationship in document.get("relationships", [])):
        yield "document: it describes nothing"
    for entry in document.get("files", []):
        if entry.get("SPDXID") not in contained:
            yield f"file {entry.get('fileName')}: no package contains it"


def content_complaints(document, prefix):
    """Every file is listed with its digests, and nothing else is."""
    lying = {f"./{path.relative_to(prefix).as_posix()}": path for path in sorted(prefix.rglob("*"))
             if path.is_file() and not path.is_symlink() and not path.name.endswith(".spdx.json")}
    listed = {entry.get("fileName"): entry for entry in document.get("files", [])}
    for name in sorted(lying.keys() - listed.keys()):
        yield f"file {name}: it is installed, and not listed"
    for name in sorted(listed.keys() - lying.keys()):
        yield f"file {name}: it is listed, and not installed"
    digests = []
    for name in sorted(lying.keys() & listed.keys()):
        data = lying[name].read_bytes()
        checksums = {checksum["algorithm"]: checksum["checksumValue"] for checksum in listed[name].get("checksums", [])}
        digests.append(hashlib.sha1(data).hexdigest())
        if checksums.get("SHA1") != digests[-1] or checksums.get("SHA256") != hashlib.sha256(data).hexdigest():
            yield f"file {name}: it is another one than was listed"
    code = hashlib.sha1("".join(sorted(digests)).encode()).hexdigest()
    for package in document.get("packages", []):
        if package.get("filesAnalyzed", True) and package.get("packageVerificationCode", {}).get("packageVerificationCodeValue") != code:
            yield f"package {package.get('name')}: its packageVerificationCode is not that of the files"


def complaints(document, prefix):
    yield from document_complaints(document)
    for package in document.get("packages", []):
        yield from package_complaints(package)
    for entry in document.get("files", []):
        yield from file_complaints(entry)
    yield from relationship_complaints(document)
    yield from content_complaints(document, prefix)


def main():
    prefix = pathlib.Path(sys.argv[1])
    document = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else prefix / "share/doc/proupsells/proupsells.spdx.json"
    if not document.is_file():
        sys.exit(f"{document}: there is none")
    found = list(complaints(json.loads(document.read_text()), prefix))
    print("\n".join(found), end="\n" if found else "")
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
