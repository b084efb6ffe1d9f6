#!/usr/bin/env python3
"""The check of the code on the pages, on pages and files made for it."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).parents[2] / "Tools" / "check_snippets.py"
SOURCE = "int main() {\n    open();\n    if (isOpen())\n        close();\n}\n"


def checked(page: str) -> tuple[int, str]:
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        (root / "main.cpp").write_text(SOURCE, encoding="utf-8")
        (root / "page.md").write_text(page, encoding="utf-8")
        run = subprocess.run([sys.executable, TOOL, root, "page.md"], capture_output=True, text=True, check=False)
        return run.returncode, run.stdout


def block(code: str, source: str = "main.cpp", language: str = "cpp") -> str:
    return f"Text\n\n<!-- from {source} -->\n```{language}\n{code}```\n"


class CheckSnippets(unittest.TestCase):
    def test_accepts_a_whole_file_and_a_part_at_another_indentation(self):
        self.assertEqual(checked(block(SOURCE))[0], 0)
        self.assertEqual(checked(block("open();\nif (isOpen())\n    close();\n"))[0], 0)

    def test_refuses_what_the_file_does_not_say(self):
        status, output = checked(block("open();\nclose();\n"))
        self.assertEqual(status, 1)
        self.assertIn("page.md:5: the block is no part of main.cpp", output)

    def test_refuses_a_part_of_a_line(self):
        self.assertEqual(checked(block("open()\n"))[0], 1)

    def test_refuses_a_block_without_a_file_and_with_one_that_is_gone(self):
        self.assertIn("names no file", checked("Text\n\n```cpp\nopen();\n```\n")[1])
        self.assertIn("there is no gone.cpp", checked(block("open();\n", "gone.cpp"))[1])

    def test_leaves_other_languages_alone(self):
        self.assertEqual(checked("```sh\n./run\n```\n")[0], 0)


if __name__ == "__main__":
    unittest.main()
