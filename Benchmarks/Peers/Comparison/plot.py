"""The comparison at one look: a bar for each program by the better Qt peer's, whose figure is 1."""
import dataclasses
import pathlib

from .rows import PROGRAMS

# Longer bars are cut off and say how long they are.
LONGEST = 2.0
DRAWN_PEERS = ("quick", "widgets", "browser")

OURS = "#0a8f92"
INK = "#1d1d1f"
QUIET = "#6e6e73"
LINES = "#d2d2d7"
GREYS = {"quick": "#8e8e93", "widgets": "#b4b4b9", "browser": "#dcdce0"}


@dataclasses.dataclass(frozen=True)
class Bar:
    program: str
    ratio: float

    @property
    def length(self) -> float: return min(self.ratio, LONGEST)
    @property
    def is_cut(self) -> bool: return self.ratio > LONGEST


def rows_to_draw(comparison: dict) -> list[dict]:
    """Those that are judged. Where a Qt peer is missing, the bar at 1 could belong to the worse one."""
    return [row for row in comparison["rows"] if row["holds"] is not None]


def bars(row: dict) -> list[Bar]:
    """Ours first. Who has no figure has no bar."""
    yardstick = row["figures"][row["better_qt_peer"]]["median"]
    peers = [Bar(name, row["figures"][name]["median"] / yardstick) for name in DRAWN_PEERS if name in row["figures"]]
    return [Bar(row["ours"], row["ratio"]["median"]), *peers]


def colour(program: str) -> str:
    return OURS if PROGRAMS[program].is_ours else GREYS[program]


def draw_row(axes, row: dict, top: float) -> None:
    """One unit high, from the top down."""
    y, thick, thin, gap = top + 0.2, 0.32, 0.1, 0.025
    axes.text(-0.03, y, row["title"], ha="right", va="center", color=INK, fontsize=9)
    for bar in bars(row):
        is_ours = PROGRAMS[bar.program].is_ours
        axes.barh(y, bar.length, thick if is_ours else thin, color=colour(bar.program), linewidth=0, zorder=2)
        if is_ours:
            axes.text(bar.length + 0.02, y, f"{bar.ratio:.2f}", va="center", color=OURS, fontsize=9, fontweight="bold", zorder=4)
        elif bar.is_cut:
            axes.text(LONGEST + 0.02, y, f"× {bar.ratio:.1f}" if bar.ratio < 9.95 else f"× {bar.ratio:.0f}", va="center", color=QUIET,
                      fontsize=6)
        y += (thick + thin) / 2 + gap if is_ours else thin + gap


def draw_legend(axes, comparison: dict) -> None:
    drawn = {bar.program for row in rows_to_draw(comparison) for bar in bars(row)}
    x = 0.0
    for name, label in [("window", "ProUpsells"), *((peer, PROGRAMS[peer].title) for peer in DRAWN_PEERS)]:
        if name not in drawn and not PROGRAMS[name].is_ours:
            continue
        axes.barh(-0.7, 0.045, 0.2, left=x, color=colour(name), linewidth=0)
        axes.text(x + 0.065, -0.7, label, va="center", color=INK, fontsize=8.5)
        x += 0.14 + 0.034 * len(label)


def draw(comparison: dict, file: pathlib.Path) -> None:
    """The same comparison makes the same file, byte for byte."""
    import matplotlib
    matplotlib.use("svg")
    from matplotlib import pyplot
    from matplotlib.patches import FancyBboxPatch

    rows = rows_to_draw(comparison)
    style = {"svg.hashsalt": "peers", "svg.fonttype": "path", "font.family": ["Inter", "DejaVu Sans"]}
    with matplotlib.rc_context(style):
        height = 0.42 * len(rows) + 1.75
        figure = pyplot.figure(figsize=(9, height))
        figure.patch.set_alpha(0)
        # Its own background, so that it reads on a dark page, too.
        figure.add_artist(FancyBboxPatch((0.008, 0.012), 0.984, 0.976, boxstyle="round,pad=0,rounding_size=0.02", mutation_aspect=9 / height,
                                         facecolor="white", edgecolor=LINES, linewidth=0.8, zorder=-1))
        axes = figure.add_axes((0.37, 0.5 / height, 0.55, 1 - 0.75 / height))
        axes.patch.set_alpha(0)
        axes.set_xlim(0, LONGEST)
        axes.set_ylim(len(rows), -2.05)
        axes.text(0, -1.6, "Beside the same screens built by hand: less is better", va="center", color=INK, fontsize=11.5, fontweight="bold")
        for top, row in enumerate(rows):
            draw_row(axes, row, top)
        draw_legend(axes, comparison)
        axes.plot([1, 1], [-0.25, len(rows)], color=INK, linewidth=0.9, zorder=3)
        axes.text(1, len(rows) + 0.12, "1 = the better Qt screen", ha="center", va="top", color=QUIET, fontsize=8)
        axes.text(0, len(rows) + 0.12, "0", ha="center", va="top", color=QUIET, fontsize=8)
        axes.text(LONGEST, len(rows) + 0.12, f"{LONGEST:.0f}", ha="center", va="top", color=QUIET, fontsize=8)
        axes.set_axis_off()
        figure.savefig(file, format="svg", metadata={"Date": None, "Creator": None})
        pyplot.close(figure)
