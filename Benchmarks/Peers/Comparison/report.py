"""The comparison as JSON and as a table in Markdown."""
import dataclasses

from .figures import Comparison, Figure, Spread
from .rows import PROGRAMS

@dataclasses.dataclass(frozen=True)
class Setting:
    """What was measured on, and what could not be measured."""
    machine: dict[str, str | int]
    versions: dict[str, str]
    rounds: int
    idle_seconds: float
    # Names of programs that are not there.
    missing: list[str]
    # By program and mode, the message of what went wrong.
    failures: dict[tuple[str, str], str]


def spread_json(spread: Spread | None) -> dict[str, float] | None:
    return spread and {"min": round(spread.least, 4), "median": round(spread.median, 4), "max": round(spread.greatest, 4)}


def figure_json(figure: Figure) -> dict:
    readings = [None if reading is None else round(reading, 4) for reading in figure.readings]
    return {"mode": figure.mode, **spread_json(figure.spread), "rounds": readings}


def row_json(comparison: Comparison) -> dict:
    row = comparison.row
    return {"id": row.id, "title": row.title, "unit": row.unit, "ours": row.ours, "limit": row.limit,
            "figures": {name: figure_json(figure) for name, figure in comparison.figures.items()},
            "better_qt_peer": comparison.better_peer, "ratio": spread_json(comparison.ratio), "holds": comparison.holds}


def as_json(setting: Setting, comparisons: list[Comparison]) -> dict:
    return {"machine": setting.machine, "versions": setting.versions, "rounds": setting.rounds,
            "idle_seconds": setting.idle_seconds, "missing": setting.missing,
            "failures": [{"program": program, "mode": mode, "message": message}
                         for (program, mode), message in setting.failures.items()],
            "rows": [row_json(comparison) for comparison in comparisons]}


def number(value: float) -> str:
    """Three digits that matter."""
    if value == 0:
        return "0"
    return f"{value:.0f}" if abs(value) >= 100 else f"{value:.1f}" if abs(value) >= 10 else f"{value:.3g}"


def spread_text(spread: dict, write=number) -> str:
    return f"{write(spread['median'])} <sub>{write(spread['min'])}–{write(spread['max'])}</sub>"


def ratio_text(ratio: dict | None) -> str:
    return spread_text(ratio, lambda value: f"{value:.2f}") if ratio else "–"


def cell(row: dict, name: str) -> str:
    figure = row["figures"].get(name)
    if not figure:
        return "–"
    text = spread_text(figure)
    return f"**{text}**" if name in (row["ours"], row["better_qt_peer"]) else text


def verdict(row: dict, qt_peers: tuple[str, ...] = ("quick", "widgets")) -> str:
    if row["holds"] is not None:
        return "holds" if row["holds"] else "**does not hold**"
    absent = [PROGRAMS[name].title for name in (row["ours"], *qt_peers) if name not in row["figures"]]
    return f"not judged: no figure of {' and '.join(absent)}" if absent else ""


def table(comparison: dict) -> list[str]:
    heads = ["", "unit", *(program.title for program in PROGRAMS.values()), "ratio", "limit", ""]
    lines = [f"| {' | '.join(heads)} |", f"|{'---|' * len(heads)}"]
    for row in comparison["rows"]:
        limit = "" if row["limit"] is None else f"{row['limit']:.2f}"
        cells = [row["title"], row["unit"], *(cell(row, name) for name in PROGRAMS), ratio_text(row["ratio"]), limit, verdict(row)]
        lines.append(f"| {' | '.join(cells)} |")
    return lines


def quick_ways(comparison: dict) -> list[str]:
    """Which of Qt Quick's two ways to its first frame counts."""
    titles: dict[str, list[str]] = {"window": [], "first": []}
    for row in comparison["rows"]:
        if (figure := row["figures"].get("quick")) and figure["mode"] in titles:
            titles[figure["mode"]].append(f"“{row['title']}”")
    names = {"window": "in a window", "first": "into memory"}
    counted = [f"{names[mode]} for {', '.join(found)}" for mode, found in titles.items() if found]
    return [f"Of Qt Quick's two ways to its first frame the better one counts: {'; '.join(counted)}.", ""] if counted else []


def as_markdown(comparison: dict) -> str:
    machine, versions = comparison["machine"], comparison["versions"]
    lines = ["# The module beside what a host would build instead", "",
             f"{machine['processor']}, {machine['cores']} cores, {machine['distribution']}, kernel {machine['kernel']}; "
             + ", ".join(f"{name} {version}" for name, version in versions.items())
             + f". Rounds: {comparison['rounds']}; an idle screen is watched for {comparison['idle_seconds']:g} s.", "",
             "Medians, with the range over the rounds beside them; less is better. The ratio is ours by the better Qt peer's, round by "
             "round; the two are set in bold.", "",
             *table(comparison), "", *quick_ways(comparison)]
    if comparison["missing"]:
        lines += [f"Missing, and so not compared: {', '.join(PROGRAMS[name].title for name in comparison['missing'])}.", ""]
    for failure in comparison["failures"]:
        lines += [f"Failed: {PROGRAMS[failure['program']].title}, {failure['mode']}: {failure['message']}.", ""]
    return "\n".join(lines).rstrip() + "\n"
