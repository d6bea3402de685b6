"""Deep, wide and long inputs, and outputs far larger than the input: no limit is met, and memory grows with input and output.

QRL_LARGE_TESTS=1 in the environment turns on sizes that take more than some seconds or a gigabyte.
"""

import os
import sys
import time
import unittest

from boards import generated
from fault_case import is_sanitized
from program_case import BOARD, FOOTPRINTS, NO_OUTLINE, SIDE, TIMEOUT_SECONDS, ProgramCase, describe

IS_LARGE = os.environ.get("QRL_LARGE_TESTS") == "1"
MILLION = 1000000
STACK_BYTES = 256 * 1024

# Memory of a run: what the process takes by itself, and per byte of input and output. Sanitizers take several times that.
OWN_BYTES = 16 * MILLION
BYTES_PER_BYTE = 10

LIBRARY = b"""(ftf f (header (unit MM))
 (technologyContainer (technology t (footprintLayer (layer PAD_A (type CONDUCTIVE)))))
 (footprintContainer (pads (pad C (geometry (circle 1))))
 (padstacks (padstack P (padSet (footLayer PAD_A) (connect (pad C)))))
 (footprints (footprint F (toeprint)))))"""
PIN = b"(pin %d (layout (layer (fpadstack (pt 1 0) (padstackGroup (padstack P))))))\n"
COMPONENTS, PINS = (2000, 500) if IS_LARGE else (200, 500)


# Runs a program on a small stack and notes its greatest memory. A process counts what it was before it became another
# program, so this one stands between the tests, which hold all inputs, and the program.
MEASURE = f"""
import os, resource, sys
child = os.fork()
if child == 0:
    resource.setrlimit(resource.RLIMIT_STACK, ({STACK_BYTES}, {STACK_BYTES}))
    resource.setrlimit(resource.RLIMIT_CPU, ({TIMEOUT_SECONDS}, {TIMEOUT_SECONDS}))
    os.execv(sys.argv[2], sys.argv[2:])
_, status, usage = os.wait4(child, 0)
with open(sys.argv[1], "w") as file:
    file.write(str(usage.ru_maxrss * 1024))
sys.exit(os.waitstatus_to_exitcode(status) % 256)
"""


class LargeCase(ProgramCase):
    def run_large(self, bytes_per_byte=BYTES_PER_BYTE, pcf=BOARD, ftf=FOOTPRINTS, txt=SIDE):
        """Runs on a small stack, and gives the result and the output."""
        self.put_board(pcf=pcf, ftf=ftf, txt=txt)
        note = os.path.join(self.place, "memory")
        began = time.monotonic()
        result = self.run_program("board.pcf", prefix=(sys.executable, "-I", "-S", "-c", MEASURE, note))
        seconds = time.monotonic() - began
        output = describe(self.path("board.qrl"))
        with open(note, encoding="ascii") as file:
            memory = int(file.read())
        read = len(pcf) + len(ftf) + len(txt)
        print(f"\n{self.id().split('.')[-1]}: {read / 1e6:.1f} MB read, {len(output) / 1e6:.1f} MB written, {seconds:.2f} s, "
              f"{memory / 1e6:.0f} MB of memory", file=sys.stderr)
        if not is_sanitized(self.program):
            self.assertLess(memory, OWN_BYTES + bytes_per_byte * (read + len(output)), "bytes of memory")
        for name in self.files():
            os.remove(self.path(name))
        return result, output

    def assert_same_as(self, expected, stdout=b"", stderr=b"", **more):
        result, output = self.run_large(**more)
        self.assert_result(result, stdout=stdout, stderr=stderr)
        self.assertTrue(output == expected, "another output")


class DeepAndWideTest(LargeCase):
    def test_a_million_lists_beside_each_other(self):
        self.assert_same_as(self.output_of(), pcf=BOARD.replace(b"(header", b"(x)" * MILLION + b"(header"))
        self.assert_same_as(self.output_of(), ftf=FOOTPRINTS.replace(b"(header", b"(x)" * MILLION + b"(header"))

    def test_a_million_lists_beside_each_other_at_the_top(self):
        # Each of them is a tree of its own.
        self.assert_same_as(self.output_of(), bytes_per_byte=80, pcf=b"(x)" * MILLION + BOARD)
        self.assert_same_as(self.output_of(), bytes_per_byte=80, ftf=b"(x)" * MILLION + FOOTPRINTS)

    def test_a_million_nested_lists_within_a_board(self):
        nested = b"(x" * MILLION + b")" * MILLION
        self.assert_same_as(self.output_of(), pcf=BOARD.replace(b"(line", nested + b"(line"))
        self.assert_same_as(self.output_of(), ftf=FOOTPRINTS.replace(b"(header", nested + b"(header"))

    def test_a_million_parentheses_in_the_side_file(self):
        self.assert_same_as(self.output_of(), txt=SIDE + b"(x" * MILLION + b")" * MILLION + b"\n")

    def test_a_million_closing_parentheses(self):
        self.assert_same_as(self.output_of(pcf=b""), stderr=NO_OUTLINE, pcf=b")" * MILLION)

    def test_a_million_lines_of_the_side_file(self):
        told = b"Could find component with refid X1\n" * MILLION
        self.assert_same_as(self.output_of(), stdout=told, txt=SIDE + b"X1 a b c\n" * MILLION)


class LongTest(LargeCase):
    def test_a_number_of_ten_million_digits(self):
        zeros = b"0" * 10 * MILLION
        self.assert_same_as(self.output_of(), pcf=BOARD.replace(b"(pt 4 0)", b"(pt 4." + zeros + b" 0)"))
        self.assert_same_as(self.output_of(), pcf=BOARD.replace(b"(pt 4 0)", b"(pt " + zeros + b"4.0 0)"))

    def test_a_number_of_ten_million_digits_that_is_too_great_is_a_word(self):
        word = self.output_of(pcf=BOARD.replace(b"(pt 4 0)", b"(pt x 3)"))
        self.assert_same_as(word, pcf=BOARD.replace(b"(pt 4 0)", b"(pt " + b"9" * 10 * MILLION + b" 3)"))

    def test_a_name_of_ten_megabytes_comes_out_whole(self):
        name = b"N" * 10 * MILLION
        expected = self.output_of().replace(b"\tA(", b"\t" + name + b"(").replace(b'"A"', b'"' + name + b'"')
        self.assertGreaterEqual(expected.count(name), 2)
        self.assert_same_as(expected, pcf=BOARD.replace(b"(net A)", b"(net " + name + b")"))

    def test_a_line_of_the_side_file_of_twenty_megabytes(self):
        self.assert_same_as(self.output_of(), txt=SIDE + b"x" * 20 * MILLION + b"\n")

    @unittest.skipUnless(IS_LARGE, "QRL_LARGE_TESTS is not 1")
    def test_a_line_of_the_side_file_of_two_hundred_megabytes(self):
        self.assert_same_as(self.output_of(), txt=SIDE + b"x" * 200 * MILLION + b"\n")

    @unittest.skipUnless(IS_LARGE, "QRL_LARGE_TESTS is not 1")
    def test_a_line_of_the_side_file_of_ten_million_words(self):
        # Each of them is a text of its own.
        self.assert_same_as(self.output_of(), bytes_per_byte=60, txt=SIDE + b"x " * 10 * MILLION + b"\n",
                            stdout=b"Could find component with refid x\n")

    @unittest.skipUnless(IS_LARGE, "QRL_LARGE_TESTS is not 1")
    def test_a_string_of_a_hundred_megabytes_comes_out_whole(self):
        name = b"N " * 50 * MILLION
        quoted = b'"' + name + b'"'
        expected = self.output_of().replace(b"\tA(", b"\t" + quoted + b"(").replace(b'"A"', quoted)
        self.assert_same_as(expected, pcf=BOARD.replace(b"(net A)", b"(net " + quoted + b")"))


class LargeOutputTest(LargeCase):
    def test_an_output_far_larger_than_the_input(self):
        pins = b"".join(PIN % pin for pin in range(PINS))
        footprints = LIBRARY.replace(b"(toeprint)", b"(toeprint " + pins + b")")
        components = b"".join(b"(component (reference R%d) (footprint F))" % part for part in range(COMPONENTS))
        board = BOARD.replace(b"(boardLayout", b"(components " + components + b")\n(boardLayout")
        result, output = self.run_large(pcf=board, ftf=footprints)
        self.assert_result(result)
        terminals = b"".join(b'\n\t\t\tTerminal("%d", "%d", "A", false)' % (pin, pin) for pin in range(PINS))
        expected = b"".join(b'\n\t\tComponent_%d {\n\t\t\tCompDef("", "F", "", "R", 1)%s\n\t\t}' % (part + 1, terminals)
                            for part in range(COMPONENTS))
        actual = output[output.index(b"\n\tComponents {") + len(b"\n\tComponents {"):output.index(b"\n\t}\n\tLayoutData {")]
        self.assertTrue(actual == expected, f"other components, such as {actual[:200]}")

    def test_a_board_of_many_sizes(self):
        for megabytes in (1.0, 10.0, 100.0) if IS_LARGE else (1.0, 4.0):
            board = generated(megabytes, 1)
            result, _ = self.run_large(pcf=board.pcf, ftf=board.ftf, txt=board.txt)
            self.assert_result(result)


if __name__ == "__main__":
    unittest.main()
