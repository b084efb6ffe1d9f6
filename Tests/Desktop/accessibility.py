"""An independent client of the accessibility bus reads the three screens, operates their controls and hears what changes.

PROUPSELLS_RENEW=1 writes the files in expected/ instead of comparing with them."""
import os
import pathlib
import subprocess
import unittest

import pyatspi

import desktop
import trees

EXPECTED = pathlib.Path(__file__).parent / "expected"
STATE, NAME, VALUE = "object:state-changed", "object:property-change:accessible-name", "object:property-change:accessible-value"
CHECKED, EXPANDED, FOCUSED = f"{STATE}:checked", f"{STATE}:expanded", f"{STATE}:focused"
COME, GONE = "object:children-changed:add", "object:children-changed:remove"
MONTHLY, DISCLAIMER = "Monthly, $14.99 per month", "Payment will be made immediately."
PAGER = ("slider", "Pro features")


class Judge(unittest.TestCase):
    maxDiff = None

    def show(self, screen="paywall"):
        return self.enterContext(desktop.Program(screen))

    def assert_once(self, program, type, **wanted):
        program.ear.wait_for(type, **wanted)
        self.assertEqual(len(program.ear.all(type, **wanted)), 1, program.ear.heard)

    def assert_tree(self, name, told):
        file = EXPECTED / f"{name}.tree"
        if os.environ.get("PROUPSELLS_RENEW"):
            file.write_text("\n".join(told) + "\n", encoding="utf-8")
        self.assertEqual(told, file.read_text(encoding="utf-8").splitlines())


class Paywall(Judge):
    def test_is_told_as_a_dialog_of_controls(self):
        program = self.show()

        def on_first_page():
            return program.find(*PAGER).queryValue().currentValue == 1

        def read():
            told = on_first_page() and list(trees.lines(program.dialog()))
            return on_first_page() and told

        self.assert_tree("paywall", desktop.wait_for("the first page", read))

    def test_tells_which_plan_is_chosen_and_what_that_changes(self):
        program = self.show()
        program.ear.forget()

        program.press("radio button", MONTHLY)

        self.assert_once(program, CHECKED, name=MONTHLY, is_on=True)
        self.assert_once(program, CHECKED, role="radio button", is_on=False)
        self.assert_once(program, NAME, role="push button", value="Subscribe Now")
        self.assert_once(program, NAME, role="label", value=DISCLAIMER)

    def test_sells_the_plan_that_was_pressed(self):
        program = self.show()

        program.press("radio button", MONTHLY)
        program.ear.wait_for(CHECKED, name=MONTHLY, is_on=True)
        program.press("push button", "Subscribe Now")

        sold = program.wait_for_event("delegate", operation="proUpsellViewController(_:didContinueWith:)")
        self.assertEqual(sold["option"]["SKU"], "pro.monthly")

    def test_turns_its_pages(self):
        program = self.show()
        self.assertTrue(program.find(*PAGER).queryComponent().grabFocus())  # so that no page turns by itself
        program.ear.forget()

        page = program.find(*PAGER).queryValue().currentValue
        program.act(*PAGER, "Increase")

        self.assert_once(program, VALUE, name=PAGER[1])
        self.assertEqual(program.find(*PAGER).queryValue().currentValue, page + 1)

    def test_answers_for_its_links(self):
        program = self.show()

        for name, operation in [("Terms of Service", "proUpsellViewControllerDidTapTermsOfService(_:)"),
                                ("Privacy Policy", "proUpsellViewControllerDidTapPrivacyPolicy(_:)"),
                                ("Restore Purchases", "proUpsellViewControllerDidTapRestore(_:)")]:
            program.press("push button", name)
            program.wait_for_event("delegate", operation=operation)

    def test_closes(self):
        program = self.show()

        program.press("push button", "Close")

        self.assertEqual(program.wait_for_end(), 0)

    def test_tells_where_the_focus_goes_and_takes_it_from_a_client(self):
        program = self.show()
        program.take_keys()
        self.assertTrue(program.dialog().getState().contains(pyatspi.STATE_FOCUSED))

        role, name = program.press_and_hear_focus("Tab")
        self.assertTrue(program.find(role, name).getState().contains(pyatspi.STATE_FOCUSED))
        program.ear.forget()
        self.assertTrue(program.find("push button", "Terms of Service").queryComponent().grabFocus())

        self.assert_once(program, FOCUSED, name=name, is_on=False)
        self.assert_once(program, FOCUSED, name="Terms of Service", is_on=True)

    def test_is_where_it_says_at_every_scale(self):
        for scale in "1", "1.5", "2":
            with self.subTest(scale=scale), desktop.Program("paywall", "--scale", scale) as program:
                place = program.find("push button", "Privacy Policy").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
                subprocess.run(["xdotool", "mousemove", "--sync", str(place.x + place.width // 2), str(place.y + place.height // 2),
                                "click", "1"], check=True)
                program.wait_for_event("delegate", operation="proUpsellViewControllerDidTapPrivacyPolicy(_:)")


class Comparison(Judge):
    def test_is_told_as_a_dialog_of_categories(self):
        self.assert_tree("comparison", list(trees.lines(self.show("comparison").dialog())))

    def test_is_told_when_it_comes_and_when_it_goes(self):
        program = self.show()
        program.ear.forget()

        program.press("push button", "Compare Plans: Free vs Pro")
        program.wait_for_screen(desktop.COMPARISON)

        self.assert_once(program, COME, role="frame")
        self.assert_once(program, GONE, role="frame")
        program.ear.forget()
        program.press("push button", "Close")
        program.wait_for_screen(desktop.PAYWALL)
        self.assert_once(program, COME, role="frame")
        self.assert_once(program, GONE, role="frame")

    def test_tells_what_is_expanded_and_the_rows_that_come(self):
        program = self.show("comparison")
        category = next(one for one in program.dialog() if one.getState().contains(pyatspi.STATE_COLLAPSED))
        name = category.name
        program.ear.forget()

        program.press("push button", name)

        self.assert_once(program, EXPANDED, name=name, is_on=True)
        program.ear.wait_for(COME, role="dialog")
        self.assertTrue(program.find("push button", name).getState().contains(pyatspi.STATE_EXPANDED))
        program.press("push button", name)
        self.assert_once(program, EXPANDED, name=name, is_on=False)
        program.ear.wait_for(GONE, role="dialog")


class Store(Judge):
    def test_is_told_as_a_dialog_of_shelves(self):
        self.assert_tree("store", list(trees.lines(self.show("store").dialog())))

    def test_scrolls_to_a_shelf_when_asked(self):
        program = self.show("store")
        shelves = [one for one in program.dialog() if one.getRoleName() == "panel"]
        last = shelves[-1]
        name = last.name
        self.assertFalse(last.getState().contains(pyatspi.STATE_SHOWING))
        program.ear.forget()

        program.act("panel", name, "Scroll into view")

        self.assert_once(program, f"{STATE}:showing", role="panel", name=name, is_on=True)
        self.assertTrue(program.find("panel", name).getState().contains(pyatspi.STATE_SHOWING))
        program.find("heading", name)

    def test_leads_back_to_the_plans(self):
        program = self.show("store")

        program.press("push button", "Close")

        program.wait_for_screen(desktop.PAYWALL)


if __name__ == "__main__":
    unittest.main(verbosity=2)
