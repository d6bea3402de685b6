"""The mutants of the sources: each place at which one small thing can be changed, and what stands there then.

    boundary     <  becomes <=           always, never   a condition becomes true or false
    negated      == becomes !=, < >=     turned          the result of a function that returns a bool becomes its opposite
    logical      && becomes ||, ! goes   constant        a number becomes another
    arithmetic   +  becomes -            dropped         a statement that only calls something is left out
"""

import bisect
import dataclasses
import re

from .cpp_text import CppText

# What stands between two blanks, which the layout puts around operators and around no angle bracket, pointer or sign.
BETWEEN_BLANKS = {
    "<": [("boundary", "<="), ("negated", ">=")], ">": [("boundary", ">="), ("negated", "<=")],
    "<=": [("boundary", "<"), ("negated", ">")], ">=": [("boundary", ">"), ("negated", "<")],
    "==": [("negated", "!=")], "!=": [("negated", "==")], "&&": [("logical", "||")], "||": [("logical", "&&")],
    "+": [("arithmetic", "-")], "-": [("arithmetic", "+")], "*": [("arithmetic", "/")], "/": [("arithmetic", "*")],
    "+=": [("arithmetic", "-=")], "-=": [("arithmetic", "+=")],
}
STEPS = {"++": "--", "--": "++"}
TOLERANCE = 0.01  # a smaller number is a tolerance, to which 1 would be no small change


@dataclasses.dataclass(frozen=True)
class Mutant:
    file: str
    line: int
    column: int
    kind: str
    start: int
    end: int
    old: str
    new: str

    @property
    def name(self):
        return f"{self.file}:{self.line}:{self.column}:{self.kind}"

    @property
    def change(self):
        return " ".join(f"{self.old} -> {self.new or 'nothing'}".split())

    def is_of(self, name):
        """Whether a name is that of the mutant, of its line or of its file."""
        return f"{self.name}:".startswith(f"{name}:")


def read_mutants(project):
    """All mutants, in the order of the sources."""
    for path in sorted(project.glob("src/**/*")):
        if path.suffix in (".h", ".cpp"):
            yield from find_mutants(str(path.relative_to(project)), path.read_text())


def find_mutants(file, source):
    lines = [0] + [match.end() for match in re.finditer("\n", source)]
    for kind, start, end, new in find_changes(CppText(source)):
        line = bisect.bisect_right(lines, start)
        yield Mutant(file, line, start - lines[line - 1] + 1, kind, start, end, source[start:end], new)


def find_changes(text):
    """Yields kind, start, end and replacement. A static_assert is passed over: it speaks to the compiler only."""
    i = 0
    while i < len(text.tokens):
        if text.get(i) == "static_assert":
            i = text.partner[i + 1]
        yield from change_token(text, i)
        i += 1


def change_token(text, i):
    token = text.tokens[i]
    if token.kind == "sign":
        yield from change_operator(text, i)
    elif token.kind == "number":
        yield "constant", token.start, token.end, next_number(token.text)
    elif token.text in ("if", "while") and text.get(i + 1) == "(":
        yield from change_condition(text, i)
    elif token.text == "return" and text.returns_bool(i):
        start, end = text.tokens[i + 1].start, text.tokens[text.find_end(i)].start
        yield "turned", start, end, f"!({text.source[start:end]})"
    elif token.kind == "word" and text.begins_statement(i) and text.is_call(i):
        yield "dropped", token.start, text.tokens[text.find_end(i)].start, ""


def change_operator(text, i):
    token = text.tokens[i]
    if text.get(i - 1) == "operator":
        return  # the name of a function
    if token.text in STEPS:
        yield "arithmetic", token.start, token.end, STEPS[token.text]
    elif token.text == "!":
        yield "logical", token.start, token.end, ""
    elif text.stands_between_blanks(i):
        for kind, new in BETWEEN_BLANKS.get(token.text, []):
            yield kind, token.start, token.end, new


def change_condition(text, i):
    """A while is never made to go on for ever: that would be killed by any test, and late."""
    first, last = i + 2, text.partner[i + 1]
    for j in range(first, last):
        if text.get(j) == ";":
            first = j + 1  # what stands before the condition in the parentheses declares something
    start, end = text.tokens[first].start, text.tokens[last].start
    if text.get(i) == "if":
        yield "always", start, end, "true"
    yield "never", start, end, "false"


def next_number(text):
    """1 for 0, 0 for 1, else the next whole number, or ten times a tolerance."""
    match = re.fullmatch(r"(0[xX][0-9a-fA-F']+|[\d']+)([uUlLzZ]*)", text)
    if match:
        digits = match[1].replace("'", "")
        value = int(digits, 8 if re.fullmatch("0[0-7]+", digits) else 0)
        return f"{0 if value == 1 else value + 1}{match[2]}"
    return f"({text} * 10)" if 0 < float(text.replace("'", "")) < TOLERANCE else f"({text} + 1)"
