#!/usr/bin/env python3
"""What faults Tools/mutants.py makes of what sources."""
import json
import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "Tools"))
import mutants  # noqa: E402


def faults(source):
    return [(mutant.kind, mutant.after.strip()) for mutant in mutants.mutants_of("a.cpp", source)]


class Faults(unittest.TestCase):
    def test_turn_comparisons_round_or_move_their_ends(self):
        self.assertEqual(faults("    if (a < b) c();"), [("comparison", "if (a <= b) c();")])
        self.assertEqual(faults("    if (a == b) c();"), [("comparison", "if (a != b) c();")])

    def test_change_numbers_and_truths(self):
        self.assertEqual(faults("constexpr int a = 7;"), [("constant", "constexpr int a = 8;")])
        self.assertEqual(faults("constexpr double a = 0.5;"), [("constant", "constexpr double a = 0.75;")])
        self.assertEqual(faults("bool a = true;"), [("constant", "bool a = false;")])
        self.assertEqual(faults("int a2b = b3;"), [])

    def test_change_logic(self):
        self.assertEqual(faults("    return a && !b;"), [("logic", "return a || !b;"), ("logic", "return a && b;")])

    def test_drop_calls_and_assignments(self):
        self.assertEqual(faults("    a.call(b);"), [("dropped call", ";")])
        self.assertEqual(faults("    m_a = b;"), [("dropped assignment", ";")])
        self.assertEqual(faults("    ++m_count;"), [("dropped assignment", ";")])
        self.assertEqual(faults("    const A a = b;"), [])
        self.assertEqual(faults("    a.reserve(b);"), [])

    def test_swap_arguments_where_that_makes_a_difference(self):
        self.assertEqual(faults("    return call(a, b);"), [("swapped arguments", "return call(b, a);")])
        self.assertEqual(faults("    return std::min(a, b);"), [])

    def test_return_early(self):
        self.assertEqual(faults("void A::b(int c) {"), [("early return", "void A::b(int c) { if (true) return;")])
        self.assertEqual(faults("int A::b() const {"), [("early return", "int A::b() const { if (true) return {};")])

    def test_change_a_character_of_a_text(self):
        self.assertEqual(faults('const char* a = "bcd";'), [("text", 'const char* a = "bxd";')])

    def test_leave_comments_texts_and_includes_alone(self):
        self.assertEqual(faults('#include "a/b1.hpp"'), [])
        self.assertEqual(faults("    // a < 1 && b"), [])
        self.assertEqual(faults('    a("1 < 2");'), [("dropped call", ";"), ("text", 'a("1 < x");')])

    def test_stand_in_the_source_at_their_line(self):
        source = "int a;\nint b = 1;\n"
        mutant, = mutants.mutants_of("a.cpp", source)
        self.assertEqual(mutant.text(source), "int a;\nint b = 2;\n")


class ExplainedFaults(unittest.TestCase):
    def test_are_faults_of_the_sources_as_they_are(self):
        for entry in json.loads((ROOT / "Tools" / "mutants-explained.json").read_text()):
            made = {(mutant.before.strip(), mutant.after.strip())
                    for mutant in mutants.mutants_of(entry["file"], (ROOT / entry["file"]).read_text())}
            before = entry["before"].strip()
            if "after" in entry:
                self.assertIn((before, entry["after"].strip()), made)
            else:
                self.assertIn(before, {line for line, _ in made})
            self.assertTrue(entry["why"], before)


if __name__ == "__main__":
    unittest.main()
