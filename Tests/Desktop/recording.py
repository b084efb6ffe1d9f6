"""What somebody does in a real window is recorded, and comes out again when it is played: event lines to the byte."""
import json
import pathlib
import signal
import subprocess
import tempfile
import time
import unittest

import desktop
import window


class RecordedWindow(window.Screen):
    """A screen of its own with a window on it that records, until the end of the block."""

    def __init__(self, *options):
        self._folder = tempfile.TemporaryDirectory()
        self.file = pathlib.Path(self._folder.name) / "recording.json"
        super().__init__("1280x1000", "--size", "700x760", "--record", str(self.file), *options)

    def __exit__(self, *_):
        super().__exit__()
        self._folder.cleanup()

    def do(self, *command):
        self.ask("xdotool", *command)
        time.sleep(0.12)

    def stand(self):
        """Until the screen asked for has come, and the keys are its own."""
        self.do("windowfocus", "--sync", self.window())
        time.sleep(2)

    def end(self):
        """The exit status, and the event lines."""
        lines = self._program.stdout.read()
        return self._program.wait(window.TIMEOUT_S), lines

    def terminate(self):
        self._program.send_signal(signal.SIGTERM)
        return self.end()


def play(file):
    return subprocess.run([window.PROGRAM, "run", str(file)], capture_output=True, check=True).stdout


class Recording(unittest.TestCase):
    def assert_comes_out_again(self, file, lines):
        self.assertGreater(lines.count(b"\n"), 1)
        self.assertEqual(play(file).decode(), lines.decode())

    def test_of_mouse_wheel_and_keys_until_the_window_closes(self):
        with RecordedWindow("--start", "store") as screen:
            screen.stand()
            screen.do("mousemove", "--window", screen.window(), "350", "500")
            for button in ("5", "5", "5", "4"):
                screen.do("click", button)
            screen.do("mousedown", "1")
            for y in (490, 450, 380, 300):
                screen.do("mousemove", "--window", screen.window(), "350", str(y))
            screen.do("mouseup", "1")
            screen.do("windowsize", screen.window(), "520", "700")
            screen.do("key", "Escape")
            time.sleep(1)
            for key in ("Tab", "Tab", "Tab", "Down", "Page_Down", "Tab", "Return"):
                screen.do("key", key)
            time.sleep(1)
            screen.do("key", "Escape")
            time.sleep(1)
            screen.do("key", "Escape")

            status, lines = screen.end()

            self.assertEqual(status, 0)
            self.assert_comes_out_again(screen.file, lines)
            inputs = json.loads(screen.file.read_text())["inputs"]
            for kind in ("touch", "pointer", "scroll", "key", "size", "isSeen", "frames", "send"):
                self.assertTrue(any(kind in one for one in inputs), kind)

    def test_is_whole_when_the_program_is_terminated(self):
        with RecordedWindow() as screen:
            screen.stand()
            screen.do("key", "Tab")
            screen.do("key", "Tab")
            screen.do("key", "Return")
            time.sleep(0.2)

            status, lines = screen.terminate()

            self.assertEqual(status, -signal.SIGTERM)
            self.assert_comes_out_again(screen.file, lines)
            self.assertEqual([path.name for path in screen.file.parent.iterdir()], [screen.file.name])

    def test_of_assistive_technology(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "recording.json"
            with desktop.Program("paywall", "--record", str(file)) as program:
                program.press("radio button", "Monthly, $14.99 per month")
                program.press("push button", "Compare Plans: Free vs Pro")
                program.wait_for_screen(desktop.COMPARISON)
                program.press("push button", "Close")
                program.wait_for_screen(desktop.PAYWALL)
                program.press("push button", "Subscribe Now")
                program.wait_for_event("delegate", operation="proUpsellViewController(_:didContinueWith:)")

            self.assertEqual([json.loads(line) for line in play(file).splitlines()], program.events)
            self.assertTrue(any("assist" in one for one in json.loads(file.read_text())["inputs"]))


if __name__ == "__main__":
    unittest.main()
