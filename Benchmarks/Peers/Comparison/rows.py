"""What is compared: the programs, and the rows of the table."""
import dataclasses


@dataclasses.dataclass(frozen=True)
class Program:
    """One of the programs that take part. The command is said from the folder of the built programs."""
    title: str
    command: tuple[str, ...]
    is_ours: bool = False
    # The ratios are taken to the better of these.
    is_qt_peer: bool = False


PROGRAMS = {
    "window": Program("ours in a window", ("OursInWindow",), is_ours=True),
    "memory": Program("ours in memory", ("OursInMemory",), is_ours=True),
    "quick": Program("Qt Quick", ("QuickPeer",), is_qt_peer=True),
    "widgets": Program("Qt Widgets", ("WidgetsPeer",), is_qt_peer=True),
    "browser": Program("browser", ("node", "Browser/measure.mjs")),
    "floor": Program("floor", ("Floor",)),
}


@dataclasses.dataclass(frozen=True)
class Source:
    """A figure: what a program prints under a key in a mode. A dot leads into an object: "again.p50"."""
    program: str
    mode: str
    key: str


@dataclasses.dataclass(frozen=True)
class Row:
    id: str
    title: str
    unit: str
    # Which of our programs the ratio is about.
    ours: str
    mode: str
    key: str
    # The greatest ratio to the better Qt peer that we allow ourselves; None where nothing is promised.
    limit: float | None = None
    # What the printed figure is divided by to get the unit.
    divisor: float = 1
    # Further modes of Qt Quick that measure the same; its best one counts.
    quick_modes: tuple[str, ...] = ()
    # Where the floor has a like figure.
    floor: Source | None = None

    def sources(self, program: str) -> list[Source]:
        if program == "floor":
            return [self.floor] if self.floor else []
        further = self.quick_modes if program == "quick" else ()
        return [Source(program, mode, self.key) for mode in (self.mode, *further)]


# Peers are asked for one frame after another. Ours in a window shows them at the display's pace and finds the processor's caches cold,
# so where frames are counted, ours in memory is asked the same way and gives the ratio.
ROWS = [
    Row("first-window", "Process start to first frame, in a window", "ms", "window", "first", "first_ms", 0.80,
        quick_modes=("window",)),
    Row("first-memory", "Process start to first frame, ours without Qt", "ms", "memory", "first", "first_ms", 0.35,
        quick_modes=("window",)),
    Row("open", "First paywall in a warm host", "ms", "window", "warm", "warm_first_ms", 0.50),
    Row("again", "Next paywall", "ms", "memory", "warm", "again.p50", 0.30),
    Row("tap", "Tap to new frame", "CPU ms", "memory", "tap", "tap_cpu_ms.p50", 0.30),
    Row("repaint", "Whole paywall painted again", "ms", "memory", "tap", "full_repaint_ms.p50", 0.55,
        floor=Source("floor", "paywall", "by_hand_ms.p50")),
    Row("scroll", "Store page scrolled, median frame", "CPU ms", "memory", "store", "frame_cpu_ms.p50", 0.50,
        floor=Source("floor", "store", "by_hand_cpu_ms.p50")),
    Row("scroll-p99", "Store page scrolled, 99th percentile", "CPU ms", "memory", "store", "frame_cpu_ms.p99", 1.0,
        floor=Source("floor", "store", "by_hand_cpu_ms.p99")),
    Row("strips", "Store page, only the strips drift", "CPU ms", "memory", "store", "strips_only_cpu_ms.p50", 0.50),
    Row("idle", "Idle, carousel running", "CPU s/min", "window", "idle", "cpu_s_per_min", 0.35),
    Row("memory-window", "Memory of the process, in a window", "MB", "window", "first", "pss_kb", 0.85, divisor=1024,
        quick_modes=("window",)),
    Row("memory-memory", "Memory of the process, ours without Qt", "MB", "memory", "first", "pss_kb", 0.45, divisor=1024,
        quick_modes=("window",)),
    Row("added", "Memory added by the first paywall", "MB", "window", "warm", "added_pss_kb", 0.80, divisor=1024),
]

# Modes whose last argument is how long to watch.
WATCHING_MODES = {"idle"}


def runs(rows: list[Row]) -> list[tuple[str, str]]:
    """Every (program, mode) that the rows need, in the order of a round: mode by mode, all programs in turn."""
    needed = {(source.program, source.mode): row for row in rows for program in PROGRAMS for source in row.sources(program)}
    modes = list(dict.fromkeys(mode for _, mode in needed))
    return sorted(needed, key=lambda run: (modes.index(run[1]), list(PROGRAMS).index(run[0])))
