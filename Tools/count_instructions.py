#!/usr/bin/env python3
"""Counts the instructions of the main paths under callgrind, which no noise of the machine can change.

usage: count_instructions.py PROGRAM BASELINE [--renew]

PROGRAM is build/bin/MainPaths. BASELINE is a JSON file with a number for each path: exit status 1 when a path has grown by more
than 3 %, or is missing. With --renew the file is written anew. Prints a line for each path. Callgrind comes with Debian's
package valgrind."""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

LARGEST_GROWTH = 0.03
# The C library picks its routines by the processor; without these they are the same everywhere.
PLAIN_PROCESSOR = "glibc.cpu.hwcaps=-AVX512F,-AVX2,-AVX,-ERMS,-FSRM"


def count(program: str, path: str) -> int:
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["valgrind", "--tool=callgrind", "--instr-atstart=no",
                        f"--callgrind-out-file={folder}/out", program, path], check=True, capture_output=True,
                       env={**os.environ, "GLIBC_TUNABLES": PLAIN_PROCESSOR})
        found = re.search(r"^totals: (\d+)", pathlib.Path(folder, "out").read_text(), re.MULTILINE)
        return int(found.group(1))


def main() -> int:
    arguments = [argument for argument in sys.argv[1:] if argument != "--renew"]
    if len(arguments) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    program, baseline_file = arguments[0], pathlib.Path(arguments[1])
    paths = subprocess.run([program], check=True, capture_output=True, text=True).stdout.split()
    counts = {path: count(program, path) for path in paths}
    if "--renew" in sys.argv:
        baseline_file.write_text(json.dumps(counts, indent=2) + "\n", encoding="utf-8")
    baseline = json.loads(baseline_file.read_text(encoding="utf-8"))
    grown = False
    for path in sorted({*counts, *baseline}):
        now, before = counts.get(path), baseline.get(path)
        growth = now / before - 1 if now and before else float("inf")
        grown |= growth > LARGEST_GROWTH
        print(f"{path}: {now} instructions, {before} before ({growth:+.1%})")
    return 1 if grown else 0


if __name__ == "__main__":
    sys.exit(main())
