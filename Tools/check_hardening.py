#!/usr/bin/env python3
"""Whether programs and libraries were built with checks against misuse of their memory (CMake/Hardening.cmake).

usage: check_hardening.py FILE...

Every file: nothing is both written to and run, addresses of others' functions are looked up at the start and read only from then on, code
is not patched where it is loaded, a return address that was written over ends the program, and on x86 indirect jumps end at marks.
Programs also lie at another place each time, and the C library checks lengths. Exit status 1 with a line for each complaint."""
import pathlib
import re
import subprocess
import sys

MARK = b"\xf3\x0f\x1e\xfa"  # endbr64, where an indirect jump may end
MARKS_OF_THE_RUNTIME = 10  # at most, in what the compiler links to everything


def read(option: str, file: pathlib.Path) -> str:
    return subprocess.run(["readelf", "--wide", option, file], check=True, capture_output=True, text=True).stdout


def segment_flags(segments: str, name: str) -> str | None:
    found = re.search(rf"^ +{name}(?: +0x[0-9a-f]+){{5}} ([RWE ]{{3}})", segments, re.MULTILINE)
    return found and found.group(1)


def complaints(file: pathlib.Path) -> list[str]:
    header, segments, dynamic, symbols = (read(option, file) for option in ("--file-header", "--program-headers", "--dynamic", "--dyn-syms"))
    is_program = "INTERP" in segments
    found = []
    if segment_flags(segments, "GNU_STACK") != "RW ":
        found.append("its stack can be run")
    if re.search(r"^ +LOAD(?: +0x[0-9a-f]+){5} RWE", segments, re.MULTILINE):
        found.append("it has memory that is both written to and run")
    if segment_flags(segments, "GNU_RELRO") is None:
        found.append("its tables of addresses stay writable (no RELRO)")
    if not re.search(r"\(FLAGS_1\).*\bNOW\b|\(BIND_NOW\)|\(FLAGS\).*BIND_NOW", dynamic):
        found.append("it looks up addresses later than at its start (no BIND_NOW)")
    if "TEXTREL" in dynamic:
        found.append("its code is patched where it is loaded (TEXTREL)")
    if "__stack_chk_fail" not in symbols:
        found.append("its return addresses are not guarded (no stack protector)")
    if "X86-64" in header and file.read_bytes().count(MARK) <= MARKS_OF_THE_RUNTIME:
        found.append("its indirect jumps have no marks to end at (no control-flow protection)")
    if is_program:
        if not re.search(r"\(FLAGS_1\).*\bPIE\b", dynamic):
            found.append("it always lies at the same place (no PIE)")
        if not re.search(r" __\w+_chk@GLIBC", symbols.replace("__stack_chk_fail", "")):
            found.append("calls of the C library do not check lengths (no _FORTIFY_SOURCE)")
    return [f"{file.name}: {complaint}" for complaint in found]


def main() -> int:
    found = [complaint for file in sys.argv[1:] for complaint in complaints(pathlib.Path(file))]
    print("\n".join(found), end="\n" if found else "")
    return bool(found)


if __name__ == "__main__":
    sys.exit(main())
