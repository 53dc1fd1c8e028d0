"""The small faults that the mutation check puts into a source file, one at a time."""

import dataclasses
import re

TOKEN = re.compile(
    r"""
    (?P<skip>//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*|\boperator\s*(?:\(\)|[^\s\w(]+))
  | (?P<string>L?"(?:\\.|[^"\\\n])*")
  | (?P<char>L?'(?:\\.|[^'\\\n])*')
  | (?P<number>\b(?:0x[0-9A-Fa-f']+|\d[\d']*(?:\.\d+)?)[uUlL]*\b)
  | (?P<word>\b[A-Za-z_]\w*\b)
  | (?P<step>\+\+|--)
  | (?P<binary>(?<=\ )(?:==|!=|<=|>=|>>|&&|\|\||\+=|-=|\*=|/=|\|=|&=|[-+*/%<>&|])(?=[\ \n]))
  | (?P<not>!(?=[\w(]))
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

OPERATORS = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "+": "-", "-": "+",
    "*": "/", "/": "*", "%": "*", ">>": "<<", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "|=": "&=",
    "&=": "|=", "&": "|", "|": "&", "++": "--", "--": "++",
}  # fmt: skip
WORDS = {"true": "false", "false": "true"}

STATEMENT = re.compile(r"^( {4,})(?!return\b|using\b|throw\b|break\b|continue\b|case\b|static_cast<void>)[\w*(~:].*[)\w\]+-];$")
ARGUMENTS = re.compile(r"\((\w+), (\w+)\)")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """A piece of one file and what to put in its place."""

    file: str
    start: int
    end: int
    text: str
    kind: str
    line: int

    def apply(self, source):
        return source[: self.start] + self.text + source[self.end :]

    def describe(self, source):
        first = source.rfind("\n", 0, self.start) + 1
        last = source.find("\n", self.end)
        before = " / ".join(line.strip() for line in source[first:last].split("\n"))
        after = " / ".join(line.strip() for line in (source[first : self.start] + self.text + source[self.end : last]).split("\n"))
        return f"{self.file}: {self.kind}: {before}  ->  {after}"


def increment(number):
    number = number.replace("'", "")
    digits = re.match(r"0x[0-9A-Fa-f]+|[\d.]+", number).group()
    rest = number[len(digits) :]
    if digits.startswith("0x"):
        return hex(int(digits, 16) ^ 1) + rest
    return (str(float(digits) + 1) if "." in digits else str(int(digits) + 1)) + rest


def token_faults(source):
    for match in TOKEN.finditer(source):
        kind, text = match.lastgroup, match.group()
        if kind == "number":
            yield match.start(), match.end(), increment(text), "constant"
        elif kind == "string" and not source[:match.start()].endswith(('extern ', '#include ')):
            yield match.start(), match.end(), text[:-1] + '?"', "constant"
        elif kind == "char":
            yield match.start(), match.end(), "L'?'" if text.startswith("L") else "'?'", "constant"
        elif kind == "word" and text in WORDS:
            yield match.start(), match.end(), WORDS[text], "constant"
        elif kind in ("step", "binary"):
            yield match.start(), match.end(), OPERATORS[text], "operator"
        elif kind == "not":
            yield match.start(), match.end(), "", "operator"


def closing(source, opening):
    depth = 0
    for place in range(opening, len(source)):
        depth += {"(": 1, ")": -1}.get(source[place], 0)
        if depth == 0:
            return place
    return -1


def condition_faults(source):
    for match in re.finditer(r"\bif \(", source):
        end = closing(source, match.end() - 1)
        condition = source[match.end() : end]
        if ";" not in condition:
            yield match.end(), end, f"!({condition})", "condition"


def line_faults(source):
    """Statements dropped, statements exchanged with the next one, arguments exchanged."""
    start, previous = 0, None
    for line in source.split("\n"):
        match = STATEMENT.match(line)
        if match:
            indent = len(match.group(1))
            yield start + indent, start + len(line), ";", "statement dropped"
            if previous and previous[2] == indent:
                both = source[previous[0] : start + len(line)]
                first, second = both.split("\n")
                yield previous[0], start + len(line), second + "\n" + first, "order"
        previous = (start, line, match and len(match.group(1)))
        for pair in ARGUMENTS.finditer(line):
            if pair.group(1) != pair.group(2) and line.startswith("    "):
                yield start + pair.start(), start + pair.end(), f"({pair.group(2)}, {pair.group(1)})", "order"
        start += len(line) + 1


def all_mutants(file, source):
    faults = set(token_faults(source)) | set(condition_faults(source)) | set(line_faults(source))
    comments = [match.span() for match in TOKEN.finditer(source) if match.lastgroup == "skip"]
    for start, end, text, kind in sorted(faults):
        if not any(begin <= start < stop for begin, stop in comments):
            yield Mutant(file, start, end, text, kind, source.count("\n", 0, start) + 1)
