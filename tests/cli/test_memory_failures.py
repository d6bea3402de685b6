"""Allocations that fail: the old output stays and one line tells why, wherever in the run it happens."""

import os
import unittest

from boards import PROJECT, Board, generated, load
from fault_case import NO_MEMORY, NO_MEMORY_STATUS, OLD, FaultCase, is_sanitized
from program_case import BOARD, COUNTS_COVERAGE, SIDE

EVERY_ONE_UP_TO = 2000
THEN_EVERY = 50
STAYING_EVERY = 20

PROGRAM = os.environ.get("ZUKEN2QRL", "")
LIBRARY = os.environ.get("FAIL_ALLOCATIONS", "")


@unittest.skipIf(COUNTS_COVERAGE, "counts need memory too")
@unittest.skipIf(os.access(PROGRAM, os.X_OK) and is_sanitized(PROGRAM), "a sanitizer has an allocator of its own")
class MemoryFailureTest(FaultCase):
    def preloaded(self, **settings):
        return {"env": {**os.environ, "LD_PRELOAD": LIBRARY, **settings}}

    def allocations(self):
        """How often a run in which nothing fails allocates."""
        self.assertTrue(os.access(LIBRARY, os.R_OK), f"FAIL_ALLOCATIONS has to name the built library; it is {LIBRARY!r}")
        count = os.path.join(self.place, "count")
        self.lay(self.folder, OLD)
        self.run_in(self.folder, **self.preloaded(QRL_COUNT_ALLOCATIONS=count))
        self.assertEqual(self.left_in(self.folder), (self.whole(), []))
        with open(count, encoding="ascii") as file:
            return int(file.read())

    def wrong(self, result, folder):
        left = self.left_in(folder)
        if result.status == NO_MEMORY_STATUS:
            ended = left == (OLD, []) and result.stderr == NO_MEMORY
            return None if ended else f"left {left[1]}, {'the old' if left[0] == OLD else 'another'} output, told {result.stderr}"
        written = left == (self.whole(), []) and result.status == 0 and result.stderr == b""
        return None if written else f"status {result.status}: {result.stderr}"

    def wrong_with_failing(self, folder, which):
        self.lay(folder, OLD)
        return self.wrong(self.run_in(folder, **self.preloaded(QRL_FAIL_ALLOCATION=which)), folder)

    def test_each_allocation_of_a_small_board_fails_alone_or_with_all_behind_it(self):
        self.board = load(os.path.join(PROJECT, "examples", "board.pcf"))
        count = self.allocations()
        alone = [*range(1, min(count, EVERY_ONE_UP_TO) + 1), *range(EVERY_ONE_UP_TO + THEN_EVERY, count + 1, THEN_EVERY)]
        staying = range(1, count + 1, STAYING_EVERY)
        self.for_every_fault([*map(str, alone), *(f"{number}+" for number in staying)], self.wrong_with_failing)

    def test_allocations_of_a_larger_board_fail(self):
        self.board = generated(0.1, 1)
        count = self.allocations()
        self.for_every_fault(map(str, range(1, count + 1, THEN_EVERY)), self.wrong_with_failing)

    def test_what_was_written_before_memory_ran_out_is_removed(self):
        # A name so long that the first piece of the output goes to the file before the layout is reached.
        pad = b"(ftf f (footprintContainer (pads (pad " + b"x" * 300000 + b" (geometry (circle 1))))))"
        self.board = Board("long name", BOARD, pad, SIDE)
        self.for_every_fault(map(str, range(1, self.allocations() + 1)), self.wrong_with_failing)

    def test_a_failure_is_what_ends_the_run(self):
        self.board = generated(0.1, 1)
        self.lay(self.folder, OLD)
        result = self.run_in(self.folder, **self.preloaded(QRL_FAIL_ALLOCATION="500"))
        self.assert_result(result, NO_MEMORY_STATUS, stderr=NO_MEMORY)
        self.assertEqual(self.left_in(self.folder), (OLD, []))

    def test_a_limit_on_memory_ends_the_run_or_is_enough(self):
        self.board = generated(2.0, 1)
        statuses = set()

        def check(folder, megabytes):
            self.lay(folder, OLD)
            # A shell sets the limit: little is safe between fork and exec of a process with threads.
            limit = ("sh", "-c", f'ulimit -v {megabytes * 1024}; exec "$0" "$@"')
            result = self.run_in(folder, limit)
            statuses.add(result.status)
            return self.wrong(result, folder)

        self.for_every_fault(range(8, 40), check)
        self.assertEqual(statuses, {0, NO_MEMORY_STATUS})


if __name__ == "__main__":
    unittest.main()
