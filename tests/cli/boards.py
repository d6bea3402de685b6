"""All boards that laws are tried on: hand-made ones, the examples, generated ones and those of a folder of the user's.

The folder is named by QRL_BOARDS; every board file in it counts that has its footprint file beside it. MAKE_BOARD names the
built generator.
"""

import dataclasses
import functools
import glob
import os
import subprocess
import sys
import tempfile

PROJECT = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
SMALL = ((0.1, 1),)
SEVERAL = ((0.1, 1), (0.1, 2), (0.5, 3), (1.0, 4), (2.0, 5))


@dataclasses.dataclass(frozen=True)
class Board:
    name: str
    pcf: bytes
    ftf: bytes
    txt: bytes | None

    def with_files(self, **files):
        return dataclasses.replace(self, **files)


def load(path):
    """The board of a board file, or None where its footprint file is missing."""
    contents = []
    for extension in (".pcf", ".ftf", ".txt"):
        name = os.path.splitext(path)[0] + extension
        if os.path.isfile(name):
            with open(name, "rb") as file:
                contents.append(file.read())
        else:
            contents.append(None)
    return Board(os.path.relpath(path, PROJECT), *contents) if contents[1] is not None else None


def stored():
    """The boards that lie in folders."""
    folders = [os.path.join(PROJECT, "tests", "golden"), os.path.join(PROJECT, "examples")]
    if os.environ.get("QRL_BOARDS"):
        folders.append(os.environ["QRL_BOARDS"])
    paths = [path for folder in folders for path in glob.glob(os.path.join(glob.escape(folder), "**", "*.pcf"), recursive=True)]
    return [board for board in map(load, sorted(paths)) if board]


@functools.cache
def generated(megabytes, seed, *more):
    """A board of the generator."""
    maker = os.environ.get("MAKE_BOARD")
    if not maker or not os.access(maker, os.X_OK):
        sys.exit(f"MAKE_BOARD has to name the built generator of boards; it is {maker!r}")
    with tempfile.TemporaryDirectory(prefix="qrl_boards_") as folder:
        path = os.path.join(folder, "board.pcf")
        arguments = [str(megabytes), path[:-4], str(seed), *map(str, more)]
        subprocess.run([maker, *arguments], check=True, stdout=subprocess.DEVNULL)
        board = load(path)
    return dataclasses.replace(board, name="generated " + " ".join(arguments[:1] + arguments[2:]))


def every(sizes=SMALL):
    """All boards, with the generated ones of some sizes and seeds."""
    return stored() + [generated(*size) for size in sizes]
