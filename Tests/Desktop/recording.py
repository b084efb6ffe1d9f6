"""What somebody does in a real window is recorded, and comes out again when it is played: event lines to the byte."""
import json
import pathlib
import signal
import subprocess
import tempfile
import threading
import time
import unittest

import desktop
import window


# As the tracker is told.
PAYWALL_TITLE, STORE_TITLE = "ProUpsell Phase 2: with Comparison List and Carousel Sept24", "Vela Pro Store Page"


class RecordedWindow(window.Screen):
    """A screen of its own with a window on it that records, until the end of the block."""

    def __init__(self, *options):
        self._folder = tempfile.TemporaryDirectory()
        self.file = pathlib.Path(self._folder.name) / "recording.json"
        super().__init__("1280x1000", "--size", "700x760", "--record", str(self.file), *options)
        self._lines = []
        self._reader = threading.Thread(target=self._read)
        self._reader.start()

    def _read(self):
        for line in self._program.stdout:
            self._lines.append(line)

    def __exit__(self, *_):
        self._program.terminate()
        self._reader.join()
        super().__exit__()
        self._folder.cleanup()

    def do(self, *command):
        self.ask("xdotool", *command)
        # Nobody does two things at once.
        time.sleep(0.12)

    def stand(self, title):
        """Until the first screen, whose title the tracker is told, has come; the keys are its own then."""
        self.do("windowfocus", "--sync", self.window())
        self.wait_for("tracker", operation="trackUpsellViewed", screenTitle=title)

    def wait_for(self, event, **details):
        """An event line with these details."""
        def found():
            return any(line["event"] == event and all(line.get(key) == value for key, value in details.items())
                       for line in map(json.loads, list(self._lines)))
        desktop.wait_for(lambda: f"the event {event} {details}; there were {self._lines}", found)

    def leave(self):
        """Presses Escape until the last screen has gone, and the program with it. One that comes while a screen moves does nothing."""
        def has_ended():
            self.do("key", "Escape")
            return self._program.poll() is not None
        desktop.wait_for("the program to end", has_ended)

    def end(self):
        """The exit status, and the event lines."""
        status = self._program.wait(window.TIMEOUT_S)
        self._reader.join()
        return status, b"".join(self._lines)

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
            screen.stand(STORE_TITLE)
            screen.do("mousemove", "--window", screen.window(), "350", "500")
            for button in ("5", "5", "5", "4"):
                screen.do("click", button)
            screen.do("mousedown", "1")
            for y in (490, 450, 380, 300):
                screen.do("mousemove", "--window", screen.window(), "350", str(y))
            screen.do("mouseup", "1")
            screen.do("windowsize", screen.window(), "520", "700")
            screen.do("key", "Escape")
            screen.wait_for("dismiss", controller="VelaProStorePageViewController")
            for key in ("Tab", "Tab", "Tab", "Down", "Page_Down", "Tab", "Return"):
                screen.do("key", key)
            screen.leave()

            status, lines = screen.end()

            self.assertEqual(status, 0)
            self.assert_comes_out_again(screen.file, lines)
            inputs = json.loads(screen.file.read_text())["inputs"]
            for kind in ("touch", "pointer", "scroll", "key", "size", "isSeen", "frames", "send"):
                self.assertTrue(any(kind in one for one in inputs), kind)

    def test_is_whole_when_the_program_is_terminated(self):
        with RecordedWindow() as screen:
            screen.stand(PAYWALL_TITLE)
            screen.do("key", "Tab")
            screen.do("key", "Tab")
            screen.do("key", "Return")

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
