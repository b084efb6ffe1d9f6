#!/usr/bin/env python3
"""Shows Doxygen a header with the comments, or a page with the links, that it understands.

usage: doxygen_comments.py HEADER|PAGE.md

Writes the file to standard output, line for line. Our comments become Doxygen's:
- the first comment is about the file and about the type of the same name;
- a comment above declarations is about all of them, up to the next comment or blank line;
- a comment behind a declaration is about that one;
- `// --- Name ---` is a heading for what follows, up to the next heading or the end of its part of the class.
What its declaration says already needs no comment: what is defaulted or deleted, a destructor, and a plain member of a struct that has
a comment.

The headings of a page can be linked to; links to other files become plain text, for those are no pages of the reference."""
# Runs once for each header, so it does without modules that are slow to load.
import os.path
import re
import sys

# A comment that Doxygen takes for one, and that nobody sees.
SAYS_IT_ITSELF = "&zwj;"
HEADING = re.compile(r"// --- (.*) ---$")
PART = re.compile(r"(public|protected|private|signals|(public|protected|private) slots):$")
TYPE = re.compile(r"(template <.*?> )?(enum (class )?|class |struct |union )(\[\[\w+\]\] )?\w+\b[^;()=]*$")
SPACE = re.compile(r"namespace\b[^;()=]*$|extern _+$")
SELF_EXPLAINING = re.compile(r"= (default|delete);|~\w+\(")
# Says nothing to readers.
EXPORT = "PROUPSELLS_EXPORT "
UNDOCUMENTED = re.compile(r'friend |Q_OBJECT|Q_ENUM|(class|struct) \w+;|namespace |extern "C" \{|[{};]')


class Scope:
    """What a pair of braces holds: a `space` (a namespace), a `type`, the `values` of an enumeration, or the `body` of something."""

    def __init__(self, kind: str):
        self.kind = kind
        self.is_plain = False  # a struct with a comment
        self.has_heading = False


def without_texts(line: str) -> str:
    """The line with every text and character blanked."""
    return re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'', lambda text: "_" * len(text[0]), line)


def indent_of(line: str) -> str:
    return line[:len(line) - len(line.lstrip())]


def said_by(comment: str) -> str:
    """What a comment says, with nothing in it that Doxygen takes for a command. Indented code stays as it is."""
    said = comment.strip().removeprefix("//").removeprefix(" ")
    if said.startswith("    "):
        return said
    parts = said.split("`")
    parts[::2] = [re.sub(r"([\\@<>#])", r"\\\1", part) for part in parts[::2]]
    return "`".join(parts).replace("*/", "* /")


class Translation:
    def __init__(self, lines: list[str], name: str):
        self.lines = lines
        self.name = name  # of the file, without its extension
        self.result: list[str] = []
        self.scopes: list[Scope] = []
        self.statement = ""  # what has been read of the declaration under way
        self.parentheses = 0
        self.is_documented = False  # the declaration under way
        self.pending: list[int] = []  # places of the comment lines right above
        self.group = ""  # what was said above the first of the declarations that stand together
        self.file_text = ""

    def run(self) -> list[str]:
        for line in self.lines:
            self.result.append(line)
            if self.statement or self.is_in("body"):
                self.read(line)
            else:
                self.begin(line, line.strip())
        return self.result

    def is_in(self, kind: str) -> bool:
        return bool(self.scopes) and self.scopes[-1].kind == kind

    # --- Comments ---

    def begin(self, line: str, stripped: str) -> None:
        if heading := HEADING.match(stripped):
            self.begin_heading(heading[1])
        elif stripped.startswith("//"):
            self.group = self.group if self.pending else ""
            self.pending.append(len(self.result) - 1)
        elif not stripped:
            self.end_group()
        elif stripped == "#pragma once":
            self.begin_file()
        elif stripped.startswith("#"):
            self.define(line, stripped)
        elif PART.match(stripped):
            self.end_group()
            self.end_heading()
        else:
            if stripped.startswith("}"):
                self.end_group()
                self.end_heading()
            self.is_documented = not UNDOCUMENTED.match(stripped) and self.document(line, stripped)
            self.read(line)

    def end_group(self) -> None:
        self.pending = []
        self.group = ""

    def take_pending(self, above: str = "") -> str:
        text = " ".join(said_by(self.lines[place]) for place in self.pending)
        for place in self.pending:
            self.result[place] = f"{indent_of(self.lines[place])}/// {said_by(self.lines[place])}"
        if above and self.pending:
            self.result[self.pending[0]] = f"/** {above} */ {self.result[self.pending[0]]}"
        self.pending = []
        return text

    def begin_file(self) -> None:
        self.file_text = self.take_pending()
        self.result[-1] = "/// @file"

    def begin_heading(self, name: str) -> None:
        self.end_group()
        self.result[-1] = f"/** @name {name} */ /** @{{ */"
        self.end_heading()
        if self.scopes:
            self.scopes[-1].has_heading = True

    def end_heading(self) -> None:
        if self.scopes and self.scopes[-1].has_heading:
            self.scopes[-1].has_heading = False
            self.result[-1] = "/** @} */ " + self.result[-1]

    def define(self, line: str, stripped: str) -> None:
        if self.pending:
            self.group = " ".join(said_by(self.lines[place]) for place in self.pending)
            self.pending = []
        if self.group and stripped.startswith("#define"):
            self.result[-1] = f"{line} ///< {self.group}"

    def document(self, line: str, stripped: str) -> bool:
        if self.pending:
            self.group = self.take_pending(self.file_text if self.is_main_type(stripped) else "")
            return True
        if "//" in without_texts(line):
            self.group = ""
            return True
        text = self.implied_text(stripped)
        if text:
            self.result[-1] = f"{indent_of(line)}/** {text} */ {stripped}"
        return bool(text)

    def implied_text(self, stripped: str) -> str:
        if SELF_EXPLAINING.search(stripped):
            return SAYS_IT_ITSELF
        if self.group:
            return self.group
        if self.is_main_type(stripped):
            return self.file_text
        if TYPE.match(stripped.rstrip(" {")):
            return ""
        is_data = not stripped.startswith(("using ", "enum ")) and "(" not in re.split("[={]", stripped)[0]
        return SAYS_IT_ITSELF if is_data and self.scopes and self.scopes[-1].is_plain else ""

    def is_main_type(self, stripped: str) -> bool:
        """Whether a declaration is that of the type which the file is named after."""
        if stripped.startswith("template <"):
            stripped = self.lines[len(self.result)].strip()
        return bool(re.match(rf"(enum (class )?|class |struct ){self.name}\b", stripped))

    # --- Declarations ---

    def read(self, line: str) -> None:
        """Follows braces and the ends of declarations."""
        start = without_texts(line).find("//")
        code = without_texts(line)[:start] if start >= 0 else without_texts(line)
        if code.strip().startswith("Q_"):
            return
        for position, sign in enumerate(code):
            self.statement += sign
            if sign in "()":
                self.parentheses += 1 if sign == "(" else -1
            elif sign == "{":
                self.open()
            elif sign == "}":
                self.close(code[position + 1:].lstrip())
            elif sign == ";" and self.parentheses == 0:
                self.statement = ""
        self.statement = "" if self.is_in("values") else self.statement.lstrip() and self.statement + " "
        if start >= 0 and code.strip(" }") and not self.is_in("body"):
            self.result[-1] = self.result[-1][:-len(line[start:])] + "///< " + said_by(line[start:])

    def open(self) -> None:
        statement = " ".join(self.statement[:-1].split())
        if SPACE.match(statement):
            self.scopes.append(Scope("space"))
        elif TYPE.match(statement):
            self.scopes.append(Scope("values" if statement.startswith("enum ") else "type"))
            self.scopes[-1].is_plain = self.is_documented and statement.startswith("struct ")
        else:
            self.scopes.append(Scope("body"))
            return
        self.statement = ""
        self.end_group()

    def close(self, rest: str) -> None:
        kind = self.scopes.pop().kind if self.scopes else "space"
        # Behind the braces of a value the declaration goes on, behind those of a function it does not.
        if kind == "space" or kind == "body" and not self.is_in("body") and not rest.startswith((";", ",", "{", ")", "}")):
            self.statement = ""


def page(lines: list[str]) -> list[str]:
    result = []
    is_code = False
    for line in lines:
        is_code ^= line.startswith("```")
        if not is_code and line.startswith("#"):
            name = re.sub(r"[^\w\- ]", "", line.lstrip("# ").lower()).replace(" ", "-")
            line = f"{line} {{#{name}}}"
        result.append(line if is_code else re.sub(r"\[([^\]]*)\]\((?!#|[a-z]+:)[^)]*\)", r"\1", line))
    return result


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    name, kind = os.path.splitext(os.path.basename(sys.argv[1]))
    with open(sys.argv[1], encoding="utf-8") as file:
        lines = file.read().replace(EXPORT, "").split("\n")
    sys.stdout.write("\n".join(page(lines) if kind == ".md" else Translation(lines, name).run()))
    return 0


if __name__ == "__main__":
    sys.exit(main())
