"""The generator of boards: its size, its seeds, and that all that it draws comes out."""

import collections
import re
import unittest

from boards import generated
from list_file import parse, walk
from neutral_file import Block, Func, read
from program_case import ProgramCase

SIZES = ((0.1, 1), (0.5, 2), (2.0, 3), (0.3, 4, 1))


def value(found):
    """The first value of a list as an int; 0 where the list is missing."""
    return int(found.values()[0]) if found else 0


def count_paths(line):
    """How many parts a line falls into where its width changes. Its vertex list holds points and arcs."""
    paths, width = 1, 0
    for item in line.lists():
        if item.key() == b"pt":
            begins = ends = value(item.child(b"width")) if item.child(b"width") else width
        else:
            begins, ends = (value(item.child(end, b"pt", b"width")) for end in (b"begin", b"end"))
        paths += width not in (0, begins)
        width = ends
    return paths


def count_drawn(board):
    """What a generated board holds, by the names that the neutral file has for it."""
    counts = collections.Counter()
    for found, path in walk(parse(board.pcf)):
        key, above = found.key(), path[-1] if path else b""
        if above == b"components":
            counts["CompInst"] += 1
        elif above == b"nets":
            counts["Net"] += 1
            counts["NetPin"] += len({(comp.values()[0], comp.child(b"pin").values()[0]) for comp in found.lists(b"comp")})
        elif key == b"line" and above == b"geometry":
            counts["Path"] += count_paths(found.child(b"vertex"))
        elif key == b"padstack" and b"boardlayout" in path:
            counts["Via"] += 1
        elif above == b"geometry" and key in (b"surface", b"meshplane"):
            counts["PolygonWithVoids"] += 1
            counts["void"] += len(found.lists(b"openshape"))
    return counts


def count_written(text):
    counts = collections.Counter()

    def visit(items):
        for item in items:
            counts[item.name.decode()] += 1
            if isinstance(item, Block):
                if item.name == b"voids":
                    counts["void"] += len(item.items)
                visit(item.items)
            elif isinstance(item, Func) and item.name == b"Graphics":
                visit(item.arguments[1:])

    visit(read(text).items)
    return counts


class GeneratedBoardsTest(ProgramCase):
    def test_the_same_settings_give_the_same_bytes(self):
        first = generated(0.2, 7)
        generated.cache_clear()
        second = generated(0.2, 7)
        self.assertIsNot(first, second)
        self.assertEqual((first.pcf, first.ftf, first.txt), (second.pcf, second.ftf, second.txt))

    def test_another_seed_gives_another_board(self):
        boards = [generated(0.2, seed).pcf for seed in range(4)]
        self.assertEqual(4, len(set(boards)))

    def test_a_board_is_as_large_as_was_asked(self):
        for megabytes in (0.1, 0.5, 1.0, 2.0):
            for seed in (1, 2, 3):
                with self.subTest(megabytes=megabytes, seed=seed):
                    self.assertAlmostEqual(1.0, len(generated(megabytes, seed).pcf) / (megabytes * 1e6), delta=0.08)

    def test_all_that_is_drawn_comes_out(self):
        for settings in SIZES:
            with self.subTest(settings=settings):
                board = generated(*settings)
                drawn = count_drawn(board)
                written = count_written(self.output_of(board.pcf, board.ftf, board.txt))
                self.assertEqual(dict(drawn), {name: written[name] for name in drawn})
                self.assertLess(0, min(drawn.values()), drawn)

    def test_nothing_is_told_about_a_generated_board(self):
        for settings in SIZES:
            with self.subTest(settings=settings):
                self.new_folder()
                board = generated(*settings)
                self.put_board("board", board.pcf, board.ftf, board.txt)
                self.assert_result(self.run_program("board.pcf"))

    def test_a_net_of_its_own_for_each_line(self):
        nets = re.findall(rb"\(line \(net (\w+)\)", generated(0.2, 1, 1).pcf)
        self.assertEqual(len(nets), len(set(nets)))
        nets = re.findall(rb"\(line \(net (\w+)\)", generated(0.2, 1).pcf)
        self.assertLess(10 * len(set(nets)), len(nets))


if __name__ == "__main__":
    unittest.main()
