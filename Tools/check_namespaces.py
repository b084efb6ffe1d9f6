#!/usr/bin/env python3
"""Keeps everything of ours in one namespace.

usage: check_namespaces.py ROOT

Outside every brace a source has namespaces, and these begin with `proupsells`; forward declarations of other libraries' types; the
extern "C" of a symbol that has to be found by name; specialisations of templates that stand elsewhere; and `main`. A header says
`using namespace` nowhere. Exit status 1 with a line for each exception."""
import pathlib
import re
import sys

FOLDERS = ("Apps", "Backends", "Include", "Platform", "ProUpsells", "ScreenTest", "Tooling")
NOT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^()\s\\]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#(?:[^\n\\]|\\.)*$',
    re.DOTALL | re.MULTILINE)
DIGIT_SEPARATOR = re.compile(r"(?<=[0-9a-fA-F])'(?=[0-9a-fA-F])")
STATEMENT = re.compile(r"[^{};]*[{};]")
ALLOWED = re.compile(r'namespace proupsells\b|extern ""|(class|struct) \w+;|int main\(|template ?(<.*?> ?)?struct (std|proupsells)::')
ALLOWED_IN_SOURCE = re.compile(r"using |namespace \w+ = |namespace {")


def bare(text: str) -> str:
    """The text without comments and directives and with empty literals, line feeds kept."""
    def emptied(match: re.Match) -> str:
        found = match.group(0)
        return ('""' if found[0] in "R\"'" else "") + "\n" * found.count("\n")
    return NOT_CODE.sub(emptied, DIGIT_SEPARATOR.sub("", text))


def outer_statements(text: str):
    """The line and the beginning of each statement outside every brace."""
    depth = 0
    for match in STATEMENT.finditer(text):
        statement = match.group(0)
        if depth == 0 and statement.strip("};{ \n"):
            start = match.start() + len(statement) - len(statement.lstrip())
            yield text.count("\n", 0, start) + 1, " ".join(statement.split())
        depth += {"{": 1, "}": -1}.get(statement[-1], 0)


def complaints(name: str, text: str) -> list[str]:
    text = bare(text)
    is_header = name.endswith(".hpp")
    found = [f"{name}:{line}: stands outside the namespace: {statement[:60]}" for line, statement in outer_statements(text)
             if not ALLOWED.match(statement) and (is_header or not ALLOWED_IN_SOURCE.match(statement))]
    if is_header:
        found += [f"{name}:{text.count(chr(10), 0, match.start()) + 1}: a header does not say `using namespace`"
                  for match in re.finditer(r"\busing\s+namespace\b", text)]
    return found


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    files = [path for folder in FOLDERS for path in sorted((root / folder).rglob("*")) if path.suffix in (".hpp", ".cpp")]
    found = [complaint for path in files
             for complaint in complaints(path.relative_to(root).as_posix(), path.read_text(encoding="utf-8"))]
    print("\n".join([*found, f"{len(files)} files, {len(found)} complaints"]))
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
