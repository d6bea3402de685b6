"""Which tests cover a source, the likely and quick ones first.

The first is the part of its floor's test program that is named after the class, the second that whole program. Then come the
programs of other floors, and in the end the command-line tests, which take longest and see least of a single class.
"""

import dataclasses
import pathlib
import re

# The test programs that cover a folder: its own first, then those of the floors above. The first that fits a file counts.
PROGRAMS = {
    "src/driver": ["driver"],
    "src/neutral": ["neutral", "driver"],
    "src/zuken": ["zuken", "neutral", "model", "driver"],
    "src/model": ["model", "zuken", "neutral", "driver"],
    "src/blocks": ["blocks", "zuken", "model", "neutral", "driver"],
    "src/lib/math/geometry": ["geometry", "geometry_allocation", "zuken", "neutral", "model", "geometry_laws", "geometry_oracle", "driver"],
    "src/lib/containers": ["containers", "geometry", "zuken", "neutral", "geometry_laws", "geometry_oracle", "driver"],
    "src/lib/utils/Range_T.h": ["geometry", "zuken", "model", "neutral", "driver"],  # a range of lengths is tested with them
    "src/lib/utils": ["utils", "containers", "geometry", "blocks", "zuken", "neutral", "model", "driver"],
}
# Where a test program is built, unless its folder has its name.
PROGRAM_FOLDERS = {"utils": "lib/utils", "containers": "lib/containers", "geometry": "lib/math/geometry", "geometry_laws": "lib/math/geometry",
                   "geometry_oracle": "lib/math/geometry", "geometry_allocation": "lib/math/geometry"}

COMMAND_LINE = ["golden", "examples", "neutral_file", "list_file", "streams", "arguments", "broken_input", "generated_boards", "input_effects",
                "board_invariants", "input_changes"]
# What the system does to a run matters to these files only.
SYSTEM_FILES = r"/(OutputFile|FileText|LargeMemory|Arena|Assert|main|CommandLine)\."
SYSTEM = ["output_targets", "file_names", "output_failures", "reproducibility", "system_calls", "large_input", "memory_failures", "system_faults"]

# What command-line tests use beside the program, by the variable that names it to them.
TOOLS = {"MAKE_BOARD": "benchmarks/make_board", "FAIL_ALLOCATIONS": "tests/cli/libfail_allocations.so",
         "REWRITE_NEUTRAL_FILE": "tests/cli/rewrite_neutral_file"}


@dataclasses.dataclass(frozen=True)
class Test:
    """A test program, a part of it, or a command-line test of the program."""
    name: str
    program: str
    part: str = ""

    @property
    def script(self):
        """The name of the file of a command-line test, empty for the others."""
        return self.name.replace("cli_", "test_", 1) + ".py" if self.program == "zuken2qrl" else ""


def get_tests(file):
    """The tests that cover a file, the most likely to fail first."""
    own, *above = next(names for folder, names in PROGRAMS.items() if file.startswith(folder))
    stem = pathlib.PurePath(file).stem
    part = ":".join(f"*{name}*" for name in sorted({stem, stem.replace("_", "")}))  # a suite's name has no underscores
    yield Test(f"{own}_tests", get_program(own), part)
    for name in (own, *above):
        yield Test(f"{name}_tests", get_program(name))
    for topic in COMMAND_LINE + (SYSTEM if re.search(SYSTEM_FILES, file) else []):
        yield Test(f"cli_{topic}", "zuken2qrl")


def get_program(name):
    return f"tests/{PROGRAM_FOLDERS.get(name, name)}/{name}_tests"
