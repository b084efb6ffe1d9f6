"""The program in a real window, as somebody at a desktop meets it: its event lines, its keys, and what the accessibility bus has to
say about it. Every wait is for something to be so, for TIMEOUT_S at most."""
import json
import os
import subprocess
import threading
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import GLib  # noqa: E402
import pyatspi  # noqa: E402

TIMEOUT_S = 30
POLL_MS = 20
PROGRAM = os.environ["PROUPSELLS_PROGRAM"]
OFFERS = os.environ["PROUPSELLS_OFFERS"]
PAYWALL, COMPARISON, STORE = "Choose Your Plan", "Compare Plans", "Marwick Folio Pro"
SCREENS = {"paywall": PAYWALL, "comparison": COMPARISON, "store": STORE}
EVENTS = ["object:state-changed", "object:children-changed", "object:property-change", "window:activate"]


class Missing(AssertionError):
    """Something did not come to be in time."""


def wait_for(what, condition):
    """Returns the first true answer of `condition`, which is asked again and again while events come in."""
    context = GLib.MainContext.default()
    source = GLib.timeout_add(POLL_MS, lambda: True)
    deadline = time.monotonic() + TIMEOUT_S
    try:
        while not (answer := condition()):
            if time.monotonic() > deadline:
                raise Missing(f"waited {TIMEOUT_S} s for {what() if callable(what) else what}")
            context.iteration(True)
        return answer
    finally:
        GLib.source_remove(source)


def press(key):
    subprocess.run(["xdotool", "key", "--clearmodifiers", key], check=True)


def rest_pointer_on_header():
    """Where the next window has its header: no page turns by itself then, however long a test takes."""
    subprocess.run(["xdotool", "mousemove", "--sync", "200", "150"], check=True)


class Heard:
    """An event as it came in: its type, its numbers, its value, and what it is about."""

    def __init__(self, event):
        self.type = str(event.type)
        self.is_on = event.detail1 != 0
        self.index = event.detail1
        self.role = event.source.getRoleName()
        self.name = event.source.name
        self.value = event.any_data
        if isinstance(self.value, pyatspi.Accessibility.Accessible):
            self.value = None

    def __repr__(self):
        return f"{self.type} {self.index} of {self.role} '{self.name}', {self.value}"


class Ear:
    """Hears every event of the kinds EVENTS that an object on the bus still answers for."""

    def __init__(self):
        self.heard = []
        pyatspi.Registry.registerEventListener(self._hear, *EVENTS)

    def close(self):
        pyatspi.Registry.deregisterEventListener(self._hear, *EVENTS)

    def _hear(self, event):
        try:
            self.heard.append(Heard(event))
        except gi.repository.GLib.Error:
            pass  # gone since

    def all(self, type, **wanted):
        """Of the type, or a kind of it, with these attributes."""
        return [heard for heard in self.heard
                if heard.type.startswith(type) and all(getattr(heard, name) == value for name, value in wanted.items())]

    def wait_for(self, type, **wanted):
        return wait_for(lambda: f"{type} {wanted}; heard {self.heard[-20:]}", lambda: self.all(type, **wanted))[-1]

    def forget(self):
        self.heard.clear()


class Host:
    """A program with a window, and what a person and a client of the bus do with its paywall, until the end of the block."""

    def __init__(self, command, window, errors=None, **environment):
        """`window` is the title of the one that the paywall stands in; `errors` is a file for standard error."""
        self.ear = Ear()
        self.lines = []
        self._window_title = window
        # Qt asks the session whether anybody reads the screen; here somebody does.
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", **environment)
        self._process = subprocess.Popen(command, env=environment, stdout=subprocess.PIPE, stderr=errors, text=True)
        self._reader = threading.Thread(target=self._read)
        self._reader.start()

    def _read(self):
        for line in self._process.stdout:
            self.lines.append(line.rstrip("\n"))

    def open(self):
        """Brings the first screen about, and waits for it."""
        self.wait_for_screen(PAYWALL)

    def __enter__(self):
        try:
            self.open()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        self._reader.join()
        self._process.stdout.close()
        self.ear.close()

    def wait_for_line(self, line):
        wait_for(lambda: f"the line '{line}'; there were {self.lines}", lambda: line in self.lines)

    def wait_for_screen(self, name):
        """The dialog of this name, once it stands."""
        def standing():
            dialog = self.dialog()
            stands = dialog and dialog.name == name and not dialog.getState().contains(pyatspi.STATE_BUSY)
            return dialog if stands else None
        return wait_for(lambda: f"the screen '{name}'; there is {self.dialog()}", standing)

    def wait_for_end(self):
        """The exit status."""
        return wait_for("the program to end", lambda: self._process.poll() is not None and [self._process.returncode])[0]

    def window(self, title=None):
        """As the display numbers it; the paywall's where no title is given."""
        return wait_for("a window", lambda: self._windows(title or self._window_title))[-1]

    def _windows(self, title):
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self._process.pid), "--name", f"^{title}$"],
                              capture_output=True, text=True).stdout.split()

    # --- Keys ---

    def take_keys(self):
        subprocess.run(["xdotool", "windowfocus", "--sync", self.window()], check=True)
        self.ear.wait_for("window:activate")
        self.ear.wait_for("object:state-changed:focused", is_on=True)

    def press_and_hear_focus(self, key):
        """Where the focus has gone: role and name."""
        self.ear.forget()
        press(key)
        focused = self.ear.wait_for("object:state-changed:focused", is_on=True)
        return focused.role, focused.name

    def tab_to(self, role, name):
        for _ in range(60):
            if self.press_and_hear_focus("Tab") == (role, name):
                return
        raise Missing(f"Tab does not lead to {role} '{name}'")

    # --- What is told ---

    def application(self):
        desktop = pyatspi.Registry.getDesktop(0)
        return next((one for one in desktop if one and one.get_process_id() == self._process.pid), None)

    def dialog(self):
        """The screen's, which is one among whatever else the program tells of; none before it is there."""
        application = self.application()
        is_screen = lambda one: one.getRoleName() == "dialog" and one.name in SCREENS.values()
        return application and pyatspi.findDescendant(application, is_screen)

    def find(self, role, name):
        """What is told under this role and name, which must be there once."""
        def found():
            dialog = self.dialog()
            return dialog and pyatspi.findAllDescendants(dialog, lambda one: (one.getRoleName(), one.name) == (role, name))
        elements = wait_for(f"{role} '{name}'", found)
        assert len(elements) == 1, f"{role} '{name}' is there {len(elements)} times"
        return elements[0]

    def act(self, role, name, action):
        actions = self.find(role, name).queryAction()
        names = [actions.getName(index) for index in range(actions.nActions)]
        assert action in names, f"{role} '{name}' offers {names}"
        assert actions.doAction(names.index(action))

    def press(self, role, name):
        self.act(role, name, "Press")


class Program(Host):
    """`proupsells show --start SCREEN`."""

    def __init__(self, screen="paywall", *options, offers=OFFERS, errors=None):
        super().__init__([PROGRAM, "show", offers, "--start", screen, "--size", "375x800", *options], "ProUpsells", errors)
        self._screen = SCREENS[screen]

    def open(self):
        self.wait_for_screen(self._screen)

    def dialog(self):
        application = self.application()
        frame = application[0] if application and application.childCount else None
        return frame[0] if frame and frame.childCount else None

    @property
    def events(self):
        return [json.loads(line) for line in self.lines]

    def wait_for_event(self, event, **details):
        """The first event line with these details."""
        def found():
            return next((line for line in self.events
                         if line["event"] == event and all(line.get(key) == value for key, value in details.items())), None)
        return wait_for(lambda: f"the event {event} {details}; there were {self.events}", found)
