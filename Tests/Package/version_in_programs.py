#!/usr/bin/env python3
"""usage: version_in_programs.py PROGRAM...

Every program, stripped of what can be stripped, still offers the module's version under its two names, and has the version's text in
it. Exit status 1 when one does not."""
import pathlib
import subprocess
import sys
import tempfile

SYMBOLS = {"ProUpsellsVersionNumber", "ProUpsellsVersionString"}
TEXT = b"@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1\n"


def complaints(program: str) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        stripped = pathlib.Path(folder, "stripped")
        subprocess.run(["strip", "-o", stripped, program], check=True)
        listing = subprocess.run(["nm", "-D", "--defined-only", stripped], check=True, capture_output=True, text=True).stdout
        found = {line.split()[-1] for line in listing.splitlines()}
        missing = [f"{program}: {symbol} is not there" for symbol in sorted(SYMBOLS - found)]
        return missing if TEXT in stripped.read_bytes() else [*missing, f"{program}: the version's text is not there"]


def main() -> int:
    found = [complaint for program in sys.argv[1:] for complaint in complaints(program)]
    print("\n".join([*found, f"{len(sys.argv) - 1} programs, {len(found)} complaints"]))
    return 1 if found or len(sys.argv) == 1 else 0


if __name__ == "__main__":
    sys.exit(main())
