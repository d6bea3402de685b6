"""The strict reader of neutral files that other tests judge by: what it takes, and above all what it refuses."""

import math
import struct
import unittest

from neutral_file import Block, FormError, Func, NamedValue, double_text, read, write

SAMPLE = b"""Root {
\tVersion(4, 0)
\tUnit = "mm"
\t"C1.5" {
\t\tNULLPAD(Circle(-1.5e+20, true))
\t\tEmpty {
\t\t}
\t\t"a b" = "\\"\\\\\\n\\x1F\xc3\xa9\xff"
\t}
\tPath(7, -inf,
\t\tVertex(0.0),
\t\tfalse,
\t\tArc(Deep("x",
\t\t\tDeeper())))
\tTRI(Polygon(
\t\tVertex(1.0, nan),
\t\t"0.25"()))
}
"""

# Doubles and their texts by the rules of the form.
DOUBLES = [
    (0.0, b"0.0"), (-0.0, b"-0.0"), (1.0, b"1.0"), (-2.5, b"-2.5"), (0.1, b"0.1"), (0.001, b"0.001"), (0.0001, b"1e-04"),
    (0.00012, b"0.00012"), (0.000012, b"1.2e-05"), (10000.0, b"10000.0"), (100000.0, b"1e+05"), (120000.0, b"120000.0"),
    (1200000.0, b"1200000.0"), (12000000.0, b"1.2e+07"), (123456.789, b"123456.789"),
    (2.0 ** 70, b"1180591620717411303424.0"), (1e22, b"1e+22"), (5e-324, b"5e-324"),
    (1.7976931348623157e308, b"1.7976931348623157e+308"), (1 / 3, b"0.3333333333333333"), (0.1 + 0.2, b"0.30000000000000004"),
    (9007199254740993.0, b"9007199254740992.0"), (math.inf, b"inf"), (-math.inf, b"-inf"), (math.nan, b"nan"),
    (-math.nan, b"nan"),
]

# A file of one item, and how it mustn't stand.
FAULTS = {
    "spaces for a tab": b"R {\n    V(1)\n}\n",
    "no indentation": b"R {\nV(1)\n}\n",
    "too much indentation": b"R {\n\t\tV(1)\n}\n",
    "an indented closing brace": b"R {\n\tV(1)\n\t}\n",
    "a closing brace too far left": b"R {\n\tB {\n}\n}\n",
    "no line end at the end": b"R {\n\tV(1)\n}",
    "an empty line at the end": b"R {\n\tV(1)\n}\n\n",
    "an empty line inside": b"R {\n\n\tV(1)\n}\n",
    "two roots": b"R {\n}\nR {\n}\n",
    "a func as root": b"V(1)\n",
    "a value as root": b"V = \"x\"\n",
    "nothing": b"",
    "a missing end": b"R {\n\tV(1)\n",
    "a byte order mark": b"\xef\xbb\xbfR {\n}\n",
    "carriage returns": b"R {\r\n\tV(1)\r\n}\r\n",
    "a block on one line": b"R {}\n",
    "a brace without a blank": b"R{\n}\n",
    "two blanks ahead of a brace": b"R  {\n}\n",
    "a blank behind a brace": b"R { \n}\n",
    "a blank at a line's end": b"R {\n\tV(1) \n}\n",
    "a comment": b"R {\n\tV(1) ; x\n}\n",
    "a blank ahead of a parenthesis": b"R {\n\tV (1)\n}\n",
    "a blank inside a parenthesis": b"R {\n\tV( 1)\n}\n",
    "a comma without a blank": b"R {\n\tV(1,2)\n}\n",
    "a comma with two blanks": b"R {\n\tV(1,  2)\n}\n",
    "a comma at the end": b"R {\n\tV(1, )\n}\n",
    "a comma at the beginning": b"R {\n\tV(, 1)\n}\n",
    "no comma": b"R {\n\tV(1 2)\n}\n",
    "an unclosed parenthesis": b"R {\n\tV(1\n}\n",
    "a parenthesis too many": b"R {\n\tV(1))\n}\n",
    "values on lines of their own": b"R {\n\tV(\n\t\t1,\n\t\t2)\n}\n",
    "a value alone on a line ahead of the first func": b"R {\n\tV(1,\n\t\t2,\n\t\tW())\n}\n",
    "a func on the line of a value": b"R {\n\tV(1, W())\n}\n",
    "two funcs on a line": b"R {\n\tV(W(), W())\n}\n",
    "a func and a value on a line": b"R {\n\tV(W(), 1)\n}\n",
    "a value on the line of a func": b"R {\n\tV(1,\n\t\tW(), 2)\n}\n",
    "an only func on a line of its own": b"R {\n\tV(\n\t\tW(1))\n}\n",
    "the first of two funcs on the line of the name": b"R {\n\tV(W(),\n\t\tW())\n}\n",
    "arguments that aren't indented": b"R {\n\tV(1,\n\tW())\n}\n",
    "arguments that are indented twice": b"R {\n\tV(1,\n\t\t\tW())\n}\n",
    "a blank ahead of a line end": b"R {\n\tV(1, \n\t\tW())\n}\n",
    "a closing parenthesis on a line of its own": b"R {\n\tV(1,\n\t\tW()\n\t)\n}\n",
    "a block as argument": b"R {\n\tV(W {\n\t})\n}\n",
    "a named value without blanks": b"R {\n\tV=\"x\"\n}\n",
    "a named value without a value": b"R {\n\tV = \n}\n",
    "a func as named value": b"R {\n\tV = W()\n}\n",
    "a name alone": b"R {\n\tV\n}\n",
    "a name that begins with a digit": b"R {\n\t1V(1)\n}\n",
    "a bare name with a dot": b"R {\n\tC1.5(1)\n}\n",
    "a bare name beyond ASCII": b"R {\n\t\xc3\xa9(1)\n}\n",
    "a quoted identifier": b"R {\n\t\"V\"(1)\n}\n",
    "a quoted identifier in an argument": b"R {\n\tV(\"W\"())\n}\n",
    "a quoted identifier of a block": b"\"R\" {\n}\n",
    "an unclosed text": b"R {\n\tV(\"x)\n}\n",
    "a line end in a text": b"R {\n\tV(\"x\ny\")\n}\n",
    "a raw tab in a text": b"R {\n\tV(\"x\ty\")\n}\n",
    "a raw delete character": b"R {\n\tV(\"\x7f\")\n}\n",
    "an unknown escape": b"R {\n\tV(\"\\a\")\n}\n",
    "an escaped slash": b"R {\n\tV(\"\\/\")\n}\n",
    "small hexadecimal digits": b"R {\n\tV(\"\\x1f\")\n}\n",
    "one hexadecimal digit": b"R {\n\tV(\"\\x1\")\n}\n",
    "an escaped letter": b"R {\n\tV(\"\\x41\")\n}\n",
    "an escaped byte beyond ASCII": b"R {\n\tV(\"\\xFF\")\n}\n",
    "a line end by its number": b"R {\n\tV(\"\\x0A\")\n}\n",
    "an apostrophe as quote": b"R {\n\tV('x')\n}\n",
    "a bare word": b"R {\n\tV(word)\n}\n",
    "a truth value with a capital": b"R {\n\tV(True)\n}\n",
    "a leading zero": b"R {\n\tV(01)\n}\n",
    "a plus": b"R {\n\tV(+1)\n}\n",
    "minus zero without a point": b"R {\n\tV(-0)\n}\n",
    "two minus signs": b"R {\n\tV(--1)\n}\n",
    "an int beyond 32 bits": b"R {\n\tV(2147483648)\n}\n",
    "an int below 32 bits": b"R {\n\tV(-2147483649)\n}\n",
    "a hexadecimal number": b"R {\n\tV(0x1F)\n}\n",
    "a double without digits behind the point": b"R {\n\tV(1.)\n}\n",
    "a double without digits ahead of the point": b"R {\n\tV(.5)\n}\n",
    "a zero at the end": b"R {\n\tV(1.50)\n}\n",
    "more digits than needed": b"R {\n\tV(0.10000000000000001)\n}\n",
    "fewer digits than another number's": b"R {\n\tV(0.30000000000000005)\n}\n",
    "fixed where scientific is shorter": b"R {\n\tV(100000.0)\n}\n",
    "scientific where fixed is as long": b"R {\n\tV(1e+04)\n}\n",
    "an exponent without a sign": b"R {\n\tV(1e05)\n}\n",
    "an exponent of one digit": b"R {\n\tV(1e+5)\n}\n",
    "an exponent with a zero too many": b"R {\n\tV(1e+005)\n}\n",
    "a capital exponent": b"R {\n\tV(1E+05)\n}\n",
    "a mantissa of two digits": b"R {\n\tV(10e+04)\n}\n",
    "a mantissa that ends in a zero": b"R {\n\tV(1.0e+05)\n}\n",
    "a double that is infinite": b"R {\n\tV(1e+999)\n}\n",
    "infinity with a capital": b"R {\n\tV(Inf)\n}\n",
    "infinity in full": b"R {\n\tV(infinity)\n}\n",
    "a negative number that is none": b"R {\n\tV(-nan)\n}\n",
    "plus infinity": b"R {\n\tV(+inf)\n}\n",
}


class NeutralFileTest(unittest.TestCase):
    def test_a_sample_becomes_the_tree_that_it_shows(self):
        root = read(SAMPLE)
        polygon = root.items[4].arguments[0]
        self.assertTrue(math.isnan(polygon.arguments[0].arguments.pop()))
        self.assertEqual(Block(b"Root", [
            Func(b"Version", [4, 0]),
            NamedValue(b"Unit", b"mm"),
            Block(b"C1.5", [
                Func(b"NULLPAD", [Func(b"Circle", [-1.5e20, True])]),
                Block(b"Empty", []),
                NamedValue(b"a b", b"\"\\\n\x1f\xc3\xa9\xff")]),
            Func(b"Path", [7, -math.inf, Func(b"Vertex", [0.0]), False, Func(b"Arc", [
                Func(b"Deep", [b"x", Func(b"Deeper", [])])])]),
            Func(b"TRI", [Func(b"Polygon", [Func(b"Vertex", [1.0]), Func(b"0.25", [])])]),
        ]), root)

    def test_kinds_of_values_are_told_apart(self):
        values = read(b'R {\n\tV(1, 1.0, true, "1", "true")\n}\n').items[0].arguments
        self.assertEqual([int, float, bool, bytes, bytes], [type(value) for value in values])

    def test_a_sample_is_written_as_it_was_read(self):
        self.assertEqual(SAMPLE, write(read(SAMPLE)))

    def test_the_smallest_and_the_largest_int_are_read(self):
        text = b"R {\n\tV(-2147483648, 2147483647)\n}\n"
        self.assertEqual(text, write(read(text)))

    def test_doubles_have_their_shortest_text(self):
        for value, text in DOUBLES:
            with self.subTest(text=text):
                self.assertEqual(text, double_text(value))
                read_back = read(b"R {\n\tV(" + text + b")\n}\n").items[0].arguments[0]
                if math.isnan(value):
                    self.assertTrue(math.isnan(read_back))
                else:
                    self.assertEqual(struct.pack("d", value), struct.pack("d", read_back))

    def test_every_fault_is_refused(self):
        for fault, text in FAULTS.items():
            with self.subTest(fault=fault):
                self.assertRaises(FormError, read, text)

    def test_a_fault_is_told_with_its_line(self):
        with self.assertRaisesRegex(FormError, "^line 3: "):
            read(b"R {\n\tV(1)\n\tV(01)\n}\n")

    def test_no_sample_that_lost_a_byte_gives_the_same_tree(self):
        for i in range(len(SAMPLE)):
            shorter = SAMPLE[:i] + SAMPLE[i + 1:]
            try:
                root = read(shorter)
            except FormError:
                continue
            self.assertEqual(shorter, write(root))


if __name__ == "__main__":
    unittest.main()
