#!/usr/bin/env python3
"""What Tools/check_portability.py finds in small sources."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "Tools" / "check_portability.py"
sys.path.insert(0, str(TOOL.parent))
from check_portability import complaints


class Portability(unittest.TestCase):
    def test_what_every_system_has_is_let_through(self):
        self.assertEqual(complaints("a.cpp", '#include <csignal>\n[[nodiscard]] int open(int);\nfile.open("a/sys/b");\nstd::mmap();\n'), [])

    def test_a_header_of_one_system_is_named_with_its_line(self):
        self.assertEqual(complaints("a.cpp", "#include <string>\n# include <sys/mman.h>\n#include <unistd.h>\n"),
                         ["a.cpp:2: sys/mman.h is a header of one system or compiler",
                          "a.cpp:3: unistd.h is a header of one system or compiler"])

    def test_a_function_of_one_system_is_named(self):
        self.assertEqual(complaints("a.cpp", "void* p = mmap(nullptr);\n"), ["a.cpp:1: mmap is a function of one system"])
        self.assertEqual(len(complaints("a.cpp", "::execv(a, b);\n")), 1)

    def test_a_file_of_one_system_is_named(self):
        self.assertEqual(complaints("a.cpp", '\n\nread("/proc/self/exe");\n'), ["a.cpp:3: /proc/self/exe is a file of one system"])

    def test_what_one_compiler_has_is_named(self):
        for text in ("[[gnu::always_inline]] int a;", "__attribute__((used)) int a;", "int a = __builtin_LINE();", "#ifdef __clang__",
                     "__declspec(dllexport) int a;", "#pragma GCC unroll 4"):
            self.assertEqual(len(complaints("a.hpp", text + "\n")), 1, text)

    def test_a_path_becomes_a_text_in_one_way(self):
        self.assertEqual(complaints("a.cpp", "a = file.string();\n"),
                         ["a.cpp:1: string() turns a path into a text; system::textOf does that"])
        self.assertEqual(complaints("a.cpp", "a = std::string();\nb = system::textOf(file);\n"), [])

    def test_comments_may_name_everything(self):
        self.assertEqual(complaints("a.cpp", "// mmap(a), __builtin_FILE()\n/* #include <unistd.h>\n*/ int b; // \"/proc/self\"\n"), [])

    def test_texts_do_not_end_in_the_comments_that_they_name(self):
        self.assertEqual(complaints("a.cpp", 'auto a = "http://b"; fork(1);\n'), ["a.cpp:1: fork is a function of one system"])

    def test_one_room_is_let_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ("Platform/System/Posix/File.cpp", "Platform/Commons/File.cpp"):
                path = pathlib.Path(folder, name)
                path.parent.mkdir(parents=True)
                path.write_text("#include <unistd.h>\n", encoding="utf-8")
            run = subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True)
        self.assertEqual(run.stdout.splitlines(), ["Platform/Commons/File.cpp:1: unistd.h is a header of one system or compiler",
                                                   "1 files, 1 complaints"])
        self.assertEqual(run.returncode, 1)


if __name__ == "__main__":
    unittest.main()
