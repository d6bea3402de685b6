"""What is shown to a newcomer: the README's board and the boards under examples/."""

import os
import re
import unittest

from program_case import ProgramCase

PROJECT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")


class ReadmeTest(ProgramCase):
    def test_the_tiny_board_gives_the_lines_that_are_shown(self):
        with open(os.path.join(PROJECT, "README.md"), encoding="utf-8") as file:
            board, shown = re.findall(r"```\n(.*?)```", file.read(), re.DOTALL)[:2]
        self.put_board(pcf=board.encode(), ftf=b"(ftf library)")
        self.assertEqual(b"", self.run_program("board.pcf").stdout)
        with open(self.path("board.qrl"), encoding="utf-8") as file:
            written = iter(file.read().splitlines())
        for line in shown.splitlines():
            self.assertIn(line, written, "not written, or not in this order")


class ExamplesTest(ProgramCase):
    def test_the_default_example_is_written_but_for_the_via_that_it_says(self):
        folder = os.path.join(PROJECT, "examples")
        result = self.run_program(os.path.join(folder, "board.pcf"), "out.qrl")
        self.assertEqual(b"Padstack VIA99 not found in ftf file\n", result.stdout)
        self.assertEqual(b"", result.stderr)
        self.assertEqual(0, result.status)
        with open(self.path("out.qrl"), encoding="utf-8") as file:
            text = file.read()
        # Five components have a footprint; one via of three is known by its padstack and one more by another span.
        self.assertEqual(5, text.count("\tLayoutComp {\n"))
        self.assertEqual(6, text.count("\tCompInst {\n"))
        self.assertEqual(2, len(re.findall(r"\tVia\(", text)))
        ids = [int(number) for number in re.findall(r"\b(?:Via|Path|Circle|Polygon)\((\d+),", text)]
        self.assertEqual(list(range(1, len(ids) + 1)), ids)

    def run_example(self, name):
        """The result of an example whose files are copied into the folder, and its neutral file."""
        for extension in (".pcf", ".ftf"):
            with open(os.path.join(PROJECT, "examples", name + extension), "rb") as file:
                self.put(name + extension, file.read())
        result = self.run_program(name + ".pcf")
        with open(self.path(name + ".qrl"), encoding="utf-8") as file:
            return result, file.read()

    def test_a_missing_parenthesis_at_the_end_is_no_fault(self):
        result, text = self.run_example("layers")
        self.assertEqual(b"TXT file layers.txt does not exist\n", result.stdout)
        self.assertIn('\tDefaultUnits = "mm"\n', text)
        self.assertEqual(2, text.count('StackupLayer("Conductive_2", "MetalizedSignal", "Neither", 0.2, "Copper")'))

    def test_what_was_complete_before_a_fault_is_translated(self):
        result, text = self.run_example("broken")
        self.assertEqual(
            b"TXT file broken.txt does not exist\nParsing failed at line: 5 near (unit MM)))\n", result.stdout)
        self.assertIn('\tDefaultUnits = "mil"\n', text)
        self.assertEqual(2, text.count('StackupLayer("Conductive_1", "Signal", "Top", 0.2, "Copper")'))


if __name__ == "__main__":
    unittest.main()
