#!/usr/bin/env python3
"""What Benchmarks/Peers makes of the readings of its programs."""
import pathlib
import sys
import tempfile
import unittest
import unittest.mock

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Benchmarks" / "Peers"))

from Comparison import building, figures, machine, plot, report, rows, running  # noqa: E402

TAP = rows.Row("tap", "Tap", "CPU ms", "window", "tap", "tap_cpu_ms.p50", limit=0.5)
FIRST = rows.Row("first", "First frame", "ms", "window", "first", "first_ms", limit=0.8, quick_modes=("window",))


def taps(**readings: list[float | None]) -> figures.Rounds:
    """What each program printed for a tap, round by round; None where it failed."""
    return {(program, "tap"): [None if reading is None else {"tap_cpu_ms": {"p50": reading}} for reading in series]
            for program, series in readings.items()}


def compared(row: rows.Row, rounds: figures.Rounds, missing: list[str] | None = None) -> dict:
    setting = report.Setting({"processor": "Processor", "cores": 2, "kernel": "6.1", "distribution": "Debian"}, {"Qt": "6.4.2"}, 3, 10,
                             missing or [], {})
    return report.as_json(setting, [figures.compare(row, rounds)])


class Ratios(unittest.TestCase):
    def test_they_are_taken_round_by_round(self):
        row = figures.compare(TAP, taps(window=[1, 2, 4], quick=[4, 4, 4], widgets=[10, 10, 10]))
        self.assertEqual(row.ratio, figures.Spread(0.25, 0.5, 1.0))

    def test_a_slower_machine_in_one_round_changes_nothing(self):
        row = figures.compare(TAP, taps(window=[1, 3, 1], quick=[4, 12, 4], widgets=[10, 10, 10]))
        self.assertEqual(row.ratio, figures.Spread(0.25, 0.25, 0.25))

    def test_the_yardstick_is_the_qt_peer_with_the_lesser_median(self):
        row = figures.compare(TAP, taps(window=[1, 1, 1], quick=[2, 9, 9], widgets=[4, 4, 4], browser=[1, 1, 1]))
        self.assertEqual(row.better_peer, "widgets")
        self.assertEqual(row.ratio.median, 0.25)

    def test_the_better_way_of_qt_quick_counts(self):
        rounds = {("window", "first"): [{"first_ms": 30}], ("quick", "first"): [{"first_ms": 80}],
                  ("quick", "window"): [{"first_ms": 60}], ("widgets", "first"): [{"first_ms": 90}]}
        row = figures.compare(FIRST, rounds)
        self.assertEqual((row.figures["quick"].mode, row.ratio.median), ("window", 0.5))

    def test_a_round_without_one_of_the_two_has_no_ratio(self):
        row = figures.compare(TAP, taps(window=[1, None, 3], quick=[4, 4, None], widgets=[9, 9, 9]))
        self.assertEqual(row.ratio, figures.Spread(0.25, 0.25, 0.25))

    def test_nothing_is_divided_by_zero(self):
        self.assertIsNone(figures.compare(TAP, taps(window=[1], quick=[0], widgets=[0])).ratio)

    def test_figures_are_divided_into_the_unit(self):
        row = rows.Row("added", "Memory", "MB", "window", "warm", "added_pss_kb", divisor=1024)
        found = figures.compare(row, {("quick", "warm"): [{"added_pss_kb": 2048}]})
        self.assertEqual(found.figures["quick"].spread.median, 2)


class Limits(unittest.TestCase):
    def test_a_ratio_at_the_limit_holds(self):
        self.assertTrue(figures.compare(TAP, taps(window=[2], quick=[4], widgets=[5])).holds)

    def test_a_ratio_above_it_does_not(self):
        row = figures.compare(TAP, taps(window=[3], quick=[4], widgets=[5]))
        self.assertIs(row.holds, False)
        self.assertIn("does not hold", report.as_markdown(compared(TAP, taps(window=[3], quick=[4], widgets=[5]))))

    def test_a_missing_peer_is_never_beaten(self):
        comparison = compared(TAP, taps(window=[1], quick=[4]), missing=["widgets"])
        self.assertIsNone(comparison["rows"][0]["holds"])
        self.assertIn("not judged: no figure of Qt Widgets", report.as_markdown(comparison))
        self.assertIn("Missing, and so not compared: Qt Widgets.", report.as_markdown(comparison))

    def test_a_missing_browser_takes_nothing_from_the_verdict(self):
        self.assertTrue(figures.compare(TAP, taps(window=[1], quick=[4], widgets=[4])).holds)

    def test_without_ours_nothing_holds(self):
        comparison = compared(TAP, taps(quick=[4], widgets=[4]))
        self.assertIsNone(comparison["rows"][0]["ratio"])
        self.assertIn("not judged: no figure of ours in a window", report.as_markdown(comparison))

    def test_the_two_that_are_compared_stand_in_bold(self):
        comparison = compared(TAP, taps(window=[1], memory=[1], quick=[4], widgets=[5]))
        self.assertIn("| **1 <sub>1–1</sub>** | 1 <sub>1–1</sub> | **4 <sub>4–4</sub>** | 5 <sub>5–5</sub> |", report.as_markdown(comparison))

    def test_a_row_without_a_limit_is_not_judged(self):
        row = rows.Row("still", "Still", "CPU s/min", "window", "still", "cpu_s_per_min")
        rounds = {(name, "still"): [{"cpu_s_per_min": 1}] for name in ("window", "quick", "widgets")}
        self.assertEqual(report.verdict(compared(row, rounds)["rows"][0]), "")


class RunningInTurn(unittest.TestCase):
    RUNS = [("window", "tap"), ("quick", "tap"), ("window", "idle")]

    def started(self, answers: dict | None = None, rounds: int = 2):
        order, answers = [], answers or {}

        def start(program: str, mode: str) -> dict:
            order.append((program, mode))
            if (program, mode) in answers:
                raise running.Failure(answers[program, mode])
            return {"round": len(order)}

        return order, *running.take_rounds(self.RUNS, rounds, start, lambda line: None)

    def test_every_program_has_its_turn_in_every_round_after_one_that_does_not_count(self):
        order, found, _ = self.started()
        self.assertEqual(order, [*self.RUNS[:2], *self.RUNS, *self.RUNS])
        self.assertEqual([report["round"] for report in found["window", "tap"]], [3, 6])

    def test_a_failing_peer_is_named_and_the_others_go_on(self):
        _, found, failures = self.started({("quick", "tap"): "no fonts"})
        self.assertEqual(failures, {("quick", "tap"): "no fonts"})
        self.assertEqual(list(found), [("window", "tap"), ("window", "idle")])

    def test_a_failure_in_a_round_leaves_a_gap(self):
        _, found, failures = self.started({("window", "idle"): "stopped"})
        self.assertEqual(found["window", "idle"], [None, None])
        self.assertEqual(failures, {("window", "idle"): "stopped"})

    def test_a_program_that_ends_badly_has_failed_with_its_last_words(self):
        with self.assertRaisesRegex(running.Failure, "^no such mode: tap$"):
            running.run_program(["sh", "-c", "echo '{}'; echo 'no such mode: tap' >&2; exit 2"], pathlib.Path("."))

    def test_a_program_that_prints_no_report_has_failed(self):
        for output in ("", "hello", "[1]"):
            with self.assertRaisesRegex(running.Failure, "printed no report"):
                running.parse(0, output, "")

    def test_a_program_that_hangs_has_failed(self):
        with self.assertRaisesRegex(running.Failure, "took longer"):
            running.run_program(["sh", "-c", "exec sleep 60"], pathlib.Path("."), patience_s=0.05)

    def test_a_program_learns_when_it_was_started(self):
        answer = running.run_program(["sh", "-c", 'echo "{\\"start\\": $PEER_T0}"'], pathlib.Path("."))
        self.assertGreater(answer["start"], 0)


class WhoIsThere(unittest.TestCase):
    def commands(self, built: list[str], installed: set[str]) -> dict[str, list[str]]:
        with tempfile.TemporaryDirectory() as root:
            folders = building.Folders(pathlib.Path(root))
            for name in built:
                program = folders.programs / "bin" / name
                program.parent.mkdir(parents=True, exist_ok=True)
                program.touch(mode=0o755)
            with unittest.mock.patch("shutil.which", lambda name: name if name in installed else None):
                return building.commands(folders)

    def test_what_was_not_built_is_missing(self):
        self.assertEqual(list(self.commands(["OursInMemory", "WidgetsPeer"], set())), ["memory", "widgets"])

    def test_the_browser_needs_both_of_its_programs(self):
        self.assertEqual(list(self.commands([], {"node"})), [])
        self.assertEqual(list(self.commands([], {"node", "chromium-headless-shell"})), ["browser"])


class TheRows(unittest.TestCase):
    def test_every_program_takes_part_mode_by_mode(self):
        programs = ["window", "memory", "quick", "widgets", "browser"]
        self.assertEqual(rows.runs([TAP, FIRST]), [*((program, "tap") for program in programs),
                                                   *((program, "first") for program in programs), ("quick", "window")])

    def test_what_several_rows_need_is_run_once(self):
        found = rows.runs(rows.ROWS)
        self.assertEqual(len(found), len(set(found)))

    def test_the_promises_are_thirteen(self):
        self.assertEqual(sum(row.limit is not None for row in rows.ROWS), 13)


class ThePlot(unittest.TestCase):
    def test_bars_are_ratios_to_the_better_qt_peer_and_long_ones_are_cut(self):
        row = compared(TAP, taps(window=[1], quick=[4], widgets=[6], browser=[40]))["rows"][0]
        self.assertEqual([(bar.program, bar.ratio, bar.length) for bar in plot.bars(row)],
                         [("window", 0.25, 0.25), ("quick", 1, 1), ("widgets", 1.5, 1.5), ("browser", 10, plot.LONGEST)])

    def test_a_row_that_is_not_judged_is_not_drawn(self):
        self.assertEqual(plot.rows_to_draw(compared(TAP, taps(window=[1], quick=[4]))), [])


class TheMachine(unittest.TestCase):
    def test_the_processor_and_the_distribution_are_read(self):
        self.assertEqual(machine.processor("processor : 0\nmodel name\t: Some  Processor 3000\n"), "Some Processor 3000")
        self.assertEqual(machine.distribution('NAME="X"\nPRETTY_NAME="Debian GNU/Linux 12"\n'), "Debian GNU/Linux 12")

    def test_neither_its_name_nor_a_path_is_told(self):
        self.assertEqual(set(machine.describe()), {"processor", "cores", "kernel", "distribution"})


if __name__ == "__main__":
    unittest.main()
