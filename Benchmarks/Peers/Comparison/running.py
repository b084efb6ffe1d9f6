"""Runs the programs in turn and keeps what they print."""
import json
import os
import pathlib
import subprocess
import time
from collections.abc import Callable

from .figures import Report, Rounds
from .rows import WATCHING_MODES

# Far more than any mode takes beside the time that it watches.
PATIENCE_S = 180


class Failure(Exception):
    """A program has ended badly or printed nothing of use."""


def parse(returncode: int, output: str, errors: str) -> dict:
    """The report, which is the last line of a program's output."""
    lines = output.strip().splitlines()
    if returncode != 0:
        raise Failure(errors.strip().splitlines()[-1] if errors.strip() else f"exit status {returncode}")
    try:
        report = json.loads(lines[-1])
    except (IndexError, json.JSONDecodeError):
        raise Failure("printed no report") from None
    if not isinstance(report, dict):
        raise Failure("printed no report")
    return report


def run_program(command: list[str], runtime: pathlib.Path, patience_s: float = PATIENCE_S) -> dict:
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": str(runtime),
                   "PEER_T0": str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))}
    try:
        done = subprocess.run(command, env=environment, capture_output=True, text=True, timeout=patience_s)
    except OSError as error:
        raise Failure(error.strerror or "cannot be run") from None
    except subprocess.TimeoutExpired:
        raise Failure(f"took longer than {patience_s:.0f} s") from None
    return parse(done.returncode, done.stdout, done.stderr)


def arguments(mode: str, assets: pathlib.Path, seconds: float) -> list[str]:
    return [mode, str(assets), *([f"{seconds:g}"] if mode in WATCHING_MODES else [])]


def take_rounds(runs: list[tuple[str, str]], rounds: int, start: Callable[[str, str], dict],
                tell: Callable[[str], None]) -> tuple[Rounds, dict[tuple[str, str], str]]:
    """All runs in turn, round after round, and the last failure of each run that failed. A first round is not counted: it brings
    files into memory. Watching modes are left out of it, and a run that fails in it is not tried again."""
    failures: dict[tuple[str, str], str] = {}

    def attempt(run: tuple[str, str]) -> Report:
        try:
            return start(*run)
        except Failure as failure:
            failures[run] = str(failure)
            tell(f"  {' '.join(run)}: {failure}")
            return None

    tell("warming up")
    for run in runs:
        if run[1] not in WATCHING_MODES:
            attempt(run)
    usable = [run for run in runs if run not in failures]
    found: Rounds = {run: [] for run in usable}
    for number in range(1, rounds + 1):
        tell(f"round {number} of {rounds}")
        for run in usable:
            found[run].append(attempt(run))
    return found, failures
