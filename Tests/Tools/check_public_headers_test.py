#!/usr/bin/env python3
"""What Tools/check_public_headers.py finds in small trees."""
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_public_headers import check_includes

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


if __name__ == "__main__":
    unittest.main()
