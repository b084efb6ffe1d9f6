"""The paywall inside the user interface of other programs: a dialog of widgets and an item of a Qt Quick scene."""
import os
import pathlib
import subprocess
import unittest

import pyatspi

import desktop
import trees

PROGRAMS = pathlib.Path(desktop.PROGRAM).parent
EXPECTED = pathlib.Path(__file__).parent / "expected" / "shop.tree"
MONTHLY = "Monthly, $14.99 per month"
PAGER = ("slider", "Pro features")


def click(x, y):
    subprocess.run(["xdotool", "mousemove", "--sync", str(x), str(y), "click", "1"], check=True)


class WidgetsShop(desktop.Host):
    """Examples/Widgets: its one button opens a dialog."""

    def __init__(self):
        super().__init__([PROGRAMS / "WidgetsExample"], "Pro")

    def open(self):
        shop = self.window("Shop")
        subprocess.run(["xdotool", "windowfocus", "--sync", shop, "key", "space"], check=True)
        super().open()


class QuickShop(desktop.Host):
    """Examples/Quick: whoever clicks into the middle of its window sees an item."""

    def __init__(self):
        # What is printed comes as a warning of Qt's. No graphics card here.
        super().__init__(["sh", "-c", 'exec "$0" 2>&1', PROGRAMS / "QuickExample"], "Shop", QT_QUICK_BACKEND="software")

    def open(self):
        window = self.window()
        subprocess.run(["xdotool", "windowfocus", "--sync", window, "mousemove", "--window", window, "187", "400", "click", "1"],
                       check=True)
        super().open()
        desktop.rest_pointer_on_header()


class Shops:
    """What holds of either."""
    maxDiff = None

    def show(self):
        return self.enterContext(self.Shop())

    def test_tells_the_paywall_as_a_window_of_its_own_does(self):
        shop = self.show()

        def on_first_page():
            return shop.find(*PAGER).queryValue().currentValue == 1

        def read():
            told = on_first_page() and list(trees.lines(shop.dialog()))
            return on_first_page() and told

        told = desktop.wait_for("the first page", read)
        if os.environ.get("PROUPSELLS_RENEW"):
            EXPECTED.write_text("\n".join(told) + "\n", encoding="utf-8")
        self.assertEqual(told, EXPECTED.read_text(encoding="utf-8").splitlines())

    def test_sells_the_monthly_plan_to_a_keyboard_alone(self):
        shop = self.show()
        shop.take_keys()

        while shop.press_and_hear_focus("Tab")[0] != "radio button":
            pass
        while shop.press_and_hear_focus("Down")[1] != MONTHLY:
            pass
        shop.ear.wait_for("object:state-changed:checked", name=MONTHLY, is_on=True)
        shop.tab_to("push button", "Subscribe Now")
        desktop.press("Return")

        shop.wait_for_line(self.prefix + "bought pro.monthly")
        shop.wait_for_line(self.prefix + "closed: purchased")

    def test_sells_the_plan_that_a_client_pressed(self):
        shop = self.show()

        shop.press("radio button", MONTHLY)
        shop.ear.wait_for("object:state-changed:checked", name=MONTHLY, is_on=True)
        shop.press("push button", "Subscribe Now")

        shop.wait_for_line(self.prefix + "bought pro.monthly")

    def test_is_where_it_says(self):
        shop = self.show()

        place = shop.find("push button", "Restore Purchases").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        click(place.x + place.width // 2, place.y + place.height // 2)

        shop.wait_for_line(self.prefix + "restore")

    def test_gives_the_focus_to_a_client(self):
        shop = self.show()
        shop.take_keys()
        shop.ear.forget()

        self.assertTrue(shop.find("push button", "Terms of Service").queryComponent().grabFocus())

        shop.ear.wait_for("object:state-changed:focused", name="Terms of Service", is_on=True)
        self.assertTrue(shop.find("push button", "Terms of Service").getState().contains(pyatspi.STATE_FOCUSED))

    def test_is_left_by_escape(self):
        shop = self.show()
        shop.take_keys()

        desktop.press("Escape")

        shop.wait_for_line(self.prefix + "closed: cancelled")
        desktop.wait_for("no paywall", lambda: shop.dialog() is None)


class Widgets(Shops, unittest.TestCase):
    Shop, prefix = WidgetsShop, ""


class Quick(Shops, unittest.TestCase):
    Shop, prefix = QuickShop, "qml: "


if __name__ == "__main__":
    unittest.main(verbosity=2)
