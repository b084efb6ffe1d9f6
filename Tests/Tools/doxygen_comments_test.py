#!/usr/bin/env python3
"""What Tools/doxygen_comments.py makes of small headers."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from doxygen_comments import SAYS_IT_ITSELF, Translation, page


def translated(header: str, name: str = "Shop") -> str:
    return "\n".join(Translation(header.split("\n"), name).run())


class DoxygenComments(unittest.TestCase):
    def test_a_class_with_an_attribute_is_a_class(self):
        self.assertEqual(translated("// Doors.\nclass [[nodiscard]] Door {\n    // Its number.\n    int number();\n};"),
                         "/// Doors.\nclass [[nodiscard]] Door {\n    /// Its number.\n    int number();\n};")

    def test_a_comment_above_a_declaration_is_about_it(self):
        self.assertEqual(translated("// Opens it,\n// wide.\nvoid open();"), "/// Opens it,\n/// wide.\nvoid open();")

    def test_a_comment_is_about_all_declarations_up_to_the_next_comment_or_blank_line(self):
        self.assertEqual(translated("// Doors.\nvoid open();\nvoid close();\n// A key.\nvoid turn();\n\nvoid wait();"),
                         "/// Doors.\nvoid open();\n/** Doors. */ void close();\n/// A key.\nvoid turn();\n\nvoid wait();")

    def test_a_comment_that_stands_alone_is_about_nothing(self):
        self.assertEqual(translated("// Doors.\n\nvoid open();"), "// Doors.\n\nvoid open();")

    def test_a_comment_behind_a_declaration_is_about_that_one_and_ends_what_was_said_above(self):
        self.assertEqual(translated("// Doors.\nint front;\nint back; // locked\nint side;"),
                         "/// Doors.\nint front;\nint back; ///< locked\nint side;")

    def test_comments_inside_functions_stay_as_they_are(self):
        function = "int open() {\n    // First the lock.\n    turn(); // twice\n    return 1;\n}"

        self.assertEqual(translated(f"// Opens.\n{function}\nint close();"), f"/// Opens.\n{function}\n/** Opens. */ int close();")

    def test_the_braces_of_a_value_do_not_end_its_declaration(self):
        self.assertEqual(translated("// Doors.\nint front{\n    // The oldest.\n    1\n};\nint back;"),
                         "/// Doors.\nint front{\n    // The oldest.\n    1\n};\n/** Doors. */ int back;")

    def test_braces_and_slashes_in_texts_are_no_code(self):
        self.assertEqual(translated('// Doors.\nchar front[] = "{ // }";\nint back;'),
                         '/// Doors.\nchar front[] = "{ // }";\n/** Doors. */ int back;')

    def test_the_first_comment_is_about_the_file_and_the_type_of_the_same_name(self):
        self.assertEqual(translated("// Sells.\n#pragma once\n\nclass Shop {\n};"),
                         "/// Sells.\n/// @file\n\n/** Sells. */ class Shop {\n};")
        self.assertEqual(translated("// Sells.\n#pragma once\n\n// Opens at nine.\nclass Shop {\n};"),
                         "/// Sells.\n/// @file\n\n/** Sells. */ /// Opens at nine.\nclass Shop {\n};")
        self.assertEqual(translated("// Sells.\n#pragma once\n\ntemplate <class Ware>\nclass Shop {\n};"),
                         "/// Sells.\n/// @file\n\n/** Sells. */ template <class Ware>\nclass Shop {\n};")
        self.assertEqual(translated("// Sells.\n#pragma once\n\nenum class Shop { small, large };"),
                         "/// Sells.\n/// @file\n\n/** Sells. */ enum class Shop { small, large };")
        self.assertEqual(translated("// Sells.\n#pragma once\n\nclass Door {\n};"), "/// Sells.\n/// @file\n\nclass Door {\n};")

    def test_what_its_declaration_says_already_counts_as_documented(self):
        for declaration in ("Shop(const Shop&) = delete;", "bool operator==(const Shop&) const = default;", "~Shop();"):
            self.assertEqual(translated(declaration), f"/** {SAYS_IT_ITSELF} */ {declaration}")

    def test_members_of_a_struct_with_a_comment_count_as_documented_but_not_its_functions_and_types(self):
        self.assertEqual(translated("// A door.\nstruct Door {\n    int width = 0;\n    int area() const;\n    enum class Kind { a };\n};"),
                         f"/// A door.\nstruct Door {{\n    /** {SAYS_IT_ITSELF} */ int width = 0;\n    int area() const;\n"
                         "    enum class Kind { a };\n};")

    def test_members_of_classes_and_of_structs_without_a_comment_do_not(self):
        for header in ("// A door.\nclass Door {\npublic:\n    int width = 0;\n};", "\nstruct Door {\n    int width = 0;\n};"):
            self.assertIn("\n    int width = 0;", translated(header))

    def test_comments_of_values_are_theirs(self):
        self.assertEqual(translated("// Kinds.\nenum class Kind {\n    // To the street.\n    front,\n    back, // locked\n};"),
                         "/// Kinds.\nenum class Kind {\n    /// To the street.\n    front,\n    back, ///< locked\n};")

    def test_headings_embrace_what_follows_up_to_the_next_one(self):
        self.assertEqual(translated("class Shop {\n    // --- Doors ---\n    int a;\n    // --- Keys ---\n    int b;\nprivate:\n    int c;\n};"),
                         "class Shop {\n/** @name Doors */ /** @{ */\n    int a;\n/** @} */ /** @name Keys */ /** @{ */\n    int b;\n"
                         "/** @} */ private:\n    int c;\n};")

    def test_a_comment_is_about_each_way_in_which_a_macro_is_defined(self):
        self.assertEqual(translated("// Loud.\n#ifdef BELL\n#define RING 2\n#else\n#define RING\n#endif"),
                         "// Loud.\n#ifdef BELL\n#define RING 2 ///< Loud.\n#else\n#define RING ///< Loud.\n#endif")

    def test_nothing_in_a_comment_is_a_command_except_in_code(self):
        self.assertEqual(translated("// <language>.lproj, \\n, `<b>`:\n//\n//     a@b\nint a;"),
                         "/// \\<language\\>.lproj, \\\\n, `<b>`:\n/// \n///     a@b\nint a;")

    def test_every_line_stays_on_its_line(self):
        header = "// Sells.\n#pragma once\n\n// A door.\nstruct Door {\n    int width = 0;\n\n    Door() = default;\n};\n"

        self.assertEqual(len(translated(header).split("\n")), len(header.split("\n")))

    def test_headings_of_a_page_can_be_linked_to_as_elsewhere(self):
        self.assertEqual(page(["## Shops, and doors", "[see](#shops-and-doors)"]),
                         ["## Shops, and doors {#shops-and-doors}", "[see](#shops-and-doors)"])

    def test_links_of_a_page_to_other_files_become_plain_text(self):
        self.assertEqual(page(["[doors](doors.md#keys) and [keys](https://keys.org)"]), ["doors and [keys](https://keys.org)"])

    def test_code_on_a_page_stays_as_it_is(self):
        code = ["```sh", "# [a](b)", "```"]

        self.assertEqual(page(code), code)


if __name__ == "__main__":
    unittest.main()
