#!/usr/bin/env python3
"""Holds the headers that a host may include against the sources and against what is installed.

usage: check_public_headers.py ROOT LIST [BUILD]

LIST names a header a line, relative to ROOT. The headers below Include/ (the umbrellas) must reach exactly the listed ones. What they
declare and a source defines, and what has virtual functions, must be marked: a shared library shows nothing else. With
BUILD, what `cmake --install` writes must be exactly them. Exit status 1 with a line for each difference."""
import pathlib
import re
import subprocess
import sys
import tempfile

INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
UMBRELLAS = "Include/"
MARK = "PROUPSELLS_EXPORT "
# Neither a template nor one with its body.
FUNCTION = re.compile(rf"^(?:\[\[noreturn\]\] )?({MARK})?(?!inline |constexpr |using )[A-Za-z][\w:<>,&* ]*[ &*](\w+)"
                      r"\((?:[^{};]|\{\})*\);", re.MULTILINE)
CLASS = re.compile(rf"(?<!>\n)^(?:class|struct) ({MARK})?(\w+)\b[^;{{]*\{{\n(.*?)^\}};", re.MULTILINE | re.DOTALL)
# A member that a source defines, or one that a host's classes may have anew.
DEFINED_ELSEWHERE = re.compile(r"^    (?:virtual |(?!friend |using )[A-Za-z~\[](?:[^{};]|\{\})*\)(?: const)?(?: noexcept)?(?: override)?;)",
                               re.MULTILINE)


def installed_name(header: str) -> str:
    return header.removeprefix(UMBRELLAS)


def reached(root: pathlib.Path, header: str, found: set[str]) -> set[str]:
    if header in found:
        return found
    found.add(header)
    for target in INCLUDE.findall((root / header).read_text(encoding="utf-8")):
        umbrella = UMBRELLAS + target
        reached(root, umbrella if (root / umbrella).exists() else target, found)
    return found


def differences(actual: set[str], listed: set[str], is_so: str, is_not_so: str) -> list[str]:
    return ([f"{name}: {is_so}, but is not listed" for name in sorted(actual - listed)]
            + [f"{name}: is listed, but {is_not_so}" for name in sorted(listed - actual)])


def check_includes(root: pathlib.Path, listed: set[str]) -> list[str]:
    found: set[str] = set()
    for umbrella in sorted((root / UMBRELLAS).rglob("*.hpp")):
        reached(root, umbrella.relative_to(root).as_posix(), found)
    return differences(found, listed, "an umbrella header includes it", "no umbrella header includes it") + [
        f"{name}: has a blank in its path" for name in sorted(listed) if " " in name]


def check_marks(root: pathlib.Path, listed: set[str]) -> list[str]:
    found = []
    for header in sorted(listed):
        text = (root / header).read_text(encoding="utf-8")
        found += [f"{header}: {name} lacks {MARK.strip()}" for mark, name in FUNCTION.findall(text) if not mark]
        found += [f"{header}: {name} lacks {MARK.strip()}" for mark, name, body in CLASS.findall(text)
                  if not mark and DEFINED_ELSEWHERE.search(body)]
    return found


def check_installation(build: str, listed: set[str]) -> list[str]:
    with tempfile.TemporaryDirectory() as prefix:
        subprocess.run(["cmake", "--install", build, "--component", "Headers", "--prefix", prefix], check=True,
                       stdout=subprocess.DEVNULL)
        root = pathlib.Path(prefix, "include", "proupsells")
        bill = pathlib.Path(prefix, "share/doc/proupsells/proupsells-headers.spdx.json")
        installed = {path.relative_to(root).as_posix() for path in pathlib.Path(prefix).rglob("*") if path.is_file() and path != bill}
    return differences(installed, {installed_name(name) for name in listed}, "is installed", "is not installed")


def main() -> int:
    if len(sys.argv) not in (3, 4):
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    listed = set(pathlib.Path(sys.argv[2]).read_text(encoding="utf-8").split("\n")) - {""}
    complaints = check_includes(root, listed) + check_marks(root, listed)
    if len(sys.argv) == 4:
        complaints += check_installation(sys.argv[3], listed)
    print("\n".join([*complaints, f"{len(listed)} public headers, {len(complaints)} complaints"]))
    return 1 if complaints or not listed else 0


if __name__ == "__main__":
    sys.exit(main())
