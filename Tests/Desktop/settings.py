"""The window follows what a person has asked of the desktop: text size, appearance, contrast and reduced motion, from the start and live."""
import subprocess
import time
import unittest

import gi

gi.require_version("GdkPixbuf", "2.0")
from gi.repository import GdkPixbuf, GLib  # noqa: E402

import desktop
from portal import APPEARANCE, GNOME, Portal

PLAN = ("radio button", "Monthly, $14.99 per month")
TEXT_SCALE, COLOURS, ANIMATIONS = (GNOME, "text-scaling-factor"), (APPEARANCE, "color-scheme"), (GNOME, "enable-animations")
DARK, LIGHT = GLib.Variant("u", 1), GLib.Variant("u", 2)
ON, OFF = GLib.Variant("b", True), GLib.Variant("b", False)
CONTRAST = (APPEARANCE, "contrast")
# Of the main button, as red, green and blue.
USUAL_ACCENT, DARKER_ACCENT = bytes([0x0A, 0x7C, 0x78]), bytes([0x0A, 0x5A, 0x57])
# Strips that drift have moved by then.
WATCHED_S = 1.5


def factor(value):
    return GLib.Variant("d", value)


def height_of_plan(program):
    return program.find(*PLAN).queryComponent().getExtents(0).height


def wait_for_height(program, accepts):
    desktop.wait_for("another height of a plan", lambda: accepts(height_of_plan(program)))


def picture(program):
    """The bytes of a picture of the window."""
    return subprocess.run(["maim", "--hidecursor", "--window", program.window()], capture_output=True, check=True).stdout


def pixels_of(program):
    loader = GdkPixbuf.PixbufLoader()
    loader.write(picture(program))
    loader.close()
    return loader.get_pixbuf()


def is_dark(program):
    """As the lower left corner of the window shows."""
    pixels = pixels_of(program)
    corner = (pixels.get_height() - 3) * pixels.get_rowstride() + 3 * pixels.get_n_channels()
    return max(pixels.get_pixels()[corner:corner + 3]) < 96


def shows(program, colour):
    """Whether a good deal of the window has exactly this colour."""
    pixels = pixels_of(program)
    row, all_bytes, step = pixels.get_rowstride(), pixels.get_pixels(), pixels.get_n_channels()
    return sum(all_bytes[y * row + x * step:y * row + x * step + 3] == colour
               for y in range(pixels.get_height()) for x in range(0, pixels.get_width(), 4)) > 500


def moves(program):
    before = picture(program)
    time.sleep(WATCHED_S)
    return picture(program) != before


class Settings(unittest.TestCase):
    def show(self, screen="paywall", *options):
        return self.enterContext(desktop.Program(screen, *options))

    def desktop_with(self, settings):
        return self.enterContext(Portal(settings))

    def usual_height(self):
        with desktop.Program() as program:
            return height_of_plan(program)

    def test_texts_are_as_large_as_the_desktop_says(self):
        usual = self.usual_height()
        portal = self.desktop_with({TEXT_SCALE: factor(2.0)})
        program = self.show()
        wait_for_height(program, lambda height: height > 1.4 * usual)

        portal.set(*TEXT_SCALE, factor(1.0))
        wait_for_height(program, lambda height: height == usual)

    def test_the_window_is_as_dark_as_the_desktop_says(self):
        portal = self.desktop_with({COLOURS: DARK})
        program = self.show()
        desktop.wait_for("a dark window", lambda: is_dark(program))

        portal.set(*COLOURS, LIGHT)
        desktop.wait_for("a light window", lambda: not is_dark(program))

    def test_texts_stand_out_more_where_the_desktop_says_so(self):
        portal = self.desktop_with({CONTRAST: GLib.Variant("u", 0), COLOURS: LIGHT})
        program = self.show()
        desktop.wait_for("the usual accent", lambda: shows(program, USUAL_ACCENT))
        portal.set(*CONTRAST, GLib.Variant("u", 1))
        desktop.wait_for("a darker accent", lambda: shows(program, DARKER_ACCENT) and not shows(program, USUAL_ACCENT))

        portal.set(*CONTRAST, GLib.Variant("u", 0))
        desktop.wait_for("the usual accent again", lambda: shows(program, USUAL_ACCENT))

    def test_strips_drift_unless_the_desktop_wants_no_animations(self):
        portal = self.desktop_with({ANIMATIONS: OFF})
        program = self.show("store")
        desktop.wait_for("strips that stand still", lambda: not moves(program))

        portal.set(*ANIMATIONS, ON)
        desktop.wait_for("strips that drift", lambda: moves(program))
        portal.set(*ANIMATIONS, OFF)
        desktop.wait_for("strips that stand still again", lambda: not moves(program))

    def test_a_text_size_chosen_by_a_key_stays(self):
        usual = self.usual_height()
        self.desktop_with({TEXT_SCALE: factor(1.0)})
        program = self.show("paywall", "--watch")
        program.take_keys()
        for _ in range(4):
            desktop.press("plus")
        wait_for_height(program, lambda height: height > 1.2 * usual)

        # The desktop is looked at several times a second.
        time.sleep(WATCHED_S)
        self.assertGreater(height_of_plan(program), 1.2 * usual)

    def test_what_the_command_line_says_wins(self):
        usual = self.usual_height()
        portal = self.desktop_with({TEXT_SCALE: factor(2.0), COLOURS: LIGHT})
        program = self.show("paywall", "--text-size", "large")
        # Once the one setting is followed, the other one has been heard, too.
        desktop.wait_for("a light window", lambda: not is_dark(program))
        portal.set(*TEXT_SCALE, factor(3.0))
        portal.set(*COLOURS, DARK)
        desktop.wait_for("a dark window", lambda: is_dark(program))

        self.assertEqual(height_of_plan(program), usual)


if __name__ == "__main__":
    unittest.main(verbosity=2)
