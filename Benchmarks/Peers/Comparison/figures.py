"""From the readings of all rounds to the figures of a row."""
import dataclasses
import statistics

from .rows import PROGRAMS, Row, Source

# What a program has printed in one round; None where it failed.
Report = dict | None
# The reports of every (program, mode) that was run, one for each round.
Rounds = dict[tuple[str, str], list[Report]]


@dataclasses.dataclass(frozen=True)
class Spread:
    least: float
    median: float
    greatest: float

    @staticmethod
    def of(readings: list[float | None]) -> "Spread | None":
        """None where there is no reading."""
        present = [reading for reading in readings if reading is not None]
        return Spread(min(present), statistics.median(present), max(present)) if present else None


@dataclasses.dataclass(frozen=True)
class Figure:
    """What one program needs in a row, and in which mode it was best."""
    mode: str
    readings: list[float | None]
    spread: Spread


@dataclasses.dataclass(frozen=True)
class Comparison:
    row: Row
    # Programs without a reading are absent.
    figures: dict[str, Figure]
    # The Qt peer that the ratios are taken to; None where there is none.
    better_peer: str | None
    # Ours by the better Qt peer's, round by round.
    ratio: Spread | None
    # Whether the limit holds; None where there is no limit, or where one who should be compared has no figure.
    holds: bool | None


def value_at(report: Report, key: str) -> float | None:
    value = report
    for part in key.split("."):
        if not isinstance(value, dict) or part not in value:
            return None
        value = value[part]
    return float(value)


def readings_of(rounds: Rounds, source: Source, divisor: float) -> list[float | None]:
    values = [value_at(report, source.key) for report in rounds.get((source.program, source.mode), [])]
    return [None if value is None else value / divisor for value in values]


def best_figure(rounds: Rounds, sources: list[Source], divisor: float) -> Figure | None:
    figures = []
    for source in sources:
        readings = readings_of(rounds, source, divisor)
        if spread := Spread.of(readings):
            figures.append(Figure(source.mode, readings, spread))
    return min(figures, key=lambda figure: figure.spread.median, default=None)


def ratios(ours: list[float | None], peer: list[float | None]) -> list[float | None]:
    """Round by round, so that a change of the machine's speed cancels out. None where a round lacks one of the two."""
    return [mine / other if mine is not None and other else None for mine, other in zip(ours, peer)]


def compare(row: Row, rounds: Rounds) -> Comparison:
    figures = {name: figure for name in PROGRAMS if (figure := best_figure(rounds, row.sources(name), row.divisor))}
    qt_peers = [name for name, program in PROGRAMS.items() if program.is_qt_peer]
    present = [name for name in qt_peers if name in figures]
    better = min(present, key=lambda name: figures[name].spread.median, default=None)
    ratio = Spread.of(ratios(figures[row.ours].readings, figures[better].readings)) if better and row.ours in figures else None
    is_complete = ratio is not None and present == qt_peers
    holds = ratio.median <= row.limit if is_complete and row.limit is not None else None
    return Comparison(row, figures, better, ratio, holds)
