#!/usr/bin/env python3
"""Keeps what only some systems and compilers have in one room, Platform/System.

usage: check_portability.py ROOT

Everywhere else a source has no header, function or file of one system, no attribute, builtin function or macro of one compiler, and
turns paths into texts by system::textOf alone, which is right on every system. Exit status 1 with a line for each exception."""
import pathlib
import re
import sys

FOLDERS = ("Apps", "Backends", "Include", "Platform", "ProUpsells", "ScreenTest", "Tooling")
ROOM = "Platform/System/"
# Strings stay: they name files.
COMMENT_OR_STRING = re.compile(r'//[^\n]*|/\*.*?\*/|("(?:\\.|[^"\\\n])*")', re.DOTALL)

HEADERS = r"(?:sys|arpa|net|netinet|mach|mach-o)/[\w./]+|(?:dirent|dlfcn|fcntl|ftw|glob|grp|link|poll|pthread|pwd|sched|semaphore|" \
          r"spawn|syslog|termios|unistd|windows|Windows|io|direct|process|intrin|x86intrin|immintrin|arm_neon|cxxabi|execinfo)\.h"
# Those whose names are not also plain words; a header gives the others away.
FUNCTIONS = r"clock_gettime|dladdr|dl_iterate_phdr|dlclose|dlerror|dlopen|dlsym|exec[lv]\w*|fcntl|fork|fstat|getpid|gettimeofday|isatty|" \
            r"lstat|localtime_r|memfd_create|mkdtemp|mkstemp|mmap|mprotect|munmap|nanosleep|popen|posix_\w+|pthread_\w+|putenv|readlink|" \
            r"realpath|setenv|sigaction|strerror_r|sysconf|usleep|waitpid"
RULES = [
    (re.compile(rf"^[ \t]*#[ \t]*include[ \t]*[<\"]((?:{HEADERS}))[>\"]", re.MULTILINE), "is a header of one system or compiler"),
    (re.compile(rf"(?<![\w.>:])(?:::)?((?:{FUNCTIONS}))\((?!\))"), "is a function of one system"),
    (re.compile(r"\"(/(?:proc|dev|sys)/[^\"]*)\""), "is a file of one system"),
    (re.compile(r"(\[\[(?:gnu|clang|msvc)::\w+|__attribute__|__declspec|__forceinline|__restrict\w*|__asm__|#[ \t]*pragma (?:GCC|clang)\b)"),
     "is an attribute of one compiler"),
    (re.compile(r"\b(__builtin_\w+|__sync_\w+|__atomic_\w+)"), "is a builtin function of one compiler"),
    (re.compile(r"\b(__GNUC__|__clang__|_MSC_VER|__linux__|__unix__|__APPLE__|_WIN32|__EMSCRIPTEN__|__GLIBC__|__x86_64__|__aarch64__)\b"),
     "tells systems or compilers apart"),
    (re.compile(r"(?:\.|->)((?:string|generic_string|u8string|generic_u8string)\(\)|(?<=\.)u8path\()"),
     "turns a path into a text; system::textOf does that"),
]


def without_comments(text: str) -> str:
    """Line feeds are kept."""
    return COMMENT_OR_STRING.sub(lambda match: match.group(1) or "\n" * match.group(0).count("\n"), text)


def complaints(name: str, text: str) -> list[str]:
    text = without_comments(text)
    found = [(text.count("\n", 0, match.start(1)) + 1, match.group(1), why) for rule, why in RULES for match in rule.finditer(text)]
    return [f"{name}:{line}: {what.strip()} {why}" for line, what, why in sorted(found)]


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    root = pathlib.Path(sys.argv[1])
    files = [path for folder in FOLDERS for path in sorted((root / folder).rglob("*"))
             if path.suffix in (".hpp", ".cpp") and not path.relative_to(root).as_posix().startswith(ROOM)]
    found = [complaint for path in files
             for complaint in complaints(path.relative_to(root).as_posix(), path.read_text(encoding="utf-8"))]
    print("\n".join([*found, f"{len(files)} files, {len(found)} complaints"]))
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
