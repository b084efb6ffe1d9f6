"""A window that watches follows its files, and the keys that change what its screens are shown on."""
import json
import os
import pathlib
import tempfile
import time
import unittest

import desktop

GERMAN = '"Start Your Free Trial" = "{}"; "Subscribe Now" = "Jetzt abonnieren";'


class Watched(desktop.Program):
    """A window over files of its own that may be written to."""

    def __init__(self, *options, pictures=()):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self._folder.name)
        self.offers = self.folder / "offers.json"
        self.offers.write_text(pathlib.Path(desktop.OFFERS).read_text())
        self.german = self.folder / "de.lproj" / "Localizable.strings"
        self.german.parent.mkdir()
        self.german.write_text(GERMAN.format("Eins"))
        self.theme = self.folder / "theme.json"
        self.theme.write_text(json.dumps({"pictures": {"paywallHeaderA": "header.png"}}))
        self.picture = self.folder / "header.png"
        for name in pictures:
            (self.folder / name).write_text(pictures[name])
        self.errors = self.folder / "errors"
        super().__init__("paywall", "--watch", "--strings", str(self.folder),
                         *(option.format(folder=self.folder) for option in options), offers=str(self.offers), errors=open(self.errors, "w"))

    def __exit__(self, *_):
        super().__exit__()
        self._folder.cleanup()

    def write_price(self, price):
        offers = json.loads(self.offers.read_text())
        for option in offers["options"]:
            if option["type"] == "monthly":
                option["price"] = price
        self.write_offers(offers)

    def write_offers(self, offers):
        # As editors do it.
        beside = self.folder / "offers.json~"
        beside.write_text(json.dumps(offers))
        os.replace(beside, self.offers)

    def wait_for_error(self):
        return desktop.wait_for("a line on standard error", self.errors.read_text)


class Watching(unittest.TestCase):
    def test_follows_the_offers_and_keeps_the_chosen_plan(self):
        with Watched() as program:
            program.press("radio button", "Monthly, $14.99 per month")

            program.write_price("$9.99")

            radio = program.find("radio button", "Monthly, $9.99 per month")
            self.assertTrue(radio.getState().contains(desktop.pyatspi.STATE_CHECKED))

    def test_follows_where_the_person_comes_from(self):
        with Watched() as program:
            program.press("radio button", "Monthly, $14.99 per month")

            program.write_offers({**json.loads(program.offers.read_text()), "referrer": "Feed"})
            program.write_price("$9.99")
            program.find("radio button", "Monthly, $9.99 per month")
            program.press("push button", "Terms of Service")

            program.wait_for_event("tracker", operation="trackTermsOfServiceTapped", referrer="Feed")

    def test_follows_the_pictures_of_a_theme_that_stays_as_it_is(self):
        with Watched("--theme", "{folder}/theme.json") as program:
            # A missing picture is a log line, and so is one that nobody can read.
            program.wait_for_event("log")
            before = len(program.events)

            program.picture.write_text("no picture")

            desktop.wait_for("another line about the picture", lambda: any(line["event"] == "log" for line in program.events[before:]))

    def test_records_no_theme_whose_files_cannot_be_read(self):
        with Watched("--theme", "{folder}/theme.json", "--record", "{folder}/recording.json", pictures={"header.png": "no picture"}) as program:
            program.theme.write_text(json.dumps({"pictures": {"paywallHeaderA": "missing.png"}}))

            error = program.wait_for_error()

            self.assertEqual(error.count("\n"), 1)
            self.assertIn("missing.png: /: the file cannot be read", error)
            program.write_price("$9.99")
            program.find("radio button", "Monthly, $9.99 per month")

    def test_keeps_the_last_good_screen(self):
        with Watched() as program:
            program.offers.write_text('{ "options": [')

            error = program.wait_for_error()

            self.assertEqual(error.count("\n"), 1)
            self.assertTrue(error.startswith(f"{program.offers}: /options/0: "), error)
            program.find("radio button", "Monthly, $14.99 per month")
            program.offers.write_text(pathlib.Path(desktop.OFFERS).read_text())
            program.write_price("$9.99")
            program.find("radio button", "Monthly, $9.99 per month")

    def test_follows_translations_and_switches_languages(self):
        with Watched("--locale", "de_DE") as program:
            program.find("push button", "Eins")
            program.german.write_text(GERMAN.format("Zwei"))
            program.find("push button", "Zwei")

            program.take_keys()
            desktop.press("l")

            program.find("push button", "Start Your Free Trial")

    def test_switches_what_no_longer_follows_the_desktop(self):
        with Watched() as program:
            height = lambda: program.find("radio button", "Monthly, $14.99 per month").queryComponent().getExtents(0).height
            before = height()
            program.take_keys()

            for _ in range(6):
                desktop.press("plus")

            desktop.wait_for("a larger text", lambda: height() > before)
            time.sleep(0.6)
            self.assertGreater(height(), before)


if __name__ == "__main__":
    unittest.main()
