#!/usr/bin/env python3
"""What Tools/check_exports.py finds in small libraries."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Tools"))
from check_exports import complaints

VIEW = "namespace proupsells::uikit { struct View { virtual ~View(); }; View::~View() {} }\n"


def complaints_about(source: str, name: str = "libShop.so.1", file: str = "libShop.so.1.0.0", run_path: str = "$ORIGIN") -> list[str]:
    """What is found in a library of this source, with this name of its own, file and run path."""
    with tempfile.TemporaryDirectory() as folder:
        code, library = pathlib.Path(folder, "code.cpp"), pathlib.Path(folder, file)
        code.write_text(source, encoding="utf-8")
        subprocess.run(["c++", "-shared", "-fPIC", f"-Wl,-soname,{name},-rpath,{run_path},--enable-new-dtags", code, "-o", library],
                       check=True)
        pathlib.Path(folder, "libShop.so.1").symlink_to(file)
        link = pathlib.Path(folder, "libShop.so")
        link.symlink_to("libShop.so.1")
        return complaints(link)


class Exports(unittest.TestCase):
    def test_a_class_of_ours_and_what_the_compiler_makes_of_it_may_be_seen(self):
        self.assertEqual(complaints_about(VIEW), [])

    def test_the_names_that_tools_read_may_be_seen(self):
        self.assertEqual(complaints_about(VIEW + 'extern "C" { extern const double ProUpsellsVersionNumber = 1; }'), [])

    def test_nothing_else_may_be_seen(self):
        self.assertEqual(complaints_about(VIEW + "void open() {}"), ["libShop.so: shows open()"])

    def test_what_no_header_has_may_not_be_seen(self):
        self.assertEqual(complaints_about(VIEW + "namespace proupsells::swiftui { void update() {} }"),
                         ["libShop.so: shows proupsells::swiftui::update(), which is nobody else's"])

    def test_a_library_that_shows_nothing_is_of_no_use(self):
        self.assertEqual(complaints_about("static int own;"), ["libShop.so: shows nothing"])

    def test_the_name_has_the_major_version(self):
        self.assertEqual(complaints_about(VIEW, name="libShop.so"), ["libShop.so: goes by the name libShop.so"])

    def test_the_file_has_the_whole_version(self):
        self.assertEqual(complaints_about(VIEW, file="libShop.so.old"), ["libShop.so: libShop.so.1 is a link to libShop.so.old"])

    def test_others_of_ours_are_looked_for_beside_it(self):
        self.assertEqual(complaints_about(VIEW, run_path="/usr/lib"), ["libShop.so: looks for libraries in /usr/lib"])


if __name__ == "__main__":
    unittest.main()
