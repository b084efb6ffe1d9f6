#!/usr/bin/env python3
"""Holds what shared libraries of ours show to others.

usage: check_exports.py FOLDER

Each lib<name>.so in FOLDER is a link to the file lib<name>.so.<major version>, and that one to lib<name>.so.<version>. The library goes
by the name with the major version and looks for others of ours beside itself. Of its functions and data others see those of the
namespace proupsells that are marked, what the compiler makes of them, and what REASONS has; nothing of INSIDE. Exit status 1 with a line
for each complaint."""
import pathlib
import re
import subprocess
import sys

OURS = re.compile(r"([a-zA-Z -]+ (for|to) )?proupsells::")
REASONS = {
    "ProUpsellsVersionNumber": "tools read the version by this name",
    "ProUpsellsVersionString": "tools read the version by this name",
}
# No public header has anything of these.
INSIDE = re.compile(r"proupsells::(swiftui|motion|hosting|lumokit)::")


def listed(*command: str | pathlib.Path) -> str:
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def symbols(library: pathlib.Path, *options: str) -> list[str]:
    return [line.split(maxsplit=2)[2] for line in listed("nm", "-C", "--defined-only", *options, library).splitlines()]


def place_complaints(link: pathlib.Path) -> list[str]:
    major = re.escape(link.name) + r"\.\d+"
    found = []
    if not re.fullmatch(major, name := link.readlink().name):
        return [f"is a link to {name}"]
    if not re.fullmatch(major + r"\.\d+\.\d+", file := (link.parent / name).readlink().name):
        found.append(f"{name} is a link to {file}")
    entries = dict(re.findall(r"\((SONAME|RUNPATH|RPATH)\).*\[(.*)\]", listed("readelf", "-d", link)))
    if entries.get("SONAME") != name:
        found.append(f"goes by the name {entries.get('SONAME')}")
    if entries.get("RUNPATH") != "$ORIGIN":
        found.append(f"looks for libraries in {entries.get('RUNPATH')}")
    return found


def complaints(link: pathlib.Path) -> list[str]:
    shown = symbols(link, "-D")
    found = place_complaints(link)
    found += [f"shows {name}" for name in shown if not OURS.match(name) and name not in REASONS]
    found += [f"shows {name}, which is nobody else's" for name in shown if INSIDE.search(name.split("(")[0])]
    if not any(OURS.match(name) for name in shown):
        found.append("shows nothing")
    return [f"{link.name}: {complaint}" for complaint in found]


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    links = sorted(pathlib.Path(sys.argv[1]).glob("lib*.so"))
    found = [complaint for link in links for complaint in complaints(link)]
    inner = [name for link in links for name in symbols(link) if INSIDE.search(name.split("(")[0])]
    if not inner:
        found.append("there is nothing of what is inside, so that nothing was learned")
    print("\n".join([*found, f"{len(links)} libraries, {len(inner)} inner functions, {len(found)} complaints"]))
    return 1 if found or not links else 0


if __name__ == "__main__":
    sys.exit(main())
