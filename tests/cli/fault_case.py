"""Runs of the program in which the system fails at a chosen place, side by side, each counted."""

import concurrent.futures
import itertools
import os
import queue
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile

from program_case import COUNTS_COVERAGE, TIMEOUT_SECONDS, ProgramCase, Result

WORKERS = 2
FAILURES_SHOWN = 10

OLD = b"an older output\n" * 100
# Where memory runs out, the run ends at once, with this line and as a program without a handler would.
NO_MEMORY = b"zuken2qrl: Cannot allocate memory\n"
NO_MEMORY_STATUS = -signal.SIGABRT


def can_trace():
    if COUNTS_COVERAGE or shutil.which("strace") is None:
        return False
    traced = subprocess.run(["strace", "-e", "inject=rename:error=EIO", "true"], capture_output=True, check=False)
    return traced.returncode == 0


def traced_environment():
    """The leak checker of a sanitized build gives up under a tracer."""
    options = os.environ.get("ASAN_OPTIONS", "")
    return {**os.environ, "ASAN_OPTIONS": options + ":detect_leaks=0"}


def is_sanitized(program):
    """Sanitizers bring an allocator and system calls of their own."""
    with open(program, "rb") as file:
        return b"__asan_init" in file.read()


def is_temporary(name):
    return name.startswith(b".qrl-")


class Calls:
    """The system calls of a run in their order, from the first one that isn't the loader's on."""

    OWN_FIRST = "rt_sigaction"

    def __init__(self, log):
        counts = {}
        self.input = []  # (name, number among those of the name, arguments), up to the first call for the output
        self.output = []
        at = None
        for name, arguments in re.findall(r"(?m)^(\w+)\((.*)", log):
            counts[name] = counts.get(name, 0) + 1
            if at is None and name == self.OWN_FIRST and "SIGPIPE" in arguments:
                at = self.input
            if at is self.input and ".qrl" in arguments:
                at = self.output
            if at is not None:
                at.append((name, counts[name], arguments))


class FaultCase(ProgramCase):
    """Every run translates the board `self.board`, in front of an old output or of none."""

    injected = 0

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.injected = 0
        # A run that ends by a signal may leave the image of its memory where the system is set so.
        resource.setrlimit(resource.RLIMIT_CORE, (0, resource.getrlimit(resource.RLIMIT_CORE)[1]))

    @classmethod
    def tearDownClass(cls):
        if cls.injected:
            print(f"\n{cls.__name__}: {cls.injected} faults injected", file=sys.stderr)

    def inputs(self):
        return {b"board.pcf": self.board.pcf, b"board.ftf": self.board.ftf, b"board.txt": self.board.txt}

    def whole(self):
        return self.output_of(self.board.pcf, self.board.ftf, self.board.txt)

    def calls(self, old):
        """The system calls of a run in which nothing fails."""
        log = os.path.join(self.place, "trace")
        with tempfile.TemporaryDirectory(dir=self.place) as folder:
            self.lay(folder, old)
            self.run_in(folder, ("strace", "-o", log, "--"), env=traced_environment())
        with open(log, encoding="utf-8", errors="replace") as file:
            return Calls(file.read())

    def lay(self, folder, old):
        """Lays the files of a run into a folder, and nothing else."""
        expected = self.inputs() | ({b"board.qrl": old} if old is not None else {})
        for name in os.listdir(os.fsencode(folder)):
            if name not in expected or name == b"board.qrl":
                os.remove(os.path.join(os.fsencode(folder), name))
        for name, content in expected.items():
            path = os.path.join(os.fsencode(folder), name)
            if content is not None and not os.path.exists(path):
                with open(path, "wb") as file:
                    file.write(content)

    def run_in(self, folder, prefix=(), arguments=("board.pcf",), **options):
        ended = subprocess.run([*prefix, self.program, *arguments], cwd=folder, stdin=subprocess.DEVNULL, capture_output=True,
                               timeout=TIMEOUT_SECONDS, check=False, **options)
        return Result(ended.returncode, ended.stdout, ended.stderr)

    def for_every_fault(self, faults, check):
        """Calls `check(folder, fault)` for each fault, which returns None or what is wrong, on several processors."""
        faults = list(faults)
        self.assertTrue(faults)
        folders = queue.SimpleQueue()
        for _ in range(WORKERS):
            folders.put(tempfile.mkdtemp(dir=self.place))

        def one(fault):
            folder = folders.get()
            try:
                return check(folder, fault)
            finally:
                folders.put(folder)

        with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
            wrong = [f"{fault}: {said}" for fault, said in zip(faults, pool.map(one, faults)) if said]
        type(self).injected += len(faults)
        if wrong:
            self.fail("\n".join([f"{len(wrong)} of {len(faults)} faults", *itertools.islice(wrong, FAILURES_SHOWN)]))

    def left_in(self, folder):
        """The output that a run left and the names of what it shouldn't have left. Inputs have to be what they were."""
        output = None
        others = []
        inputs = self.inputs()
        top = os.fsencode(folder)
        for name in os.listdir(top):
            with open(os.path.join(top, name), "rb") as file:
                content = file.read()
            if name == b"board.qrl":
                output = content
            elif inputs.get(name) != content:
                others.append(name)
        return output, others
