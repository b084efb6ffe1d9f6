#!/usr/bin/env python3
"""Holds the code on the pages for hosts against the examples that are built and run.

usage: check_snippets.py ROOT PAGE...

Each fenced block of C++, CMake or QML stands below a line <!-- from PATH -->, and is, apart from its indentation, a part of that
file. Exit status 1 with a line for each block that is not."""
import pathlib
import re
import sys
import textwrap

LANGUAGES = {"cpp", "cmake", "qml"}
BLOCK = re.compile(r"^(?P<above>[^\n]*)\n```(?P<language>\w+)\n(?P<code>.*?)^```$", re.MULTILINE | re.DOTALL)
SOURCE = re.compile(r"^<!-- from (?P<path>\S+) -->$")


def indented_alike(code: str) -> list[str]:
    return [line.rstrip() for line in textwrap.dedent(code).strip("\n").split("\n")]


def is_part(code: str, text: str) -> bool:
    wanted = indented_alike(code)
    lines = text.split("\n")
    return any(indented_alike("\n".join(lines[start:start + len(wanted)])) == wanted
               for start in range(len(lines) - len(wanted) + 1))


def complaints_about(root: pathlib.Path, page: str) -> list[str]:
    text = (root / page).read_text(encoding="utf-8")
    complaints = []
    for block in BLOCK.finditer("\n" + text):
        if block["language"] not in LANGUAGES:
            continue
        place = f"{page}:{text.count(chr(10), 0, block.start('code') - 1) + 1}"
        source = SOURCE.match(block["above"])
        if not source:
            complaints.append(f"{place}: the block names no file that it comes from")
        elif not (root / source["path"]).is_file():
            complaints.append(f"{place}: there is no {source['path']}")
        elif not is_part(block["code"], (root / source["path"]).read_text(encoding="utf-8")):
            complaints.append(f"{place}: the block is no part of {source['path']}")
    return complaints


def main() -> int:
    if len(sys.argv) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    complaints = [line for page in sys.argv[2:] for line in complaints_about(root, page)]
    print("\n".join(complaints + [f"{len(sys.argv) - 2} pages, {len(complaints)} complaints"]))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
