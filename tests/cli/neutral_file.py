"""The text form of the neutral file, read strictly and written: bytes to a tree and back.

Reading refuses every text that docs/qrl-format.md doesn't allow, so that a file which is read is also well laid out. Texts
and names are bytes, because a file may hold bytes that aren't UTF-8.
"""

import dataclasses
import decimal
import math
import re

INT_LIMIT = 2 ** 31

IDENTIFIER = re.compile(rb"[A-Za-z_][A-Za-z0-9_]*")
QUOTED = re.compile(rb'"((?:[^"\\\x00-\x1f\x7f]|\\(?:["\\nrt]|x[0-9A-F]{2}))*)"')
NUMBER = re.compile(rb"-?(?:inf|nan|[0-9][0-9.e+-]*)")
INT = re.compile(rb"0|-?[1-9][0-9]*")
DOUBLE = re.compile(rb"-?[0-9]+(?:\.[0-9]+)?(?:e[+-][0-9]{2,3})?|nan|-?inf")
ESCAPE = re.compile(rb"\\(x..|.)")
ESCAPED = re.compile(rb'["\\\x00-\x1f\x7f]')

SHORT_ESCAPES = {b'"': b'"', b"\\": b"\\", b"n": b"\n", b"r": b"\r", b"t": b"\t"}
ESCAPE_OF = {character: b"\\" + letter for letter, character in SHORT_ESCAPES.items()}


@dataclasses.dataclass(slots=True)
class Block:
    name: bytes
    items: list


@dataclasses.dataclass(slots=True)
class Func:
    name: bytes
    arguments: list


@dataclasses.dataclass(slots=True)
class NamedValue:
    name: bytes
    value: object


class FormError(Exception):
    """The text isn't of the form; the message names the line and what is wrong there."""


def double_text(value):
    """The shortest text that reads back to `value`, fixed or scientific, fixed where both are as long."""
    if math.isnan(value):
        return b"nan"
    if math.isinf(value):
        return b"-inf" if value < 0 else b"inf"
    sign = "-" if math.copysign(1.0, value) < 0 else ""
    # The shortest digits that tell the number from its neighbours, with the power of ten of the last one.
    _, digits, power = decimal.Decimal(repr(abs(value))).as_tuple()
    digits = "".join(map(str, digits)).lstrip("0") or "0"
    stripped = digits.rstrip("0") or "0"
    power = power + len(digits) - len(stripped) if stripped != "0" else 0
    first = power + len(stripped) - 1
    scientific = stripped[0] + ("." + stripped[1:] if len(stripped) > 1 else "") + f"e{first:+03d}"
    if power >= 0:
        fixed = str(int(abs(value)))
    elif first >= 0:
        fixed = stripped[:first + 1] + "." + stripped[first + 1:]
    else:
        fixed = "0." + "0" * (-first - 1) + stripped
    text = sign + (fixed if len(fixed) <= len(scientific) else scientific)
    return (text if "." in text or "e" in text else text + ".0").encode()


def string_text(text):
    def escape(match):
        return ESCAPE_OF.get(match[0], b"\\x%02X" % match[0][0])

    return b'"' + ESCAPED.sub(escape, text) + b'"'


def name_text(name):
    return name if IDENTIFIER.fullmatch(name) else string_text(name)


def value_text(value):
    if isinstance(value, bool):
        return b"true" if value else b"false"
    if isinstance(value, int):
        return b"%d" % value
    return double_text(value) if isinstance(value, float) else string_text(value)


class Reader:
    def __init__(self, text):
        self.text = text
        self.at = 0

    def fail(self, what):
        raise FormError(f"line {self.text.count(10, 0, self.at) + 1}: {what}")

    def is_next(self, text):
        return self.text.startswith(text, self.at)

    def take(self, text):
        if not self.is_next(text):
            self.fail(f"{text!r} expected, and not {self.text[self.at:self.at + 20]!r}")
        self.at += len(text)

    def read_file(self):
        name = self.read_name()
        self.take(b" {\n")
        root = self.read_block(name, 0)
        if self.at != len(self.text):
            self.fail("text behind the root block")
        return root

    def read_block(self, name, depth):
        """What stands behind the opening brace of a block whose name stands at `depth`."""
        items = []
        end = b"\t" * depth + b"}\n"
        while not self.is_next(end):
            self.take(b"\t" * (depth + 1))
            items.append(self.read_item(depth + 1))
        self.take(end)
        return Block(name, items)

    def read_item(self, depth):
        name = self.read_name()
        if self.is_next(b" {"):
            self.take(b" {\n")
            return self.read_block(name, depth)
        if self.is_next(b"("):
            item = self.read_func(name, depth)
        else:
            self.take(b" = ")
            item = NamedValue(name, self.read_value())
        self.take(b"\n")
        return item

    def read_func(self, name, depth):
        """A func from its parenthesis on, on a line that stands at `depth`."""
        self.take(b"(")
        func = Func(name, [])
        line = b"\n" + b"\t" * (depth + 1)
        if self.is_next(b")"):
            self.take(b")")
        elif self.is_next(b"\n"):
            self.read_lines(func, line, depth + 1)
            if len(func.arguments) == 1:
                self.fail("an only argument on a line of its own")
        elif self.is_func():
            func.arguments.append(self.read_func(self.read_name(), depth))
            self.take(b")")
        else:
            func.arguments.append(self.read_value())
            while self.is_next(b", "):
                self.take(b", ")
                if self.is_func():
                    self.fail("a func on the line of other arguments")
                func.arguments.append(self.read_value())
            if self.is_next(b","):
                self.take(b",")
                self.read_lines(func, line, depth + 1)
            else:
                self.take(b")")
        return func

    def read_lines(self, func, line, depth):
        """The first argument that is a func and all behind it, each on a line of its own."""
        self.take(line)
        if not self.is_func():
            self.fail("a value on a line of its own ahead of the first func")
        func.arguments.append(self.read_func(self.read_name(), depth))
        while self.is_next(b","):
            self.take(b",")
            self.take(line)
            func.arguments.append(self.read_func(self.read_name(), depth) if self.is_func() else self.read_value())
        self.take(b")")

    def is_func(self):
        name = IDENTIFIER.match(self.text, self.at) or QUOTED.match(self.text, self.at)
        return name is not None and self.text.startswith(b"(", name.end())

    def read_name(self):
        identifier = IDENTIFIER.match(self.text, self.at)
        if identifier:
            self.at = identifier.end()
            return identifier[0]
        name = self.read_string()
        if IDENTIFIER.fullmatch(name):
            self.fail(f"the name {name!r} is quoted")
        return name

    def read_string(self):
        quoted = QUOTED.match(self.text, self.at)
        if not quoted:
            self.fail(f"a text expected, and not {self.text[self.at:self.at + 20]!r}")
        self.at = quoted.end()
        if b"\\" not in quoted[1]:
            return quoted[1]
        text = ESCAPE.sub(lambda match: SHORT_ESCAPES.get(match[1]) or bytes.fromhex(match[1][1:].decode()), quoted[1])
        if string_text(text) != quoted[0]:
            self.fail(f"{quoted[0]!r} escapes what needs no escape or has a shorter one")
        return text

    def read_value(self):
        if self.is_next(b'"'):
            return self.read_string()
        # The non-finite numbers are words too.
        number = NUMBER.match(self.text, self.at)
        word = number or IDENTIFIER.match(self.text, self.at)
        if not word:
            self.fail(f"a value expected, and not {self.text[self.at:self.at + 20]!r}")
        self.at = word.end()
        if word[0] in (b"true", b"false"):
            return word[0] == b"true"
        if INT.fullmatch(word[0]) and -INT_LIMIT <= int(word[0]) < INT_LIMIT:
            return int(word[0])
        if DOUBLE.fullmatch(word[0]):
            value = float(word[0])
            if double_text(value) == word[0]:
                return value
        return self.fail(f"{word[0]!r} is no number or not the shortest one")


def read(text):
    """The root block of a whole file."""
    return Reader(text).read_file()


def write_func(func, depth, pieces):
    pieces.append(name_text(func.name) + b"(")
    arguments = func.arguments
    first = next((i for i, argument in enumerate(arguments) if isinstance(argument, Func)), len(arguments))
    pieces.append(b", ".join(map(value_text, arguments[:first])))
    if len(arguments) == 1 and first == 0:
        write_func(arguments[0], depth, pieces)
    else:
        for i in range(first, len(arguments)):
            pieces.append((b",\n" if i else b"\n") + b"\t" * (depth + 1))
            if isinstance(arguments[i], Func):
                write_func(arguments[i], depth + 1, pieces)
            else:
                pieces.append(value_text(arguments[i]))
    pieces.append(b")")


def write_item(item, depth, pieces):
    pieces.append(b"\t" * depth)
    if isinstance(item, Block):
        pieces.append(name_text(item.name) + b" {\n")
        for inner in item.items:
            write_item(inner, depth + 1, pieces)
        pieces.append(b"\t" * depth + b"}\n")
    elif isinstance(item, Func):
        write_func(item, depth, pieces)
        pieces.append(b"\n")
    else:
        pieces.append(name_text(item.name) + b" = " + value_text(item.value) + b"\n")


def write(root):
    """The file of a root block."""
    pieces = []
    write_item(root, 0, pieces)
    return b"".join(pieces)
