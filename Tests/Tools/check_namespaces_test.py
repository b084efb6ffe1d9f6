#!/usr/bin/env python3
"""What Tools/check_namespaces.py finds in small sources."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_namespaces import complaints


class Namespaces(unittest.TestCase):
    def test_what_is_inside_the_namespace_may_be_anything(self):
        self.assertEqual(complaints("a.hpp", "class QWindow;\nnamespace proupsells::qt {\nstruct A { int b = 1; };\nvoid f();\n}\n"), [])

    def test_another_namespace_is_named_with_its_line(self):
        self.assertEqual(complaints("a.hpp", "#pragma once\n\nnamespace geometry {\nstruct Point {};\n}\n"),
                         ["a.hpp:3: stands outside the namespace: namespace geometry {"])

    def test_a_function_outside_is_named(self):
        self.assertEqual(complaints("a.cpp", "namespace proupsells {}\n\nvoid f() {}\n"),
                         ["a.cpp:3: stands outside the namespace: void f() {"])

    def test_what_follows_a_namespace_that_was_closed_is_outside(self):
        self.assertEqual(len(complaints("a.hpp", "namespace proupsells {\n}\nnamespace commons {\n}\n")), 1)

    def test_braces_in_comments_and_texts_do_not_count(self):
        self.assertEqual(complaints("a.cpp", 'namespace proupsells {\n// }\nconst char* a = "}";\nchar b = \'}\';\nint c = 1\'000;\n}\n'), [])

    def test_only_a_source_uses_a_whole_namespace(self):
        self.assertEqual(complaints("a.cpp", "using namespace proupsells;\nint main() {}\n"), [])
        self.assertEqual(complaints("a.hpp", "namespace proupsells {\nusing namespace geometry;\n}\n"),
                         ["a.hpp:2: a header does not say `using namespace`"])

    def test_a_symbol_found_by_name_is_outside(self):
        self.assertEqual(complaints("a.cpp", 'extern "C" {\nint version = 1;\n}\n'), [])


if __name__ == "__main__":
    unittest.main()
