#!/usr/bin/env python3
"""What Tools/extract_texts.py reads out of small sources."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "Tools" / "extract_texts.py"
SCREENS = "| screen | files |\n|---|---|\n| Paywall | `Plans` |\n| Store page | `Shelf` |\n"


def run(files: dict[str, str]) -> tuple[str, str]:
    """The table, and the complaints."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {"Docs/architecture.md": SCREENS, **files}.items():
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        output = pathlib.Path(folder, "Table.cpp")
        finished = subprocess.run([sys.executable, TOOL, folder, output], capture_output=True, text=True)
        assert (finished.returncode == 0) == output.exists(), finished
        return output.read_text(encoding="utf-8") if output.exists() else "", finished.stderr


def rows(files: dict[str, str] | str) -> list[str]:
    table, complaints = run({"ProUpsells/Plans.cpp": files} if isinstance(files, str) else files)
    assert not complaints, complaints
    return [line.strip() for line in table.splitlines() if line.strip().startswith('{"')]


def complaints(source: str) -> list[str]:
    table, found = run({"ProUpsells/Plans.cpp": source})
    assert not table
    return found.splitlines()


class Calls(unittest.TestCase):
    def test_have_a_key_and_perhaps_a_comment(self):
        self.assertEqual(rows('a(localizedString("Yes"), foundation::localizedString("No", "A refusal"));'),
                         ['{"Yes", "", "Paywall"},', '{"No", "A refusal", "Paywall"},'])

    def test_may_have_keys_in_several_pieces_with_escapes(self):
        self.assertEqual(rows(r'localizedString("It\u2019s \"so\"" /* on */ " far", "a," "b")'),
                         ['{"It’s \\"so\\" far", "a,b", "Paywall"},'])

    def test_in_comments_and_texts_are_none(self):
        self.assertEqual(rows('localizedString("Yes"); // localizedString("No")\nlog("localizedString(1)");'), ['{"Yes", "", "Paywall"},'])

    def test_of_the_mark_count_as_well(self):
        self.assertEqual(rows('.title = localizable("Yes")'), ['{"Yes", "", "Paywall"},'])

    def test_of_a_member_look_up_what_is_marked_elsewhere(self):
        self.assertEqual(rows('localizable("Yes"); bundle.localizedString(key); Bundle::main().localizedString(key);'),
                         ['{"Yes", "", "Paywall"},'])

    def test_with_another_key_are_named_with_their_line(self):
        self.assertEqual(complaints("void f() {\n    localizedString(m_title);\n}"),
                         ["ProUpsells/Plans.cpp:2: localizedString: the key is no literal, and no parameter of the function around it"])

    def test_with_two_comments_for_one_key_are_named(self):
        self.assertIn("two comments", complaints('localizedString("a", "b"); localizedString("a", "c");')[0])


class Functions(unittest.TestCase):
    def test_that_hand_a_key_on_are_followed(self):
        self.assertEqual(rows('Feature pro(int n, const char* key, const char* comment) { return {localizedString(key, comment)}; }\n'
                              'auto a = pro(1, "Yes", "An answer");'), ['{"Yes", "An answer", "Paywall"},'])

    def test_may_have_the_comment_themselves(self):
        self.assertEqual(rows('Page page(const char* key) { return Page{localizedString(key, "A page")}; }\nauto a = page("One");'),
                         ['{"One", "A page", "Paywall"},'])

    def test_may_hand_on_to_each_other(self):
        self.assertEqual(rows('View Block::link(const char* k) const { return {localizedString(k)}; }\n'
                              'View Block::both(const char* k) const { if (x) { return link(k); } }\nauto a = both("One");'),
                         ['{"One", "", "Paywall"},'])

    def test_that_get_another_key_are_named(self):
        self.assertIn("f: the key is no literal", complaints('auto f(int k) { return localizedString(k); }\nauto a = f(g());')[0])


class Sections(unittest.TestCase):
    def test_are_the_screens_of_the_files_and_shared_for_all_others(self):
        call = 'localizedString("{}")'.format
        self.assertEqual(rows({"ProUpsells/Shelf.cpp": call("a"), "ProUpsells/Plans.cpp": call("b"), "Platform/UIKit/Dots.cpp": call("c"),
                               "Platform/LumoKit/Bar.cpp": call("b")}),
                         ['{"b", "", "Paywall"},', '{"a", "", "Store page"},', '{"c", "", "Shared"},'])

    def test_keep_the_order_of_the_sources(self):
        source = 'auto f(const char* k) { return localizedString(k); }\nf("b"); localizedString("c"); f("a");'
        self.assertEqual([row[2] for row in rows(source)], ["b", "c", "a"])


if __name__ == "__main__":
    unittest.main()
