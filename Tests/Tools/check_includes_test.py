#!/usr/bin/env python3
"""What Tools/check_includes.py finds in small trees."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "Tools" / "check_includes.py"
SCREENS = """| screen | files |
|---|---|
| Entry | `Door` |
| Paywall | `Plans` |
| Comparison | `Table` |
| Shared | `Texts` |
"""
MODULE = {"ProUpsells/Door.hpp": "", "ProUpsells/Plans.hpp": "", "ProUpsells/Table.hpp": "", "ProUpsells/Texts.hpp": ""}


def complaints(files: dict[str, str], document: str = SCREENS) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {**MODULE, "Docs/architecture.md": document, **files}.items():
            path = pathlib.Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True)
        found = run.stdout.splitlines()[:-1]
        assert run.returncode == (1 if found else 0), run
        return found


class Rooms(unittest.TestCase):
    def test_a_room_includes_those_below(self):
        self.assertEqual(complaints({"Platform/UIKit/View.cpp": '#include "Platform/Host/Services.hpp"\n#include <string>\n'}), [])

    def test_an_arrow_up_is_named_with_its_line(self):
        self.assertEqual(complaints({"Platform/Host/Services.cpp": '\n#include "Platform/UIKit/View.hpp"\n'}),
                         ["Platform/Host/Services.cpp:2: Platform/UIKit/View.hpp: Platform/Host stands below or beside Platform/UIKit"])

    def test_the_layers_do_not_include_each_other(self):
        self.assertEqual(len(complaints({"Platform/UIKit/View.cpp": '#include "Platform/SwiftUI/View.hpp"\n'})), 1)

    def test_only_the_standard_library_comes_from_outside(self):
        self.assertEqual(len(complaints({"ProUpsells/Plans.cpp": "#include <QString>\n"})), 1)
        self.assertEqual(complaints({"Backends/Qt/Window.cpp": "#include <QString>\n"}), [])

    def test_one_folder_knows_the_headers_of_a_system(self):
        self.assertEqual(complaints({"Platform/System/Posix/MappedFile.cpp": "#include <sys/mman.h>\n"}), [])
        self.assertEqual(len(complaints({"Platform/System/MappedFile.hpp": "#include <sys/mman.h>\n"})), 1)

    def test_the_module_does_not_know_a_backend(self):
        self.assertEqual(len(complaints({"ProUpsells/Plans.cpp": '#include "Backends/Qt/Window.hpp"\n'})), 1)

    def test_tooling_stands_on_the_module(self):
        self.assertEqual(complaints({"Tooling/Audit.cpp": '#include "ProUpsells/Plans.hpp"\n'}), [])
        self.assertEqual(len(complaints({"ProUpsells/Plans.cpp": '#include "Tooling/Audit.hpp"\n'})), 1)
        self.assertEqual(len(complaints({"Tooling/Audit.cpp": '#include "Backends/Qt/Window.hpp"\n'})), 1)

    def test_only_the_room_of_hosts_tests_brings_backends_and_the_module_together(self):
        self.assertEqual(complaints({"ScreenTest/Screen.cpp": '#include "Backends/Raster/Picture.hpp"\n#include "Tooling/Audit.hpp"\n'}), [])
        self.assertEqual(len(complaints({"ScreenTest/Screen.cpp": '#include "Backends/Qt/Window.hpp"\n'})), 1)
        self.assertEqual(len(complaints({"Tooling/Audit.cpp": '#include "ScreenTest/Screen.hpp"\n'})), 1)

    def test_windows_stand_on_the_pixel_engine_and_no_other_backend_on_another(self):
        self.assertEqual(complaints({"Backends/Qt/Window.cpp": '#include "Backends/Raster/Painter.hpp"\n'}), [])
        self.assertEqual(len(complaints({"Backends/Raster/Painter.cpp": '#include "Backends/Qt/Window.hpp"\n'})), 1)


class FloorsWithinALayer(unittest.TestCase):
    def test_a_folder_includes_those_below_it(self):
        self.assertEqual(complaints({"Platform/UIKit/Controls/Button.cpp": '#include "Platform/UIKit/Views/View.hpp"\n',
                                     "Platform/UIKit/Kit.hpp": '#include "Platform/UIKit/Collection/Cell.hpp"\n'}), [])

    def test_an_arrow_up_is_named(self):
        self.assertEqual(complaints({"Platform/UIKit/Views/View.cpp": '#include "Platform/UIKit/Controllers/Window.hpp"\n'}),
                         ["Platform/UIKit/Views/View.cpp:1: Platform/UIKit/Controllers/Window.hpp: Views stands below Controllers"])

    def test_every_folder_has_a_floor(self):
        self.assertEqual(complaints({"Platform/UIKit/Attic/View.cpp": '#include "Platform/UIKit/Views/View.hpp"\n'}),
                         ["Platform/UIKit/Attic/View.cpp:1: Platform/UIKit/Views/View.hpp: "
                          "Platform/UIKit/Attic has no floor in Platform/UIKit"])


class Screens(unittest.TestCase):
    def test_the_entry_includes_the_screens_and_they_what_they_share(self):
        self.assertEqual(complaints({"ProUpsells/Door.cpp": '#include "ProUpsells/Plans.hpp"\n#include "ProUpsells/Table.hpp"\n',
                                     "ProUpsells/Plans.cpp": '#include "ProUpsells/Texts.hpp"\n'}), [])

    def test_a_screen_does_not_include_another(self):
        self.assertEqual(complaints({"ProUpsells/Plans.cpp": '#include "ProUpsells/Table.hpp"\n'}),
                         ["ProUpsells/Plans.cpp:1: ProUpsells/Table.hpp: Paywall never includes Comparison"])

    def test_what_is_shared_includes_no_screen(self):
        self.assertEqual(len(complaints({"ProUpsells/Texts.cpp": '#include "ProUpsells/Door.hpp"\n'})), 1)

    def test_a_screen_does_not_include_the_entry(self):
        self.assertEqual(len(complaints({"ProUpsells/Table.cpp": '#include "ProUpsells/Door.hpp"\n'})), 1)

    def test_a_file_in_no_screen_is_named(self):
        self.assertEqual(complaints({"ProUpsells/Stray.hpp": ""}),
                         ["ProUpsells/Stray.hpp: is in no screen of Docs/architecture.md"])

    def test_a_file_that_is_no_more_is_named(self):
        self.assertEqual(complaints({}, SCREENS.replace("`Texts`", "`Texts`, `Gone`")),
                         ["Docs/architecture.md: there is no Gone"])


if __name__ == "__main__":
    unittest.main()
