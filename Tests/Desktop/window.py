"""The window itself, on screens of several sizes: how large it is, what it is called, and what the mouse finds in it."""
import os
import subprocess
import time
import unittest

PROGRAM, OFFERS = os.environ["PROUPSELLS_PROGRAM"], os.environ["PROUPSELLS_OFFERS"]
TIMEOUT_S = 30


class Screen:
    """A screen of its own with the program on it, until the end of the block."""

    def __init__(self, size, *options):
        reading, writing = os.pipe()
        self._server = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-noreset"], pass_fds=[writing],
                                        stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            display = ":" + answer.readline().strip()
        # Nobody reads these screens: a reader of another test may still listen on the session's bus, without answering.
        self._environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", DBUS_SESSION_BUS_ADDRESS="disabled:")
        self._program = subprocess.Popen([PROGRAM, "show", OFFERS, *options], env=self._environment, stdout=subprocess.PIPE)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in (self._program, self._server):
            process.terminate()
            process.wait()
        self._program.stdout.close()

    def ask(self, *command):
        return subprocess.run(command, env=self._environment, capture_output=True, text=True).stdout

    def window(self):
        deadline = time.monotonic() + TIMEOUT_S
        while not (found := self.ask("xdotool", "search", "--onlyvisible", "--name", "^ProUpsells$").split()):
            if time.monotonic() > deadline:
                raise AssertionError("there is no window called ProUpsells")
            time.sleep(0.02)
        return found[-1]

    def size(self):
        values = dict(line.split("=") for line in self.ask("xdotool", "getwindowgeometry", "--shell", self.window()).split())
        return int(values["WIDTH"]), int(values["HEIGHT"])

    def properties(self):
        return self.ask("xprop", "-id", self.window())


class Window(unittest.TestCase):
    def test_shows_the_paywall_on_the_hosts_screen(self):
        for size in ("1440x1000", "1920x1080"):
            with self.subTest(size=size), Screen(size) as screen:
                self.assertEqual(screen.size(), (960, 880))

    def test_is_never_larger_than_the_screen(self):
        for size in ("1024x700", "800x480"):
            for options in ((), ("--scale", "2"), ("--size", "2000x2000")):
                with self.subTest(size=size, options=options), Screen(size, *options) as screen:
                    width, height = screen.size()
                    self.assertLessEqual(width, int(size.split("x")[0]))
                    self.assertLessEqual(height, int(size.split("x")[1]))

    def test_is_as_large_as_size_and_scale_say(self):
        with Screen("1024x700", "--size", "375x800", "--scale", "2") as screen:
            self.assertEqual(screen.size(), (750, 1600))

    def test_ends_when_its_lines_are_lost(self):
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", DBUS_SESSION_BUS_ADDRESS="disabled:")
        with open("/dev/full", "w") as full:
            ended = subprocess.run([PROGRAM, "show", OFFERS], env=environment, stdout=full, stderr=subprocess.PIPE, text=True,
                                   timeout=TIMEOUT_S)
        self.assertEqual(ended.returncode, 2)
        self.assertRegex(ended.stderr, r"\Astandard output: /: .*\n\Z")

    def test_has_one_name_and_an_icon(self):
        with Screen("1440x1000") as screen:
            properties = screen.properties()
            self.assertIn('WM_NAME(STRING) = "ProUpsells"', properties)
            self.assertIn("_NET_WM_ICON(CARDINAL)", properties)


if __name__ == "__main__":
    unittest.main()
