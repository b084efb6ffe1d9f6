#!/usr/bin/env python3
"""What Tools/check_public_headers.py finds in small trees."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_public_headers import check_includes, check_marks

TREE = {"Include/Shop/Shop.hpp": '#include "Room/Door.hpp"\n', "Room/Door.hpp": '#include <string>\n#include "Room/Key.hpp"\n',
        "Room/Key.hpp": "", "Room/Secret.hpp": ""}


def complaints(listed: set[str]) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        for name, text in TREE.items():
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        return check_includes(pathlib.Path(folder), listed)


class PublicHeaders(unittest.TestCase):
    def test_the_umbrella_and_all_that_it_reaches_are_listed(self):
        self.assertEqual(complaints({"Include/Shop/Shop.hpp", "Room/Door.hpp", "Room/Key.hpp"}), [])

    def test_a_header_that_is_reached_must_be_listed(self):
        self.assertEqual(complaints({"Include/Shop/Shop.hpp", "Room/Door.hpp"}),
                         ["Room/Key.hpp: an umbrella header includes it, but is not listed"])

    def test_a_header_that_is_not_reached_must_not_be_listed(self):
        self.assertEqual(complaints({*TREE}), ["Room/Secret.hpp: is listed, but no umbrella header includes it"])


def unmarked(text: str) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        pathlib.Path(folder, "Door.hpp").write_text(text, encoding="utf-8")
        return check_marks(pathlib.Path(folder), {"Door.hpp"})


class Marks(unittest.TestCase):
    def test_what_a_source_defines_is_marked(self):
        self.assertEqual(unmarked("void open();\n"), ["Door.hpp: open lacks PROUPSELLS_EXPORT"])
        self.assertEqual(unmarked("class Door {\n    void open(\n        int width = {}) const;\n};\n"),
                         ["Door.hpp: Door lacks PROUPSELLS_EXPORT"])
        self.assertEqual(unmarked("PROUPSELLS_EXPORT void open();\nclass PROUPSELLS_EXPORT Door {\n    void open();\n};\n"), [])

    def test_a_class_that_hosts_derive_from_is_marked(self):
        self.assertEqual(unmarked("class Door {\n    virtual ~Door() = default;\n};\n"), ["Door.hpp: Door lacks PROUPSELLS_EXPORT"])

    def test_what_the_header_has_whole_needs_no_mark(self):
        self.assertEqual(unmarked("inline void open() {}\nstruct Size {\n    int area() const { return 1; }\n    std::function<void()> f;\n};\n"
                                  "template <class Key>\nclass Lock {\n    void open();\n};\nvoid open() = delete;\n"), [])


if __name__ == "__main__":
    unittest.main()
