"""Somebody with a keyboard alone buys the monthly plan, opens and closes both other screens and leaves."""
import unittest

import desktop

MONTHLY = "Monthly, $14.99 per month"


class Walk(unittest.TestCase):
    def test_buys_the_monthly_plan(self):
        with desktop.Program() as program:
            program.take_keys()

            self.choose_monthly(program)
            program.tab_to("push button", "Subscribe Now")
            desktop.press("Return")

            sold = program.wait_for_event("delegate", operation="proUpsellViewController(_:didContinueWith:)")
            self.assertEqual(sold["option"]["SKU"], "pro.monthly")

    # Of a group of radio buttons Tab meets the one that is checked.
    def choose_monthly(self, program):
        for _ in range(60):
            role, name = program.press_and_hear_focus("Tab")
            if role == "radio button":
                break
        while name != MONTHLY:
            role, name = program.press_and_hear_focus("Down")
        program.ear.wait_for("object:state-changed:checked", name=MONTHLY, is_on=True)

    def test_opens_and_closes_the_comparison_and_leaves(self):
        with desktop.Program() as program:
            program.take_keys()

            program.tab_to("push button", "Compare Plans: Free vs Pro")
            desktop.press("Return")
            program.wait_for_screen(desktop.COMPARISON)
            program.tab_to("push button", "Close")
            program.ear.forget()
            desktop.press("space")
            program.wait_for_screen(desktop.PAYWALL)
            program.ear.wait_for("object:state-changed:focused", name="Compare Plans: Free vs Pro", is_on=True)
            desktop.press("Escape")

            self.assertEqual(program.wait_for_end(), 0)

    def test_closes_the_store_and_leaves(self):
        with desktop.Program("store") as program:
            program.take_keys()

            desktop.press("Escape")
            program.wait_for_screen(desktop.PAYWALL)
            program.tab_to("push button", "Close")
            desktop.press("Return")

            self.assertEqual(program.wait_for_end(), 0)


if __name__ == "__main__":
    unittest.main(verbosity=2)
