#!/usr/bin/env python3
"""Holds every include against the house's arrows.

usage: check_includes.py ROOT

A room may include itself and the rooms below it, and so may a folder inside a room that has floors of its own. ScreenTest/ brings the
module and its backends together for the tests of hosts, and may also include these. Tooling/,
ProUpsells/ and Platform/ include nothing but the project's own headers and the C++ standard library's, but for Platform/System/Posix/. A backend includes Platform/
and its library; windows stand on the pixel engine. The module's files belong to screens, as Docs/architecture.md lists them; no screen
includes another. Exit status 1 when an include points up or out, or when a file and that list disagree, one line each."""
import pathlib
import re
import sys

# From the top down; rooms in one row never include each other.
FLOORS = [
    ["ScreenTest"],
    ["Tooling"],
    ["ProUpsells"],
    ["Platform/VelaUIKit"],
    ["Platform/LumoKit"],
    ["Platform/Hosting"],
    ["Platform/SwiftUI", "Platform/UIKit"],
    ["Platform/Host"],
    ["Platform/Accessibility"],
    ["Platform/Graphics"],
    ["Platform/Foundation"],
    ["Platform/Combine"],
    ["Platform/RunLoop"],
    ["Platform/Motion"],
    ["Platform/Geometry"],
    ["Platform/Commons"],
    ["Platform/System"],
]
# The same inside the two layers. What lies in the room's own folder stands on top.
FLOORS_WITHIN = {
    "Platform/SwiftUI": ["Views", "Modifiers", "Shapes", "Gestures", "Layout", "Tree", "Animation"],
    "Platform/UIKit": ["Collection", "Controllers", "Controls", "Constraints", "Views"],
}
# The one folder of the platform that knows a system's own headers.
SYSTEM_FOLDER = "Platform/System/Posix/"
# The backends that another may include.
BELOW_BACKEND = {
    "Backends/Standard": {"Backends/Raster", "Backends/Icu", "Backends/FFmpeg"},
    "Backends/Qt": {"Backends/Raster", "Backends/Standard"},
    "Backends/QtWidgets": {"Backends/Qt", "Backends/Raster"},
    "Backends/QtQuick": {"Backends/Qt", "Backends/Raster"},
}
# Those that the one room above the module may include.
BELOW_SCREEN_TEST = {"Backends/Headless", "Backends/Raster", "Backends/Standard"}
# The one backend that knows the module: in QML, its screens are elements.
KNOWS_MODULE = "Backends/QtQuick"
# A screen of the module includes what it shares with the others, and the entry includes all of them.
SCREENS_DOCUMENT = "Docs/architecture.md"
SCREENS = ["Entry", "Paywall", "Comparison", "Store page", "Shared"]
SCREEN_ROW = re.compile(rf"^\| ({'|'.join(SCREENS)}) \| (.*) \|$", re.MULTILINE)

FLOOR_OF = {room: number for number, floor in enumerate(FLOORS) for room in floor}

STANDARD = set("""algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
climits clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream functional future
initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new
numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex source_location
span sstream stack stdexcept stop_token streambuf string string_view strstream syncstream system_error thread tuple type_traits
typeindex typeinfo unordered_map unordered_set utility valarray variant vector version""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path: str) -> str | None:
    parts = path.split("/")
    if parts[0] in ("ProUpsells", "Tooling", "ScreenTest"):
        return parts[0]
    if parts[0] in ("Platform", "Backends") and len(parts) > 1:
        return "/".join(parts[:2])
    return None


def listed_screens(document: str) -> dict[str, str]:
    """The screen of each file name without its ending."""
    return {name: screen for screen, names in SCREEN_ROW.findall(document) for name in re.findall(r"`([^`]+)`", names)}


def folder_within(room: str, path: str) -> str:
    return path.removeprefix(room + "/").rpartition("/")[0]


def complaint_within(room: str, source: str, target: str) -> str | None:
    folders = FLOORS_WITHIN.get(room, [])
    from_folder, to_folder = folder_within(room, source), folder_within(room, target)
    if not folders or from_folder in ("", to_folder):
        return None
    for folder in (from_folder, to_folder):
        if folder not in folders:
            return f"{room}/{folder} has no floor in {room}"
    return None if folders.index(from_folder) < folders.index(to_folder) else f"{from_folder} stands below {to_folder}"


def complaint_between_screens(screens: dict[str, str], source: str, target: str) -> str | None:
    """Files that are in no screen have a complaint of their own."""
    from_screen, to_screen = (screens.get(pathlib.PurePosixPath(path).stem, "Shared") for path in (source, target))
    if from_screen in ("Entry", to_screen) or to_screen == "Shared":
        return None
    return f"{from_screen} never includes {to_screen}"


def complaint(screens: dict[str, str], source: str, bracket: str, target: str) -> str | None:
    source_room, target_room = room_of(source), room_of(target)
    if source_room.startswith("Backends/"):
        if target_room == "ProUpsells" and source_room != KNOWS_MODULE:
            return "a backend never includes ProUpsells/"
        allowed = {source_room} | BELOW_BACKEND.get(source_room, set())
        if target_room and target_room.startswith("Backends/") and target_room not in allowed:
            return f"{source_room} never includes {target_room}"
        return None
    if bracket == "<":
        return None if target in STANDARD or source.startswith(SYSTEM_FOLDER) else "only the C++ standard library may be included with <>"
    if target_room is None:
        return "only the project's own headers may be included with quotes"
    if source_room == "ScreenTest" and target_room in BELOW_SCREEN_TEST:
        return None
    if target_room.startswith("Backends/"):
        return "only apps bring the module and a backend together"
    if target_room not in FLOOR_OF:
        return f"{target_room} is not a room"
    if target_room == "ProUpsells" == source_room:
        return complaint_between_screens(screens, source, target)
    if target_room == source_room:
        return complaint_within(source_room, source, target)
    if FLOOR_OF[target_room] <= FLOOR_OF[source_room]:
        return f"{source_room} stands below or beside {target_room}"
    return None


def complaints_about(root: pathlib.Path, path: pathlib.Path, screens: dict[str, str]) -> list[str]:
    relative = path.relative_to(root).as_posix()
    room = room_of(relative)
    if not room.startswith("Backends/") and room not in FLOOR_OF:
        return [f"{relative}: {room} is not a room"]
    found = []
    if room == "ProUpsells" and path.stem not in screens:
        found.append(f"{relative}: is in no screen of {SCREENS_DOCUMENT}")
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if (match := INCLUDE.match(line)) and (why := complaint(screens, relative, *match.groups())):
            found.append(f"{relative}:{number}: {match.group(2)}: {why}")
    return found


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    files = [path for top in ("ScreenTest", "Tooling", "ProUpsells", "Platform", "Backends") for path in sorted((root / top).rglob("*"))
             if path.suffix in (".hpp", ".cpp")]
    screens = listed_screens((root / SCREENS_DOCUMENT).read_text(encoding="utf-8"))
    found = [complaint for path in files for complaint in complaints_about(root, path, screens)]
    stems = {path.stem for path in files if room_of(path.relative_to(root).as_posix()) == "ProUpsells"}
    found += [f"{SCREENS_DOCUMENT}: there is no {name}" for name in sorted(set(screens) - stems)]
    print("\n".join([*found, f"{len(files)} files, {len(found)} complaints"]))
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
