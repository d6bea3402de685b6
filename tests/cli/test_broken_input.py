"""Input that can't be read: what is said, what of it survives, and that a file is written all the same."""

import os
import resource
import unittest

from program_case import BOARD, FOOTPRINTS, NO_OUTLINE, ProgramCase

# One layer, complete before anything goes wrong.
WHOLE = b"(pcf (header (unit MIL)) (technologyContainer (technology t (conductiveLayer (layerNumber 7)))))"

NESTED = 1000000
STACK_BYTES = 256 * 1024
LONG_STRING = 100 * 1000 * 1000


def failure(line, rest):
    return b"Parsing failed at line: %d near " % line + rest + b"\n"


# Each text fails on the line that the second column gives, with the third one left of that line.
BROKEN = [
    # A list for the head of a list.
    ("two parentheses alone", b"((", 1, b"("),
    ("two parentheses, first line", b"((a) b)\n(c)\n", 1, b"(a) b)"),
    ("two parentheses, middle line", b"(a\n((b) c)\n(d))\n", 2, b"(b) c)"),
    ("two parentheses, last line", b"(a\n(b)\n((c\n", 3, b"(c"),
    ("two parentheses, last line without end", b"(a\n(b)\n((c", 3, b"(c"),
    ("two parentheses with a blank between", b"(a ( (b)))", 1, b" (b)))"),
    ("two parentheses on two lines", b"(a\n(\n(b)))\n", 2, b""),
    ("two parentheses with a comment between", b"(a ( ; b\n (c)))\n", 1, b" ; b"),
    # No head.
    ("a parenthesis alone", b"(", 1, b""),
    ("a parenthesis at the end, first line", b"(a (\n", 1, b""),
    ("a parenthesis at the end, last line", b"(a\n(b)\n(\n", 3, b""),
    ("a parenthesis at the end, last line without end", b"(a\n(b)\n(", 3, b""),
    ("a parenthesis and lines of blanks", b"(a\n( \n\t\n\n", 2, b" "),
    ("a parenthesis and a comment", b"(a\n( ; b\n", 2, b" ; b"),
    # A quote that nothing closes.
    ("a quote alone", b'"', 1, b'"'),
    ("a quote, first line", b'(a "b\n(c)\n', 1, b'"b'),
    ("a quote, middle line", b'(a\n (b "c d)\n (e))\n', 2, b'"c d)'),
    ("a quote, last line", b'(a\n(b)\n "c)\n', 3, b'"c)'),
    ("a quote, last line without end", b'(a\n(b)\n "c)', 3, b'"c)'),
    ("a quote behind the last line", b'(a\n(b)\n"', 3, b'"'),
    ("a quote as a head", b'(a ("b', 1, b'"b'),
    ("a quote behind a string of two lines", b'(a "b\nc" "d\n', 2, b'"d'),
    ("a quote in a list that is passed over", b'(a (string "b)', 1, b'"b)'),
    # What stands in the line comes out as it is.
    ("bytes that are no text", b"((\xff\x83\x5c\x00\x01\xc3\xa9\n", 1, b"(\xff\x83\x5c\x00\x01\xc3\xa9"),
    ("a line of many blanks", b"((a" + b" " * 5000 + b"b\n", 1, b"(a" + b" " * 5000 + b"b"),
    ("a byte order mark", b"\xef\xbb\xbf((\n", 1, b"("),
]

# Odd, and no failure.
HARMLESS = [
    ("nothing", b""),
    ("a byte order mark alone", b"\xef\xbb\xbf"),
    ("blanks", b" \t\r\n\v\f\n"),
    ("a comment without a line end", b"; a ((("),
    ("words and closing parentheses", b"a 1 \"b\" ) ))) c"),
    ("lists that nothing closes", b"(a (b (c 1 \"d\""),
    ("a name and nothing more", b"(pcf"),
    ("an empty list", b"() (a ())"),
    ("a quoted head", b"(\"a b\" c)"),
    ("a number for a head", b"(1 2 3)"),
    ("a NUL byte", b"\x00(a \x00)"),
]


class BrokenInputTest(ProgramCase):
    def for_every_broken_text(self, check):
        for name, text, line, rest in BROKEN:
            for line_end in (b"\n", b"\r\n"):
                with self.subTest(name=name, line_end=line_end):
                    self.new_folder()
                    check(text.replace(b"\n", line_end), failure(line, rest))

    def test_a_broken_board_file_is_told_and_is_an_empty_board(self):
        def check(text, told):
            self.put_board(pcf=text)
            self.assert_run("board.pcf", stdout=told, stderr=NO_OUTLINE, made={b"board.qrl": self.output_of(pcf=b"")})

        self.for_every_broken_text(check)

    def test_a_broken_footprint_file_is_told_and_is_an_empty_library(self):
        def check(text, told):
            self.put_board(ftf=text)
            self.assert_run("board.pcf", stdout=told, made={b"board.qrl": self.output_of(ftf=b"")})

        self.for_every_broken_text(check)

    def test_what_was_complete_before_the_failure_is_kept(self):
        whole = self.output_of(pcf=WHOLE)
        self.assertIn(b'StackupLayer("Conductive_7", ', whole)
        for text, rest in ((b" ((", b"("), (b" (a (", b""), (b' "a', b'"a')):
            with self.subTest(text=text):
                self.new_folder()
                self.put_board(pcf=WHOLE + text)
                self.assert_run("board.pcf", stdout=failure(1, rest), stderr=NO_OUTLINE, made={b"board.qrl": whole})

    def test_nothing_is_read_behind_the_failure(self):
        self.put_board(pcf=b"(a ())\n((\n" + BOARD)
        self.assert_run("board.pcf", stdout=failure(2, b"("), stderr=NO_OUTLINE,
                        made={b"board.qrl": self.output_of(pcf=b"")})

    def test_the_failing_line_is_counted_from_one(self):
        self.put_board(pcf=b"(a\n" + b"(b)\n" * 8 + b"((c)\n(d))\n")
        self.assert_run("board.pcf", stdout=failure(10, b"(c)"), stderr=NO_OUTLINE,
                        made={b"board.qrl": self.output_of(pcf=b"")})

    def test_two_files_that_are_broken_at_the_first_line_give_an_empty_model(self):
        self.put_board(pcf=b"((pcf", ftf=b"((ftf")
        self.assert_run("board.pcf", stdout=failure(1, b"(ftf") + failure(1, b"(pcf"), stderr=NO_OUTLINE,
                        made={b"board.qrl": self.output_of(pcf=b"", ftf=b"")})

    def test_the_missing_side_file_is_told_ahead_of_the_failures(self):
        self.put_board(pcf=b"((pcf", ftf=b"((ftf", txt=None)
        told = b"TXT file board.txt does not exist\n" + failure(1, b"(ftf") + failure(1, b"(pcf")
        self.assert_run("board.pcf", stdout=told, stderr=NO_OUTLINE,
                        made={b"board.qrl": self.output_of(pcf=b"", ftf=b"")})

    def test_what_is_odd_only_is_passed_over_in_silence(self):
        for name, text in HARMLESS:
            with self.subTest(name=name):
                self.new_folder()
                self.put_board(pcf=text, ftf=text)
                self.assert_run("board.pcf", stderr=NO_OUTLINE,
                                made={b"board.qrl": self.output_of(pcf=b"", ftf=b"")})

    def test_line_ends_make_no_difference(self):
        self.put_board(pcf=BOARD.replace(b"\n", b"\r\n"), ftf=FOOTPRINTS.replace(b"\n", b"\r\n"))
        self.assert_run("board.pcf", made={b"board.qrl": self.output_of()})


class HugeInputTest(ProgramCase):
    """Runs with a stack on which a call per level of a million would not find room."""

    def assert_huge(self, text, stdout=b""):
        for pcf, ftf, stderr in ((text, FOOTPRINTS, NO_OUTLINE), (BOARD, text, b"")):
            with self.subTest(broken="board" if pcf is text else "footprints"):
                self.new_folder()
                self.put_board(pcf=pcf, ftf=ftf)
                result = self.run_program("board.pcf", preexec_fn=self.limit_stack)
                self.assert_result(result, stdout=stdout, stderr=stderr)
                expected = self.output_of(pcf=b"" if pcf is text else pcf, ftf=b"" if ftf is text else ftf)
                with open(self.path("board.qrl"), "rb") as file:
                    self.assert_bytes(expected, file.read(), "board.qrl")
                for name in os.listdir(self.folder):
                    os.remove(os.path.join(self.folder, name))

    @staticmethod
    def limit_stack():
        resource.setrlimit(resource.RLIMIT_STACK, (STACK_BYTES, STACK_BYTES))

    def test_a_million_open_lists(self):
        self.assert_huge(b"(a" * NESTED)

    def test_a_million_nested_lists(self):
        self.assert_huge(b"(pcf " + b"(a" * NESTED + b")" * NESTED + b")")

    def test_a_million_nested_lists_with_a_broken_one_inside(self):
        self.assert_huge(b"(a " * NESTED + b"((\n", failure(1, b"("))

    def test_a_million_nameless_lists(self):
        self.assert_huge(b"(pcf " + b"()" * NESTED + b")")

    def test_a_string_of_a_hundred_megabytes(self):
        self.assert_huge(b'(a "' + b"x" * LONG_STRING + b'")')

    def test_an_open_string_of_a_hundred_megabytes(self):
        self.assert_huge(b'(a "\n' + b"x" * LONG_STRING, failure(1, b'"'))


if __name__ == "__main__":
    unittest.main()
