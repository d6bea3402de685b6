"""Tries mutants: which tests run with one, in which order, and what that makes of it.

The first look is cheap. It runs the test program of the class's own floor and, for a source, the other tests that are quick. Of
what includes a changed header only the class's own test and source are compiled anew. The second look, at mutants that outlive the
first, compiles all that includes the header and runs every test that covers it.
"""

import time

from .build import Build, DoesNotCompile
from .runner import Runner
from .tests import TOOLS, get_tests


class Trial:
    """The original, built and with all tests timed that cover some mutants, and the results of these."""

    def __init__(self, project, work, mutants, results):
        tests = {test for file in {mutant.file for mutant in mutants} for test in get_tests(file) if not test.part}
        self.build = Build(project, work)
        self.build.make(sorted({test.program for test in tests}) + list(TOOLS.values()))
        self.runner = Runner(self.build, work)
        self.runner.measure_unknown(tests)
        self.results = results

    def run_named(self, mutants):
        """Runs each mutant, also if it has been run."""
        for mutant in mutants:
            self._look(mutant, False)
            self._look_again(mutant)

    def run_sample(self, pieces):
        """Runs the first mutant that compiles of each piece, unless its result is known. Second looks take long, so they come when all had one."""
        for piece in pieces:
            for mutant in piece:
                if not self.results.get_status(mutant):
                    self._look(mutant, False)
                if self.results.get_status(mutant) != "invalid":
                    break
        for piece in pieces:
            for mutant in piece:
                self._look_again(mutant)

    def _look_again(self, mutant):
        if self.results.get_status(mutant) == "alive":
            self._look(mutant, True)

    def _look(self, mutant, is_second):
        started = time.monotonic()
        status, by = self._try(mutant, is_second)
        self.results.add(mutant, status, by, time.monotonic() - started)

    def _try(self, mutant, is_second):
        """Status of the mutant and the test that killed it."""
        self.build.write_mutant(mutant)
        for test in self._choose_tests(mutant, is_second):
            limit = self.runner.get_limit(test)
            try:
                program = self.build.build_program(test.program, mutant, is_second)
            except DoesNotCompile:
                return "invalid", ""
            if program and not self.runner.is_passing(test, program, limit):
                return "killed", f"{test.name} {test.part}".strip()
        return ("survived" if is_second else "alive"), ""

    def _choose_tests(self, mutant, is_second):
        tests = list(get_tests(mutant.file))
        own, is_header = tests[0].program, mutant.file.endswith(".h")
        return [test for test in tests if is_second or test.program == own or not is_header and self.runner.is_quick(test)]
