"""Small faults that could be made in C++ sources, one at a time. Used by Tools/mutate."""
import dataclasses
import re

RAW_STRING = re.compile(r'R"(\w*)\((.*?)\)\1"', re.S)
TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>\w*)\(.*?\)(?P=mark)"|u?8?"(?:\\.|[^"\\\n])*"|(?<![\w\'])\'(?:\\.|[^\'\\\n])+\'', re.S)
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f']+|\d[\d']*(?:\.\d+)?(?:e-?\d+)?)(?:u|f|ull)?(?![\w.'])")
COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
COMPARISON = re.compile(r" (<=|>=|==|!=|<|>) ")
LOGIC = re.compile(r" (&&|\|\|) ")
NEGATION = re.compile(r"(?<![\w)\]=!])!(?=[\w(])(?!=)")
SUM = re.compile(r"(?<=[\w)\]}]) ([-+*/]) (?=[\w(])")
TRUTH = re.compile(r"\b(true|false)\b")
CALL = re.compile(r"^\s+(?!.*\.reserve\()(?!return\b|throw\b|delete\b|using\b|case\b|else\b|co_)[\w:\->.*\[\]&]+(?:<[\w:]+>)?\([^;{}]*\);$")
ASSIGNMENT = re.compile(r"^\s+[\w.\->\[\]*()]+ (?:=|\+=|-=|\*=|\|=|&=) [^;{}]*;$")
STEP = re.compile(r"^\s+(?:\+\+|--)[\w.\->]+;$")
# What gives the same either way is left out.
TWO_ARGUMENTS = re.compile(r"(?<=\w)(?<!\bmin)(?<!\bmax)(?<!\bswap)\(([\w.\->:]+), ([\w.\->:]+)\)")
FUNCTION = re.compile(r"^(?!namespace|struct|class|enum|extern|union|template|\s)(?P<head>[\w:<>,&*\s]+?)[\w:~]+\([^;]*\)(?: const)?(?: noexcept)? \{$")
SKIPPED_LINE = re.compile(r"^\s*(#|using |namespace |static_assert|template|friend |typedef|}|public:|private:|protected:)")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A fault: the line of a file, from 1, as it is and as it would be."""
    file: str
    line: int
    before: str
    after: str
    kind: str

    def text(self, source):
        """The source with the fault in it."""
        lines = source.split("\n")
        assert lines[self.line - 1] == self.before
        lines[self.line - 1] = self.after
        return "\n".join(lines)


def blanked(source):
    """The source with blanks for comments and for what stands between quotes, and where the texts between quotes are."""
    texts = []

    def blank(match):
        word = match.group()
        if word.startswith("/"):
            return re.sub(r"[^\n]", " ", word)
        if word.startswith('"') and len(word) > 2:
            texts.append((match.start() + 1, match.end() - 1))
        return word[0] + re.sub(r"[^\n]", " ", word[1:-1]) + word[-1]

    return TOKEN.sub(blank, source), texts


def other_number(word):
    """The literal with another value."""
    digits = word.replace("'", "")
    if digits.startswith("0x"):
        return hex(int(digits, 16) + 1)
    if "." in digits or "e" in digits:
        return str(float(digits) * 1.5) if float(digits) else "1.0"
    return str(int(digits) + 1)


def mutants_of(file, source):
    """Every fault that is known how to make, in the order of the source."""
    code, texts = blanked(source)
    lines, code_lines = source.split("\n"), code.split("\n")
    found = []

    def add(index, start, end, word, kind):
        before = lines[index]
        after = before[:start] + word + before[end:]
        if after != before:
            found.append(Mutant(file, index + 1, before, after, kind))

    for index, line in enumerate(code_lines):
        if SKIPPED_LINE.match(line) or not line.strip():
            continue
        for pattern, kind in ((COMPARISON, "comparison"), (SUM, "arithmetic"), (LOGIC, "logic")):
            for match in pattern.finditer(line):
                sign = match.group(1)
                other = COMPARISONS.get(sign) if kind == "comparison" else {"+": "-", "-": "+", "*": "/", "/": "*", "&&": "||", "||": "&&"}[sign]
                add(index, match.start(1), match.end(1), other, kind)
        for match in NEGATION.finditer(line):
            add(index, match.start(), match.end(), "", "logic")
        for match in TRUTH.finditer(line):
            add(index, match.start(), match.end(), "false" if match.group() == "true" else "true", "constant")
        for match in NUMBER.finditer(line):
            add(index, match.start(1), match.end(1), other_number(match.group(1)), "constant")
        for match in TWO_ARGUMENTS.finditer(line):
            add(index, match.start(), match.end(), f"({match.group(2)}, {match.group(1)})", "swapped arguments")
        indent = len(line) - len(line.lstrip())
        if CALL.match(line):
            add(index, indent, len(lines[index]), ";", "dropped call")
        elif ASSIGNMENT.match(line) or STEP.match(line):
            add(index, indent, len(lines[index]), ";", "dropped assignment")
        function = FUNCTION.match(line)
        if function:
            is_void = function.group("head").split()[-1:] == ["void"]
            add(index, len(lines[index]), len(lines[index]), " if (true) return;" if is_void else " if (true) return {};", "early return")

    starts = [0]
    for line in lines:
        starts.append(starts[-1] + len(line) + 1)
    for start, end in texts:
        index = next(i for i in range(len(lines)) if starts[i + 1] > start)
        if lines[index].lstrip().startswith("#"):
            continue
        letters = [at for at in range(start, end) if source[at].isalnum() and source[at - 1] != "\\"]
        if not letters or end > starts[index + 1]:
            continue
        at = letters[len(letters) // 2] - starts[index]
        add(index, at, at + 1, "x" if lines[index][at] != "x" else "y", "text")
    return sorted(found, key=lambda mutant: mutant.line)
