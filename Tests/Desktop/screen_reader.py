"""What Orca says on a walk through each screen, held against the files in expected/.

PROUPSELLS_RENEW=1 writes those files instead of comparing with them."""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time
import unittest

import desktop

HERE = pathlib.Path(__file__).parent
RENEWS = bool(os.environ.get("PROUPSELLS_RENEW"))
# How long it says nothing more when the files are written.
QUIET_S = 2.5
# The header's page, and what stands there, is whichever it has come to by then.
VARYING = [(re.compile(r"(slider) \d+"), r"\1 #"), (re.compile(r"(Choose Your Plan dialog) .*?\. "), r"\1 # ")]


class Orca:
    """Runs until the end of the block; `said` is what it has said so far, a line each."""

    def __enter__(self):
        self._folder = pathlib.Path(tempfile.mkdtemp())
        shutil.copy(HERE / "orca-customizations.py", self._folder)
        self._speech = self._folder / "speech"
        environment = dict(os.environ, PROUPSELLS_SPEECH=str(self._speech), LC_ALL="C.UTF-8")
        self._process = subprocess.Popen(["orca", "--user-prefs", str(self._folder), "--disable", "braille", "--disable", "braille-monitor"],
                                         env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        desktop.wait_for("Orca", lambda: "Screen reader on." in self.said())
        return self

    def __exit__(self, *_):
        # It does not always end when it is asked to.
        self._process.kill()
        self._process.wait()
        shutil.rmtree(self._folder)

    def said(self):
        try:
            lines = self._speech.read_text(encoding="utf-8").splitlines()
        except FileNotFoundError:
            return []
        for pattern, instead in VARYING:
            lines = [pattern.sub(instead, line) for line in lines]
        return lines


def read_walk(file):
    """What is said after the start and after each key: lists of lines."""
    steps = [[]]
    for line in file.read_text(encoding="utf-8").splitlines():
        if line.startswith("> "):
            steps.append([])
        else:
            steps[-1].append(line)
    return steps


class Walk(unittest.TestCase):
    maxDiff = None

    def walk(self, screen, keys):
        file = HERE / "expected" / f"{screen}.spoken"
        expected = None if RENEWS else read_walk(file)
        desktop.rest_pointer_on_header()
        with Orca() as orca, desktop.Program(screen) as program:
            start = len(orca.said())
            program.take_keys()
            told = [self.hear(orca, start, expected and expected[0])]
            for number, key in enumerate(keys, start=1):
                start = len(orca.said())
                desktop.press(key)
                told.append(self.hear(orca, start, expected and expected[number]))
                if expected and told[-1] != expected[number]:
                    break
        if RENEWS:
            steps = [told[0], *([f"> {key}", *said] for key, said in zip(keys, told[1:]))]
            file.write_text("\n".join(line for step in steps for line in step) + "\n", encoding="utf-8")
        else:
            self.assertEqual(list(zip(["", *keys], told)), list(zip(["", *keys], expected)))

    def hear(self, orca, start, expected):
        """What has been said since, once it is as much as is expected."""
        if expected is None:
            heard, since = -1, time.monotonic()

            def is_quiet():
                nonlocal heard, since
                if len(orca.said()) != heard:
                    heard, since = len(orca.said()), time.monotonic()
                return time.monotonic() - since > QUIET_S
            desktop.wait_for("silence", is_quiet)
        else:
            try:
                desktop.wait_for(expected, lambda: len(orca.said()) - start >= len(expected))
            except desktop.Missing:
                pass  # the comparison says so
        return orca.said()[start:]

    def test_through_the_paywall(self):
        self.walk("paywall", ["Tab"] * 4 + ["Down"] + ["Tab"] * 4)

    def test_through_the_comparison(self):
        self.walk("comparison", ["Tab", "Tab", "space", "space", "Tab", "Right", "Tab", "Tab", "Tab", "Escape"])

    def test_through_the_store(self):
        self.walk("store", ["Tab"] * 9 + ["Escape"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
