"""Runs the built program in a folder of its own and compares all that a run leaves behind."""

import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

TIMEOUT_SECONDS = 120
NOBODY = 65534
# A program that counts for coverage writes its counts into the build folder as it ends. Where it may not, or where its writes
# are made to fail, it says so on standard error and leaves counts that nobody can read.
COUNTS_COVERAGE = os.environ.get("COVERAGE") == "ON"

# A trace lies on these boards, so that they have an outline.
BOARD = b"""(pcf board
 (header (unit MM))
 (technologyContainer
  (technology tech
   (conductiveLayer (layerNumber 1 (type POSI)) (layerNumber 2 (type POSI)))))
 (boardContainer
  (boardLayout (layout (layer (conductive 1)
   (line (net A) (geometry (line (vertex (pt 0 0 (width 1)) (pt 4 0)))))))))
)
"""
FOOTPRINTS = b"(ftf board (header (unit MM)))\n"
SIDE = b"Reference PartNumber Value DNP\n"

# What standard error says about a board on which nothing lies.
NO_OUTLINE = b"Assertion failed: !IsEmpty(), Range_T\n"


class Result:
    def __init__(self, status, stdout, stderr):
        self.status = status
        self.stdout = stdout
        # A line number moves with every change of the source.
        self.stderr = re.sub(rb"(?m)^(Assertion failed: .*):\d+$", rb"\1", stderr)


def missing(kind, name):
    """The line on standard output for a file that isn't there."""
    return kind + b" file " + os.fsencode(name) + b" does not exist\n"


def diff(expected, actual, name):
    """A unified diff of two byte strings, empty when they are equal."""
    lines = [text.decode("utf-8", "backslashreplace").splitlines(keepends=True) for text in (expected, actual)]
    ended = [[line if line.endswith("\n") else line + "\n\\ no line end\n" for line in side] for side in lines]
    if expected != actual and ended[0] == ended[1]:
        return f"{name}: {expected!r}\n  is not {actual!r}\n"
    return "".join(difflib.unified_diff(*ended, f"expected {name}", f"actual {name}"))


def describe(entry):
    """What stands under a name in a folder, as bytes that can be compared."""
    if os.path.islink(entry):
        return b"link to " + os.fsencode(os.readlink(entry))
    if os.path.isfile(entry):
        with open(entry, "rb") as file:
            return file.read()
    return b"folder" if os.path.isdir(entry) else b"special file"


class ProgramCase(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        built = os.environ.get("ZUKEN2QRL")
        if not built or not os.access(built, os.X_OK):
            sys.exit(f"ZUKEN2QRL has to name the built program; it is {built!r}")
        # A copy that others may run too: the build can stand in a folder that only its owner enters.
        cls.place = tempfile.mkdtemp(prefix="qrl_cli_")
        cls.addClassCleanup(shutil.rmtree, cls.place, ignore_errors=True)
        os.chmod(cls.place, 0o755)
        cls.program = shutil.copy(built, os.path.join(cls.place, "zuken2qrl"))
        os.chmod(cls.program, 0o755)
        cls.outputs = {}

    def setUp(self):
        self.new_folder()

    def new_folder(self):
        """Goes on in an empty folder."""
        self.folder = tempfile.mkdtemp(dir=self.place)
        os.chmod(self.folder, 0o755)

    def path(self, name):
        """The path of a name in the folder, as bytes: file names need not be text."""
        return os.path.join(os.fsencode(self.folder), os.fsencode(name))

    def put(self, name, content):
        os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
        with open(self.path(name), "wb") as file:
            file.write(content)

    def put_board(self, stem=b"board", pcf=BOARD, ftf=FOOTPRINTS, txt=SIDE):
        """Writes the files of a board, but for those that are None."""
        for extension, content in ((b".pcf", pcf), (b".ftf", ftf), (b".txt", txt)):
            if content is not None:
                self.put(os.fsencode(stem) + extension, content)

    def files(self):
        """All that the folder holds, by name."""
        found = {}
        top = os.fsencode(self.folder)
        for folder, folders, names in os.walk(top):
            for name in folders + names:
                entry = os.path.join(folder, name)
                found[os.path.relpath(entry, top)] = describe(entry)
        return found

    def run_program(self, *arguments, prefix=(), **options):
        """Runs the program in the folder. `options` go to the process, `prefix` is a command that runs the program."""
        options.setdefault("stdout", subprocess.PIPE)
        options.setdefault("stderr", subprocess.PIPE)
        options.setdefault("cwd", self.folder)
        ended = subprocess.run(
            [*prefix, self.program, *arguments], stdin=subprocess.DEVNULL, timeout=TIMEOUT_SECONDS, **options)
        return Result(ended.returncode, ended.stdout or b"", ended.stderr or b"")

    def output_of(self, pcf=BOARD, ftf=FOOTPRINTS, txt=SIDE):
        """The neutral file of a board, from a plain run in another folder."""
        key = (pcf, ftf, txt)
        if key not in self.outputs:
            with tempfile.TemporaryDirectory(dir=self.place) as folder:
                for extension, content in (("pcf", pcf), ("ftf", ftf), ("txt", txt)):
                    if content is not None:
                        with open(os.path.join(folder, "b." + extension), "wb") as file:
                            file.write(content)
                self.run_program("b.pcf", cwd=folder)
                self.outputs[key] = describe(os.path.join(folder, "b.qrl"))
        return self.outputs[key]

    def assert_bytes(self, expected, actual, name):
        difference = diff(expected, actual, name)
        if difference:
            self.fail("\n" + difference)

    def assert_result(self, result, status=0, stdout=b"", stderr=b""):
        self.assert_bytes(stderr, result.stderr, "standard error")
        self.assert_bytes(stdout, result.stdout, "standard output")
        self.assertEqual(result.status, status, "exit status")

    def assert_files(self, expected):
        actual = self.files()
        self.assertEqual(sorted(expected), sorted(actual), "files in the folder")
        for name, content in expected.items():
            self.assert_bytes(content, actual[name], os.fsdecode(name))

    def assert_run(self, *arguments, status=0, stdout=b"", stderr=b"", made=None, **options):
        """Runs the program and compares its streams, its status and the whole folder, in which nothing but `made`, a
        dictionary of names and contents, may be new or changed."""
        expected = {**self.files(), **(made or {})}
        result = self.run_program(*arguments, **options)
        self.assert_result(result, status, stdout, stderr)
        self.assert_files(expected)


def unprivileged():
    """Options for a process that may do no more than everybody. Root may read and write everything."""
    if os.geteuid() != 0:
        return {}
    return {"user": NOBODY, "group": NOBODY, "extra_groups": []}


def can_drop_privileges():
    if COUNTS_COVERAGE:
        return False
    try:
        return subprocess.run(["true"], check=False, **unprivileged()).returncode == 0
    except (OSError, subprocess.SubprocessError):
        return False
