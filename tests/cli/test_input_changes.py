"""Changes of a board's files that change nothing of what they say, and so must not change the neutral file."""

import decimal
import os
import random
import re
import unittest

import boards
from list_file import (BYTE_ORDER_MARK, COMMENT, List, is_number, is_open_text, join, must_part, parse, split, text_of, walk,
                       write)
from program_case import ProgramCase

BLANKS = (b" ", b"\t", b"\r", b"\n", b"\r\n", b"\v", b"\f")
COMMENT_LINE = b';) "comment (\r\n'
# The one keyword whose case counts.
CASE_COUNTS = b"fpadstack"
# Lists whose first value is a keyword, and lists whose values are read as real numbers.
KEYWORD_VALUES = (b"unit", b"type", b"placementside", b"status", b"arc", b"map", b"penshape")
REAL_VALUES = (b"pt", b"width", b"height", b"r", b"outlinewidth", b"circle", b"in", b"out", b"bridgewidth", b"center", b"angle",
               b"rangle")
# Lists whose first value names something that the file has defined, and which the definition's spelling stands for; with the
# list around it where the same list defines or draws elsewhere.
REFERENCES = ((b"pad", b"connect"), (b"pad", b"noconnect"), (b"pad", b"clearance"), (b"pad", b"thermal"),
              (b"padstack", b"padstackgroup"), (b"padstack", b"layer"), (b"footprint", b"component"),
              (b"reversefootprint", b"component"), (b"footlayer", b"padset"), (b"footlayer", b"correspondence"), (b"pin", b"comp"))
UNKNOWN = (List(b"unknownList", [b"5", b"word", b'"a ) text"', List(b"", []), List(b"pt", [b"1", b"2"])]), List(b"", []),
           List(b'"unknown list"', []), List(b"17", [b"17"]))


def swap_case(token):
    """The other case of the letters A to Z, which are the only ones that readers fold."""
    return re.sub(rb"[A-Za-z]+", lambda letters: letters[0].swapcase(), token)


def random_case(token, chance):
    return b"".join(swap_case(token[i:i + 1]) if chance.random() < 0.5 else token[i:i + 1] for i in range(len(token)))


def with_gaps(content, make):
    """The file with other gaps. `make` takes the gap and whether it parts what would be one token without."""
    tokens, gaps = split(content)
    mark = BYTE_ORDER_MARK if content.startswith(BYTE_ORDER_MARK) else b""
    made = []
    for i, gap in enumerate(gaps):
        needed = 0 < i < len(tokens) and must_part(tokens[i - 1], tokens[i])
        # A text that is never closed holds all that follows it.
        is_closed = i == 0 or not is_open_text(tokens[i - 1])
        made.append(make(gap[len(mark):] if i == 0 else gap, needed) if is_closed else gap)
    return mark + join(tokens, made)


def with_tokens(content, change):
    """The file with other tokens. `change` takes the token and whether it is the head of a list."""
    tokens, gaps = split(content)
    return join([change(token, i > 0 and tokens[i - 1] == b"(") if token not in (b"(", b")") else token
                 for i, token in enumerate(tokens)], gaps)


def with_lists(content, change):
    """The file with other lists, and as it is where nothing changes. `change` takes a list and the keys of those around it.
    A file with a fault stays too: behind the fault it has no lists."""
    top = parse(content)
    if top is None:
        return content
    before = write(top)
    for found, path in walk(top):
        change(found, path)
    after = write(top)
    return content if after == before else after


def change_first_value(found, change):
    """Changes the text that a list begins with, if it does."""
    if found.elements and not isinstance(found.elements[0], List) and not is_number(found.elements[0]):
        found.elements[0] = change(found.elements[0])


def with_unknown_lists(content, chance):
    """The file with lists that nobody knows, behind the values of a list, which are read from its beginning on."""
    top = parse(content)
    if top is None:
        return content

    def insert(found):
        values = [i for i, element in enumerate(found.elements) if not isinstance(element, List)]
        first = values[-1] + 1 if values else 0
        for i in range(len(found.elements), first - 1, -1):
            if chance.random() < 0.3:
                found.elements.insert(i, chance.choice(UNKNOWN))

    for found, _ in [*walk(top), (top, ())]:
        # An empty list has no place for more, and one that is passed over has no content.
        if found is top or (found.head and found.key() not in (b"propertys", b"string")):
            insert(found)
    return write(top)


def other_spelling(token, chance):
    """Another text of the same real number."""
    number = decimal.Decimal(token.decode())
    if not is_number(token) or number == 0 or abs(number) > 2 ** 52:
        return token
    sign, digits, exponent = number.as_tuple()
    digits = "".join(map(str, digits))
    spellings = [f"{digits}e{exponent}", f"00{digits}E{exponent}", f"{digits}.0e{exponent:+d}", f"{digits}00e{exponent - 2}",
                 f".{digits}e{exponent + len(digits)}"]
    if exponent == 0:
        spellings += [digits + ".", digits + ".0", "0" + digits]
    return (("-" if sign else chance.choice(("", "+"))) + chance.choice(spellings)).encode()


def without_last_parentheses(content):
    tokens, gaps = split(content)
    # Nothing may be left that is a fault where a file ends in it.
    while len(tokens) > 1 and tokens[-1] == b")" and tokens[-2] != b"(":
        tokens.pop()
        gaps.pop()
    return join(tokens, gaps)


def side_lines(txt, change):
    """The side file with other lines. `change` takes a line without its end, and gives some."""
    mark = BYTE_ORDER_MARK if txt.startswith(BYTE_ORDER_MARK) else b""
    return mark + b"".join(line + b"\n" for old in re.split(rb"\r?\n", txt[len(mark):]) for line in change(old))


def is_comment(line):
    return line.lstrip().startswith(b"#")


class ChangesCase(ProgramCase):
    def translate(self, board, stem="board"):
        """The neutral file and what is told. The line of a fault moves with every line end, and what stands there with it."""
        self.new_folder()
        self.put_board(stem, board.pcf, board.ftf, board.txt)
        result = self.run_program(stem + ".pcf")
        self.assertEqual(0, result.status)
        told = re.sub(rb"(Parsing failed) at line: .*", rb"\1", result.stdout)
        return self.files()[os.fsencode(stem) + b".qrl"], told, result.stderr

    def assert_same(self, board, other, tells_names=True):
        expected, actual = self.translate(board), self.translate(other)
        self.assert_bytes(expected[0], actual[0], "neutral file")
        if tells_names:
            self.assert_bytes(expected[1], actual[1], "standard output")
        self.assert_bytes(expected[2], actual[2], "standard error")


class InputChangesTest(ChangesCase):
    def assert_neutral(self, change, tells_names=True):
        """Asserts that `change`, which takes a file's content and a source of chance, doesn't change what comes out, and
        that it does change some boards."""
        changed = 0
        for board in boards.every():
            with self.subTest(board=board.name):
                chance = random.Random(board.name)
                other = board.with_files(pcf=change(board.pcf, chance), ftf=change(board.ftf, chance))
                changed += other != board
                self.assert_same(board, other, tells_names)
        self.assertLess(1, changed, "boards that the change changes")

    def test_other_blanks(self):
        self.assert_neutral(lambda content, chance: with_gaps(
            content, lambda gap, needed: b"".join(chance.choices(BLANKS, k=chance.randint(1, 4)))))

    def test_no_blanks_where_none_are_needed(self):
        self.assert_neutral(lambda content, _: with_gaps(content, lambda gap, needed: b" " if needed else b""))

    def test_every_token_on_a_line_of_its_own(self):
        for end in (b"\n", b"\r\n", b"\r"):
            with self.subTest(end=end):
                self.assert_neutral(lambda content, _, end=end: with_gaps(content, lambda gap, needed: end))

    def test_other_line_ends(self):
        self.assert_neutral(lambda content, _: with_gaps(content, lambda gap, needed: gap.replace(b"\r\n", b"\n")
                                                         if b"\r" in gap else gap.replace(b"\n", b"\r\n")))

    def test_comments_behind_every_token(self):
        self.assert_neutral(lambda content, _: with_gaps(content, lambda gap, needed: COMMENT_LINE + gap))

    def test_no_comments(self):
        self.assert_neutral(lambda content, _: with_gaps(content, lambda gap, needed: COMMENT.sub(b" ", gap)))

    def test_a_byte_order_mark(self):
        self.assert_neutral(lambda content, _: content.removeprefix(BYTE_ORDER_MARK)
                            if content.startswith(BYTE_ORDER_MARK) else BYTE_ORDER_MARK + content)

    def test_keywords_in_any_case(self):
        def change(token, is_head, chance):
            return random_case(token, chance) if is_head and text_of(token).lower() != CASE_COUNTS else token

        self.assert_neutral(lambda content, chance: with_tokens(content, lambda *token: change(*token, chance)))

    def test_keywords_among_the_values_in_any_case(self):
        def change(found, _):
            if found.key() in KEYWORD_VALUES:
                change_first_value(found, swap_case)

        self.assert_neutral(lambda content, _: with_lists(content, change))

    def test_references_in_another_case_than_what_they_refer_to(self):
        def change(found, path):
            if (found.key(), path[-1] if path else b"") in REFERENCES:
                change_first_value(found, swap_case)

        self.assert_neutral(lambda content, _: with_lists(content, change), tells_names=False)

    def test_quotes_around_words(self):
        def change(token, _):
            return token if b'"' in token or is_number(token) else b'"' + token + b'"'

        self.assert_neutral(lambda content, _: with_tokens(content, change))

    def test_other_spellings_of_real_numbers(self):
        def change(found, chance):
            if found.key() in REAL_VALUES:
                found.elements = [other_spelling(element, chance) if not isinstance(element, List) and is_number(element)
                                  else element for element in found.elements]

        self.assert_neutral(lambda content, chance: with_lists(content, lambda found, _: change(found, chance)))

    def test_lists_that_nobody_knows(self):
        self.assert_neutral(with_unknown_lists)

    def test_tokens_outside_of_all_lists(self):
        def change(content, _):
            start = len(BYTE_ORDER_MARK) if content.startswith(BYTE_ORDER_MARK) else 0
            return content[:start] + b'stray 5 ) "te(xt" ' + content[start:]

        self.assert_neutral(change)

    def test_missing_parentheses_at_the_end(self):
        self.assert_neutral(lambda content, _: without_last_parentheses(content))

    def test_parentheses_too_many_at_the_end(self):
        self.assert_neutral(lambda content, _: content + b"\n))))))))" if parse(content) else content)

    def test_another_name_of_the_files(self):
        for board in boards.every():
            with self.subTest(board=board.name):
                expected, actual = self.translate(board), self.translate(board, "größe 2")
                self.assert_bytes(expected[0], actual[0], "neutral file")


class SideFileChangesTest(ChangesCase):
    """The same for the side file; every board that has none gets one."""

    def assert_neutral(self, change):
        for board in boards.every():
            with self.subTest(board=board.name):
                board = board.with_files(txt=board.txt if board.txt is not None else self.side_file(board))
                self.assert_same(board, board.with_files(txt=change(board.txt)))

    def side_file(self, board):
        references = [text_of(found.values()[0]) for found, _ in walk(parse(board.pcf) or parse(b""))
                      if found.key() == b"reference" and found.values()]
        return b"# parts\nReference PartNumber Value DNP\n" + b"".join(
            b'"%s" "PART %d" 10k YES\n%s PART-%d 4k7\n' % (reference, i, reference, i) for i, reference in enumerate(references))

    def test_line_ends(self):
        self.assert_neutral(lambda txt: txt.replace(b"\r\n", b"\n") if b"\r" in txt else txt.replace(b"\n", b"\r\n"))

    def test_no_line_end_at_the_end(self):
        self.assert_neutral(lambda txt: txt.rstrip(b"\r\n"))

    def test_empty_lines(self):
        self.assert_neutral(lambda txt: side_lines(txt, lambda line: (b"", line, b" \t")))

    def test_comment_lines(self):
        self.assert_neutral(lambda txt: side_lines(txt, lambda line: (b'# R1 X "Y" YES', line, b" \t#")))

    def test_no_comment_lines(self):
        self.assert_neutral(lambda txt: side_lines(txt, lambda line: () if is_comment(line) else (line,)))

    def test_lines_of_too_few_fields(self):
        self.assert_neutral(lambda txt: side_lines(txt, lambda line: (b"U1", line, b'"U1" PART')))

    def test_blanks_around_lines_and_fields(self):
        self.assert_neutral(lambda txt: side_lines(txt, lambda line: (b"\t  " + line.replace(b" ", b"   ") + b" \t ",)))

    def test_quotes_around_fields(self):
        def change(line):
            fields = [field for field in re.split(rb'[ "]', line) if field]
            return (line,) if is_comment(line) else (b" ".join(b'"' + field + b'"' for field in fields),)

        self.assert_neutral(lambda txt: side_lines(txt, change))

    def test_a_byte_order_mark(self):
        self.assert_neutral(lambda txt: txt.removeprefix(BYTE_ORDER_MARK) if txt.startswith(BYTE_ORDER_MARK)
                            else BYTE_ORDER_MARK + txt)


if __name__ == "__main__":
    unittest.main()
