#!/usr/bin/env python3
"""Measures what screens cost as their content grows: writes Docs/growth.svg and the tables of Docs/growth.md.

    Tools/plot_growth.py build/bin/Growth            measures and draws
    Tools/plot_growth.py --figures FILE              draws figures that were measured before, one line of JSON each
    Tools/plot_growth.py build/bin/Growth --save FILE  keeps them
"""

import argparse
import json
import subprocess
import sys
from pathlib import Path

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "growth"
matplotlib.rcParams["font.family"] = "DejaVu Sans"
matplotlib.rcParams["font.size"] = 8

from matplotlib import pyplot, ticker  # noqa: E402

DOCS = Path(__file__).resolve().parent.parent / "Docs"
ROUNDS = 3
TIMES = ("open_ms", "close_ms", "tap_ms", "frame_ms")

OPEN, FRAME, TAP, SLOPE, TEXT = "#1f4e9e", "#d9691e", "#2e8b57", "#c9c9c9", "#333333"
DASHES = ("-", "--", ":", "-.")

# Title of a panel, what is counted, and the series in it with their names where there are several.
PANELS = (
    ("Paywall", "plans", {"plans": ""}),
    ("Comparison", "features of one category", {"features": ""}),
    ("Comparison", "categories of five features", {"categories": ""}),
    ("Store page", "shelves", {"shelves": ""}),
    ("Paywall", "characters of one text",
     {"translation": "title, words", "words": "price, words", "unbroken": "price, no blanks", "devanagari": "price, Devanagari"}),
    ("Paywalls", "open at once", {"windows": "a window each", "presented": "one over another"}),
)


def measured(program):
    """The figures of each point, of several rounds the least disturbed."""
    listed = subprocess.run([program], check=True, capture_output=True, text=True).stdout
    points = [line.split("\t")[:2] for line in listed.splitlines()]
    figures = []
    for name, count in points:
        rounds = [json.loads(subprocess.run([program, name, count], check=True, capture_output=True, text=True).stdout)
                  for _ in range(ROUNDS)]
        best = dict(rounds[0])
        for key in TIMES:
            if key in best:
                best[key] = min(one[key] for one in rounds)
        figures.append(best)
        print(json.dumps(best), file=sys.stderr)
    return figures


def series(figures, name):
    return sorted((one for one in figures if one["series"] == name), key=lambda one: one["count"])


def draw_lines(axes, points, dash, label):
    def line(key, colour, points):
        points = [one for one in points if key in one]
        axes.plot([one["count"] for one in points], [one[key] for one in points], dash, color=colour, linewidth=1.4,
                  marker="o", markersize=2.4)
    line("open_ms", OPEN, points)
    line("frame_ms", FRAME, points)
    line("tap_ms", TAP, points)
    if label:
        axes.plot([], [], dash, color=TEXT, linewidth=1.2, label=label)


def draw_panel(axes, figures, panel):
    title, unit, names = panel
    for dash, (name, label) in zip(DASHES, names.items()):
        draw_lines(axes, series(figures, name), dash, label)
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.set_ylim(0.08, 2000)
    last = max((one for name in names for one in series(figures, name)), key=lambda one: (one["count"], one["open_ms"]))
    low, high = axes.get_xlim()
    axes.plot([low, high], [last["open_ms"] * at / last["count"] for at in (low, high)], color=SLOPE, linewidth=0.8, zorder=0)
    axes.set_xlim(low, high)
    axes.set_title(title, loc="left", fontsize=9, fontweight="bold", color=TEXT)
    axes.set_xlabel(unit, color=TEXT)
    axes.xaxis.set_major_formatter(ticker.FuncFormatter(lambda value, _: f"{value:,.0f}"))
    axes.yaxis.set_major_formatter(ticker.FuncFormatter(lambda value, _: f"{value:g}"))
    axes.xaxis.set_minor_formatter(ticker.NullFormatter())
    axes.minorticks_off()
    axes.grid(True, which="major", color="#eeeeee", linewidth=0.6)
    axes.set_axisbelow(True)
    for side in ("top", "right"):
        axes.spines[side].set_visible(False)
    for side in ("left", "bottom"):
        axes.spines[side].set_color("#999999")
    axes.tick_params(colors=TEXT, width=0.5, length=2)
    if any(names.values()):
        axes.legend(loc="upper left", frameon=False, fontsize=7, handlelength=2.2, borderaxespad=0.2)


def draw(figures):
    figure, grid = pyplot.subplots(2, 3, figsize=(10, 6.2), facecolor="white")
    for axes, panel in zip(grid.flat, PANELS):
        draw_panel(axes, figures, panel)
    for row in grid:
        row[0].set_ylabel("CPU time, ms", color=TEXT)
    keys = (("open, down to the first frame", OPEN, 1.4), ("a scrolled frame", FRAME, 1.4), ("a tap to the new frame", TAP, 1.4),
            ("twice the content, twice the time", SLOPE, 0.8))
    handles = [pyplot.Line2D([], [], color=colour, linewidth=width) for _, colour, width in keys]
    figure.legend(handles, [name for name, _, _ in keys], loc="lower center", ncol=4, frameon=False, fontsize=8)
    figure.tight_layout(rect=(0, 0.05, 1, 1), h_pad=1.6, w_pad=1.2)
    figure.savefig(DOCS / "growth.svg", metadata={"Date": None})


def number(value):
    return f"{value:.3g}" if value < 100 else f"{value:,.0f}"


def table(figures, panel):
    title, unit, names = panel
    points = [one for name in names for one in series(figures, name)]
    has_frames, has_taps = any("frame_ms" in one for one in points), any("tap_ms" in one for one in points)
    head = [f"{title.lower()}: {unit}", "open"] + ["a scrolled frame"] * has_frames + ["a tap"] * has_taps + ["close", "heap"]
    rows = []
    for name, label in names.items():
        for one in series(figures, name):
            cells = [f"{one['count']:,}" + (f" ({label})" if label else ""), number(one["open_ms"]) + " ms"]
            if has_frames:
                cells.append(number(one["frame_ms"]) + " ms" if "frame_ms" in one else "–")
            if has_taps:
                cells.append(number(one["tap_ms"]) + " ms" if "tap_ms" in one else "–")
            rows.append(cells + [number(one["close_ms"]) + " ms", number(one["heap_kB"] / 1000) + " MB"])
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)] + ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def write_tables(figures):
    page = DOCS / "growth.md"
    begin, end = "<!-- The tables are written by Tools/plot_growth.py. -->\n", "<!-- End of the tables. -->\n"
    text = page.read_text(encoding="utf-8")
    before, rest = text.split(begin)
    after = rest.split(end)[1]
    tables = "\n".join(table(figures, panel) for panel in PANELS)
    page.write_text(before + begin + "\n" + tables + "\n" + end + after, encoding="utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", nargs="?")
    parser.add_argument("--figures")
    parser.add_argument("--save")
    arguments = parser.parse_args()
    if arguments.figures:
        figures = [json.loads(line) for line in Path(arguments.figures).read_text(encoding="utf-8").splitlines()]
    elif arguments.program:
        figures = measured(arguments.program)
    else:
        parser.error("a program or a file with figures is wanted")
    if arguments.save:
        Path(arguments.save).write_text("".join(json.dumps(one) + "\n" for one in figures), encoding="utf-8")
    draw(figures)
    write_tables(figures)


if __name__ == "__main__":
    main()
