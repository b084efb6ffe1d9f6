#!/usr/bin/env python3
"""Writes a table of every text for translators, as the sources have them.

usage: extract_texts.py ROOT OUTPUT.cpp

Reads the calls of localizedString("key", "comment") and of localizable("key", "comment"), which marks a key that is looked up
elsewhere. A function that hands a parameter on to one of them is followed to its calls in the same file. The sections are the screens
of Docs/architecture.md, where each file of the module belongs to one. Exit status 1 where a key or a comment is no literal, or where
one key has two comments, one line each."""
import dataclasses
import pathlib
import re
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import check_includes

FOLDERS = ("ProUpsells", "Platform", "Backends")
# Declares the two functions.
DECLARES = "Platform/Foundation/"
SECTIONS = ["Paywall", "Comparison", "Store page", "Shared"]

TOKEN = re.compile(r"""
    (?P<blank>\s+ | //[^\n]* | /\*.*?\*/)
  | (?P<raw>R"(?P<fence>[^(\s]*)\((?P<rawtext>.*?)\)(?P=fence)")
  | (?P<string>"(?:[^"\\\n]|\\.)*")
  | (?P<character>'(?:[^'\\\n]|\\.)+')
  | (?P<number>\d[\w.']*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<other>->|::|.)""", re.VERBOSE | re.DOTALL)
ESCAPE = re.compile(r"\\(?:u([0-9A-Fa-f]{4})|U([0-9A-Fa-f]{8})|x([0-9A-Fa-f]+)|([0-7]{1,3})|(.))", re.DOTALL)
SIMPLE_ESCAPES = {"n": "\n", "t": "\t", "r": "\r", "a": "\a", "b": "\b", "f": "\f", "v": "\v"}
OPENING, CLOSING = "([{", ")]}"


@dataclasses.dataclass(frozen=True)
class Token:
    text: str
    line: int
    literal: str | None = None  # of a string: what it says


@dataclasses.dataclass(frozen=True)
class Call:
    """A function whose argument number `key` is a key. Its comment is a text, or the argument of that number."""
    name: str
    key: int
    comment: str | int


@dataclasses.dataclass(frozen=True)
class Text:
    key: str
    comment: str
    section: str


class Complaint(Exception):
    pass


def unescaped(body: str) -> str:
    def replaced(match: re.Match) -> str:
        short, long, hexadecimal, octal, other = match.groups()
        if code := short or long or hexadecimal:
            return chr(int(code, 16))
        return chr(int(octal, 8)) if octal else SIMPLE_ESCAPES.get(other, other)
    return ESCAPE.sub(replaced, body)


def tokens_of(source: str) -> list[Token]:
    tokens, line = [], 1
    for match in TOKEN.finditer(source):
        if match["raw"]:
            tokens.append(Token('"', line, match["rawtext"]))
        elif match["string"]:
            tokens.append(Token('"', line, unescaped(match["string"][1:-1])))
        elif not match["blank"]:
            tokens.append(Token(match[0], line))
        line += match[0].count("\n")
    return tokens


def arguments_at(tokens: list[Token], opening: int) -> list[list[Token]]:
    """Those between the bracket at `opening` and its end."""
    depth, arguments = 0, [[]]
    for token in tokens[opening + 1:]:
        if token.literal is None and token.text in CLOSING:
            if depth == 0:
                break
            depth -= 1
        if token.literal is None and token.text in OPENING:
            depth += 1
        if token.text == "," and depth == 0:
            arguments.append([])
        else:
            arguments[-1].append(token)
    return arguments if arguments != [[]] else []


def opening_of(tokens: list[Token], closing: int) -> int:
    depth = 0
    for index in range(closing, -1, -1):
        if tokens[index].text == ")":
            depth += 1
        elif tokens[index].text == "(":
            depth -= 1
            if depth == 0:
                return index
    return 0


def functions_around(tokens: list[Token], position: int) -> list[int]:
    """Where the parameters of the functions begin that the position stands in, innermost first."""
    bodies = []
    for index in range(position):
        if tokens[index].text == "{":
            before = index - 1
            while before > 0 and tokens[before].text in ("const", "override", "noexcept"):
                before -= 1
            bodies.append(opening_of(tokens, before) if tokens[before].text == ")" else None)
        elif tokens[index].text == "}" and bodies:
            bodies.pop()
    return [body for body in reversed(bodies) if body]


class File:
    def __init__(self, path: str, source: str):
        self.path = path
        self.tokens = tokens_of(source)
        self.definitions: set[int] = set()
        self.comments: dict[str, str] = {}
        self.positions: dict[str, int] = {}
        self.complaints: list[str] = []

    def read(self) -> None:
        calls = [Call("localizedString", 0, 1), Call("localizable", 0, 1)]
        for call in calls:  # grows on the way
            for position, token in enumerate(self.tokens[:-1]):
                if token.text == call.name and self.is_call(position):
                    try:
                        further = self.read_call(call, position)
                    except Complaint as complaint:
                        self.complaints.append(f"{self.path}:{token.line}: {call.name}: {complaint}")
                        continue
                    if further and further not in calls:
                        calls.append(further)

    def is_call(self, position: int) -> bool:
        # A member of this name looks up what is marked elsewhere.
        is_member = position > 0 and self.tokens[position - 1].text in (".", "->")
        return self.tokens[position + 1].text == "(" and not is_member and position + 1 not in self.definitions

    def read_call(self, call: Call, position: int) -> Call | None:
        arguments = arguments_at(self.tokens, position + 1)
        if call.key >= len(arguments):
            raise Complaint("there is no key")
        key, comment = self.literal(arguments[call.key]), call.comment
        if isinstance(comment, int):
            comment = "" if comment >= len(arguments) else self.literal(arguments[comment])
        if key is None:
            return self.caller(position, arguments, call)
        if comment is None:
            raise Complaint("the comment is no literal")
        self.add(key, comment, position)
        return None

    def literal(self, argument: list[Token]) -> str | None:
        if not argument or any(token.literal is None for token in argument):
            return None
        return "".join(token.literal for token in argument)

    def caller(self, position: int, arguments: list[list[Token]], call: Call) -> Call:
        """The function around the position, whose parameter is the key."""
        for opening in functions_around(self.tokens, position):
            names = [parameter[-1].text for parameter in arguments_at(self.tokens, opening) if parameter]
            if len(arguments[call.key]) == 1 and arguments[call.key][0].text in names:
                self.definitions.add(opening)
                return Call(self.tokens[opening - 1].text, names.index(arguments[call.key][0].text),
                            self.comment_of(call, arguments, names))
        raise Complaint("the key is no literal, and no parameter of the function around it")

    def comment_of(self, call: Call, arguments: list[list[Token]], names: list[str]) -> str | int:
        if isinstance(call.comment, str) or call.comment >= len(arguments):
            return call.comment if isinstance(call.comment, str) else ""
        comment = arguments[call.comment]
        if (text := self.literal(comment)) is not None:
            return text
        if len(comment) == 1 and comment[0].text in names:
            return names.index(comment[0].text)
        raise Complaint("the comment is no literal, and no parameter of the function around it")

    def add(self, key: str, comment: str, position: int) -> None:
        known = self.comments.get(key, "")
        if comment and known and comment != known:
            raise Complaint(f'"{key}" has two comments: "{known}" and "{comment}"')
        self.comments[key] = comment or known
        self.positions[key] = min(position, self.positions.get(key, position))

    def found(self) -> list[tuple[str, str]]:
        """Keys and their comments, in the file's order."""
        return sorted(self.comments.items(), key=lambda item: self.positions[item[0]])


def section_of(path: str, screens: dict[str, str]) -> str:
    screen = screens.get(pathlib.PurePosixPath(path).stem, "Shared") if path.startswith("ProUpsells/") else "Shared"
    return screen if screen in SECTIONS else "Shared"


def texts_of(root: pathlib.Path) -> tuple[list[Text], list[str]]:
    screens = check_includes.listed_screens((root / check_includes.SCREENS_DOCUMENT).read_text(encoding="utf-8"))
    paths = sorted(path for folder in FOLDERS for path in (root / folder).rglob("*") if path.suffix in (".hpp", ".cpp"))
    texts: dict[str, Text] = {}
    complaints = []
    by_section = sorted((path.relative_to(root).as_posix() for path in paths), key=lambda path: SECTIONS.index(section_of(path, screens)))
    for path in by_section:
        if path.startswith(DECLARES):
            continue
        source = (root / path).read_text(encoding="utf-8")
        if "locali" not in source:
            continue
        file = File(path, source)
        file.read()
        complaints += file.complaints
        for key, comment in file.found():
            known = texts.setdefault(key, Text(key, comment, section_of(path, screens)))
            if comment and known.comment and comment != known.comment:
                complaints.append(f'{path}: "{key}" has another comment elsewhere: "{known.comment}"')
            elif comment and not known.comment:
                texts[key] = dataclasses.replace(known, comment=comment)
    return list(texts.values()), complaints


def quoted(text: str) -> str:
    escaped = text.replace("\\", "\\\\").replace('"', '\\"').replace("\n", "\\n")
    return f'"{escaped}"'


def table(texts: list[Text]) -> str:
    rows = [f"    {{{quoted(text.key)}, {quoted(text.comment)}, {quoted(text.section)}}}," for text in texts]
    return "\n".join(['#include "Tooling/TranslatableText.hpp"', "", "namespace proupsells::tooling {", "",
                      "std::span<const TranslatableText> translatableTexts() {", "    static constexpr TranslatableText texts[] = {",
                      *("    " + row for row in rows), "    };", "    return texts;", "}", "", "} // namespace proupsells::tooling", ""])


def main() -> int:
    if len(sys.argv) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    texts, complaints = texts_of(pathlib.Path(sys.argv[1]))
    if complaints or not texts:
        print("\n".join(complaints or ["there are no texts"]), file=sys.stderr)
        return 1
    output, content = pathlib.Path(sys.argv[2]), table(texts)
    if not output.exists() or output.read_text(encoding="utf-8") != content:
        output.write_text(content, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
