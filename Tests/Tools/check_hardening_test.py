#!/usr/bin/env python3
"""What Tools/check_hardening.py finds in small programs and libraries."""
import pathlib
import platform
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_hardening import complaints

FUNCTIONS = "".join(f"int function{i}() {{ return {i}; }}\n" for i in range(12))
SOURCE = FUNCTIONS + """
#include <cstdio>
#include <cstring>
#include <vector>
int main(int count, char** words) {
    char copy[16];
    std::strcpy(copy, words[0]);
    std::vector<int> numbers(count);
    std::printf("%s %d", copy, numbers[count - 1]);
}
"""
CHECKS = ["-O2", "-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=2", "-fstack-protector-strong", "-fPIE"]
PLACES = ["-pie", "-Wl,-z,relro,-z,now,-z,noexecstack"]
MARKS = ["-fcf-protection=full"] if platform.machine() == "x86_64" else []


def complaints_about(*options: str, source: str = SOURCE) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        code, program = pathlib.Path(folder, "code.cpp"), pathlib.Path(folder, "program")
        code.write_text(source, encoding="utf-8")
        subprocess.run(["c++", *options, code, "-o", program], check=True)
        return complaints(program)


class Hardening(unittest.TestCase):
    def test_nothing_is_said_of_a_program_with_all_checks(self):
        self.assertEqual(complaints_about(*CHECKS, *MARKS, *PLACES), [])

    def test_nothing_is_said_of_a_library_with_all_checks(self):
        self.assertEqual(complaints_about(*CHECKS, *MARKS, "-fPIC", "-shared", *PLACES[1:]), [])

    def test_each_check_is_missed(self):
        for missing, said in {
            "-D_FORTIFY_SOURCE=2": "no _FORTIFY_SOURCE",
            "-fstack-protector-strong": "no stack protector",
        }.items():
            left = [option for option in CHECKS if option != missing]
            found = complaints_about(*left, "-fno-stack-protector" if missing.startswith("-fstack") else "-DX", *MARKS, *PLACES)
            self.assertEqual(len(found), 1, found)
            self.assertIn(said, found[0])

    def test_a_place_that_is_always_the_same_is_found(self):
        self.assertIn("program: it always lies at the same place (no PIE)", complaints_about(*CHECKS, *MARKS, "-fno-pie", "-no-pie", *PLACES[1:]))

    def test_tables_that_can_be_written_to_are_found(self):
        self.assertEqual(complaints_about(*CHECKS, *MARKS, "-pie", "-Wl,-z,norelro,-z,now"),
                         ["program: its tables of addresses stay writable (no RELRO)"])
        self.assertEqual(complaints_about(*CHECKS, *MARKS, "-pie", "-Wl,-z,relro,-z,lazy"),
                         ["program: it looks up addresses later than at its start (no BIND_NOW)"])

    def test_a_stack_that_can_be_run_is_found(self):
        self.assertEqual(complaints_about(*CHECKS, *MARKS, "-pie", "-Wl,-z,relro,-z,now,-z,execstack"), ["program: its stack can be run"])

    @unittest.skipUnless(MARKS, "only x86 has them")
    def test_jumps_without_marks_are_found(self):
        self.assertIn("(no control-flow protection)", "".join(complaints_about(*CHECKS, "-fcf-protection=none", *PLACES)))


if __name__ == "__main__":
    unittest.main()
