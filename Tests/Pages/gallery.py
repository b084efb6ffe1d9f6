"""The page of a gallery in a real browser, opened as a file: filters, keys, the full view, two side by side, the slider."""
import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

from browser import Browser

PROGRAM, OFFERS = os.environ["PROUPSELLS_PROGRAM"], os.environ["PROUPSELLS_OFFERS"]
MATRIX = {"screens": ["paywall", "comparison"], "locales": ["en", "ar_XB"], "sizes": [[320, 568], [844, 390]], "textSizes": ["large"],
          "scale": 1}


class GalleryPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="gallery-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        (cls.folder / "matrix.json").write_text(json.dumps(MATRIX))
        offers = json.loads(pathlib.Path(OFFERS).read_text())
        offers["options"][1]["price"] = "$9.99"
        (cls.folder / "offers.json").write_text(json.dumps(offers))
        cls.make(0, OFFERS, "--out", cls.folder / "all")
        cls.make(1, cls.folder / "offers.json", "--out", cls.folder / "changes", "--compare", cls.folder / "all")
        cls.make(0, OFFERS, "--out", cls.folder / "same", "--compare", cls.folder / "all")

    @classmethod
    def make(cls, status, *arguments):
        done = subprocess.run([PROGRAM, "gallery", "--matrix", cls.folder / "matrix.json", *arguments], capture_output=True, text=True)
        if done.returncode != status:
            raise AssertionError(f"gallery ended with {done.returncode}: {done.stderr}")

    def page(self, name="all", **appearance):
        browser = Browser((self.folder / name / "index.html").as_uri(), **appearance)
        self.addCleanup(lambda: self.assertEqual(browser.complaints(), []))
        browser = self.enterContext(browser) if hasattr(self, "enterContext") else self.enter(browser)
        browser.wait_for(lambda: browser.evaluate("document.querySelectorAll('[role=option]').length > 0 || !nothing.hidden"))
        return browser

    def enter(self, browser):
        self.addCleanup(browser.__exit__)
        return browser

    def pictures(self, *words, name="all"):
        """How many pictures the gallery has that are of all these."""
        text = (self.folder / name / "index.html").read_text()
        begin = text.index('id="gallery">') + len('id="gallery">')
        rows = json.loads(text[begin:text.index("</script>", begin)])["pictures"]
        return sum(all(word in row for word in words) for row in rows)

    def count(self, browser):
        return browser.evaluate("document.getElementById('count').textContent")

    def shown(self, browser):
        return browser.evaluate("[...document.querySelectorAll('[role=option]')].filter(each => each.checkVisibility()).length")

    def focused(self, browser):
        return browser.evaluate("document.activeElement.getAttribute('aria-label') || document.activeElement.id")

    def tab_to(self, browser, condition):
        for _ in range(60):
            browser.key("Tab")
            if browser.evaluate(f"(focused => {condition})(document.activeElement)"):
                return
        self.fail("Tab does not come to " + condition)

    def focus_first_picture(self, browser):
        self.tab_to(browser, "focused.getAttribute('role') === 'option'")

    def test_every_picture_is_there(self):
        browser = self.page()
        self.assertEqual(self.count(browser), f"{self.pictures()} pictures")
        self.assertEqual(self.shown(browser), self.pictures())
        # They are fetched as they come into sight, and every one can be.
        self.assertLess(browser.evaluate("[...document.images].filter(each => each.complete && each.naturalWidth).length"), self.pictures())
        broken = browser.evaluate("""Promise.all([...document.querySelectorAll('[role=option] img')].map(each => {
            each.loading = 'eager';
            return each.decode().then(() => each.naturalWidth === Number(each.getAttribute('width')) ? null : each.src, () => each.src);
        })).then(all => all.filter(Boolean))""")
        self.assertEqual(broken, [])

    def test_filters_narrow_by_any_axis(self):
        browser = self.page()
        self.choose(browser, "dark")
        self.assertEqual(self.count(browser), f"{self.pictures('dark')} of {self.pictures()} pictures")
        self.choose(browser, "comparison")
        self.assertEqual(self.shown(browser), self.pictures("dark", "comparison"))
        self.choose(browser, "opening")
        self.assertEqual(self.shown(browser), 4)
        self.choose(browser, "844 × 390")
        self.assertEqual(self.shown(browser), 2)
        self.choose(browser, "ar_XB")
        self.assertEqual(self.shown(browser), 1)
        # What leads to nothing is told apart.
        self.assertIn("page 1", browser.evaluate("[...document.querySelectorAll('.chip.empty')].map(each => each.textContent)"))

    def choose(self, browser, text):
        self.assertTrue(browser.evaluate(f"""(() => {{
            const chip = [...document.querySelectorAll('.chip')].find(each => each.textContent === {json.dumps(text)});
            chip?.querySelector('input').click();
            return Boolean(chip);
        }})()"""), text)

    def test_filters_are_operated_by_keys_and_stand_in_the_address(self):
        browser = self.page()
        self.tab_to(browser, "focused.type === 'checkbox'")
        browser.key(" ")
        self.assertEqual(self.shown(browser), self.pictures("paywall"))
        self.assertIn("screen=paywall", browser.evaluate("location.hash"))

        browser.send("Page.reload")
        browser.wait_for(lambda: browser.evaluate("document.readyState === 'complete' && Boolean(document.querySelector('[role=option]'))"))

        self.assertEqual(self.shown(browser), self.pictures("paywall"))
        self.assertTrue(browser.evaluate("document.querySelector('.chip input').checked"))

    def test_search_finds_words_of_all_axes(self):
        browser = self.page()
        browser.key("/")
        self.assertEqual(self.focused(browser), "Search pictures")
        browser.send("Input.insertText", text="TURNING dark")
        self.assertEqual(self.shown(browser), 4)
        browser.send("Input.insertText", text=" nowhere")
        self.assertEqual(self.shown(browser), 0)
        self.assertIn("No picture is like that", browser.evaluate("nothing.textContent"))

    def test_arrows_go_from_picture_to_picture(self):
        browser = self.page()
        self.focus_first_picture(browser)
        names = [self.focused(browser)]
        for key in ["ArrowRight", "ArrowDown", "ArrowUp", "ArrowLeft", "End", "Home"]:
            browser.key(key)
            names.append(self.focused(browser))
        self.assertEqual(names[0], "paywall: page 1, en, 320 × 568, large, light")
        self.assertEqual(names[1], "paywall: plan pro.monthly, en, 320 × 568, large, light")
        self.assertNotIn(names[2], names[:2])
        self.assertEqual(names[3], names[1])
        self.assertEqual(names[4], names[0])
        self.assertTrue(names[5].startswith("comparison: "), names[5])
        self.assertEqual(names[6], names[0])
        # The pictures are one stop of Tab.
        browser.key("Tab")
        self.assertNotEqual(browser.evaluate("document.activeElement.getAttribute('role')"), "option")

    def test_enter_shows_the_full_picture_and_escape_leads_back(self):
        browser = self.page()
        self.focus_first_picture(browser)
        browser.key("Enter")
        self.assertTrue(browser.evaluate("viewer.dialog.open"))
        self.assertEqual(browser.evaluate("viewer.dialog.querySelector('h2').textContent"), "paywall: page 1")
        self.see(browser, "left")
        self.assertFalse(browser.evaluate("document.getElementById('right').checkVisibility()"))

        browser.key("ArrowRight")
        self.assertEqual(browser.evaluate("viewer.dialog.querySelector('h2').textContent"), "paywall: plan pro.monthly")
        browser.key("f")
        browser.wait_for(lambda: browser.evaluate("document.querySelector('#left img').getBoundingClientRect().width") == 320)
        tree = browser.evaluate("document.getElementById('tree').href")
        self.assertIn("plan.pro.monthly", pathlib.Path(tree.removeprefix("file://")).read_text())

        browser.key("Escape")
        self.assertFalse(browser.evaluate("viewer.dialog.open"))
        browser.wait_for(lambda: self.focused(browser) == "paywall: plan pro.monthly, en, 320 × 568, large, light")

    def see(self, browser, side):
        """Waits until a picture is painted."""
        browser.wait_for(lambda: browser.evaluate(
            f"(image => image.complete && image.naturalWidth > 0 && image.getBoundingClientRect().width > 40)(document.querySelector('#{side} img'))"))

    def test_two_that_are_marked_stand_side_by_side(self):
        browser = self.page()
        self.focus_first_picture(browser)
        browser.key(" ")
        browser.key("ArrowRight", 3)
        browser.key(" ")
        self.assertEqual(browser.evaluate("document.querySelectorAll('[aria-selected=true]').length"), 2)
        browser.key("c")
        self.see(browser, "left")
        self.see(browser, "right")
        captions = browser.evaluate("[...document.querySelectorAll('figcaption')].map(each => each.textContent)")
        self.assertEqual(captions, ["page 1", "page 2"])
        apart = browser.evaluate("""(() => {
            const [left, right] = ['left', 'right'].map(id => document.querySelector(`#${id} img`).getBoundingClientRect());
            return right.left - left.right;
        })()""")
        self.assertGreater(apart, 0)

    def test_a_third_mark_takes_the_place_of_the_first(self):
        browser = self.page()
        self.focus_first_picture(browser)
        for _ in range(3):
            browser.key(" ")
            browser.key("ArrowRight")
        marked = browser.evaluate("[...document.querySelectorAll('[aria-selected=true]')].map(each => each.querySelector('b').textContent)")
        self.assertEqual(marked, ["plan pro.monthly", "turning"])

    def test_the_slider_uncovers_one_of_two(self):
        browser = self.page()
        self.focus_first_picture(browser)
        browser.key("Enter")
        browser.key("3")
        self.see(browser, "left")
        self.see(browser, "right")
        self.assertEqual(self.focused(browser), "How much of the first picture is seen")
        self.assertEqual(self.uncovered(browser), 50)
        browser.key("ArrowRight", 10)
        self.assertEqual(self.uncovered(browser), 60)

        # Light on the left, dark on the right.
        place = browser.evaluate("(({ left, top, width, height }) => [left, top, width, height])(document.querySelector('.sides').getBoundingClientRect())")
        below = place[1] + place[3] * 0.98
        self.assertGreater(min(browser.colour(place[0] + place[2] * 0.55, below)), 200)
        self.assertLess(max(browser.colour(place[0] + place[2] * 0.65, below)), 60)

        x, y = place[0] + place[2] * 0.25, place[1] + place[3] / 2
        browser.mouse("mousePressed", place[0] + place[2] / 2, y)
        browser.mouse("mouseMoved", x, y)
        browser.mouse("mouseReleased", x, y)
        self.assertAlmostEqual(self.uncovered(browser), 25, delta=1)
        self.assertLess(max(browser.colour(place[0] + place[2] * 0.55, below)), 60)
        rects = browser.evaluate("['left', 'right'].map(id => document.querySelector(`#${id} img`).getBoundingClientRect().toJSON())")
        self.assertEqual(rects[0], rects[1])

    def uncovered(self, browser):
        """How many hundredths of the first picture are seen."""
        clip = browser.evaluate("getComputedStyle(document.getElementById('left')).clipPath")
        return 100 - float(re.fullmatch(r"inset\(0px ([\d.]+)% 0px 0px\)", clip)[1])

    def test_changes_are_shown_before_and_after_with_words(self):
        browser = self.page("changes")
        self.assertEqual(self.count(browser), f"{self.pictures('paywall', name='changes')} changes")
        self.focus_first_picture(browser)
        self.assertIn("$9.99", self.focused(browser))
        browser.key("Enter")
        self.see(browser, "left")
        self.see(browser, "right")
        self.assertEqual(browser.evaluate("[...document.querySelectorAll('figcaption')].map(each => each.textContent)"), ["Before", "After"])
        self.assertIn("/before/", browser.evaluate("document.querySelector('#left img').src"))
        self.assertIn('instead of "Monthly, $14.99 per month"', browser.evaluate("words.textContent"))
        browser.key("Escape")
        self.tab_to(browser, "focused.id === 'search'")  # from the pictures round to the head
        browser.evaluate("document.getElementById('show-all').click()")
        self.assertEqual(self.count(browser), f"{self.pictures()} pictures")

    def test_no_change_is_said_so(self):
        browser = self.page("same")
        self.assertEqual(self.count(browser), "0 changes")
        self.assertIn("Nothing has changed", browser.evaluate("nothing.textContent"))

    def test_it_follows_light_and_dark(self):
        def background(browser):
            return browser.evaluate("getComputedStyle(document.body).backgroundColor")

        browser = self.page(dark=True)
        self.assertEqual(background(browser), "rgb(15, 19, 21)")
        browser.appear(dark=False)
        self.assertEqual(background(browser), "rgb(255, 255, 255)")
        browser.evaluate("document.getElementById('appearance').click()")
        self.assertEqual(background(browser), "rgb(15, 19, 21)")

    def test_a_narrow_window_needs_no_sideways_scrolling(self):
        browser = self.page(width=360, height=740)
        self.assertLessEqual(browser.evaluate("document.documentElement.scrollWidth"), 360)
        self.focus_first_picture(browser)
        browser.key("Enter")
        browser.key("2")
        self.see(browser, "left")
        self.see(browser, "right")
        self.assertLessEqual(browser.evaluate("viewer.dialog.scrollWidth"), 360)

    def test_everything_has_a_name_and_a_role(self):
        browser = self.page()
        nodes = browser.send("Accessibility.getFullAXTree")["nodes"]
        roles = {"button", "checkbox", "searchbox", "option", "listbox", "slider", "combobox", "link"}
        nameless = [node["role"]["value"] for node in nodes
                    if not node["ignored"] and node["role"]["value"] in roles and not node.get("name", {}).get("value")]
        self.assertEqual(nameless, [])
        self.assertEqual(sum(node["role"]["value"] == "option" for node in nodes if not node["ignored"]), self.pictures())
        status = [node for node in nodes if node["role"]["value"] == "status"]
        self.assertEqual(len(status), 1)

    def test_two_thousand_pictures_are_laid_out_at_once_and_scroll(self):
        page = (self.folder / "all" / "index.html").read_text()
        begin = page.index('id="gallery">') + len('id="gallery">')
        end = page.index("</script>", begin)
        data = json.loads(page[begin:end])
        data["pictures"] = [[*row[:2], f"{row[2]}-{copy}", *row[3:]] for copy in range(1 + 2000 // len(data["pictures"])) for row in data["pictures"]]
        (self.folder / "all" / "large.html").write_text(page[:begin] + json.dumps(data) + page[end:])
        browser = Browser((self.folder / "all" / "large.html").as_uri())
        self.enter(browser)
        self.assertEqual(self.count(browser), f"{len(data['pictures']):,} pictures")
        self.assertGreaterEqual(len(data["pictures"]), 2000)
        # A screenful a frame. What counts is the page's own work; how long a frame takes depends on who else is at work.
        frames = 60
        before_s = self.processor_time_s(browser)
        browser.evaluate(f"""new Promise(resolve => {{
            let left = {frames};
            const step = () => {{
                scrollBy(0, 700);
                left-- ? requestAnimationFrame(step) : resolve();
            }};
            requestAnimationFrame(step);
        }})""")
        self.assertGreater(browser.evaluate("scrollY"), 10000)
        self.assertLess((self.processor_time_s(browser) - before_s) / frames, 0.06)
        filtering_s = browser.evaluate("(begin => { document.querySelector('.chip input').click(); document.body.offsetHeight; return performance.now() - begin; })(performance.now())") / 1000
        self.assertLess(filtering_s, 0.5)

    def processor_time_s(self, browser):
        """Of the thread that answers the person; pictures are decoded beside it."""
        browser.send("Performance.enable")
        return next(metric["value"] for metric in browser.send("Performance.getMetrics")["metrics"] if metric["name"] == "ThreadTime")


if __name__ == "__main__":
    unittest.main()
