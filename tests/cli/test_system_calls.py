"""What the program does to the system, call by call: it reads its three inputs, writes its output, and no more."""

import os
import unittest

from boards import every
from fault_case import OLD, FaultCase, can_trace, is_sanitized

# For memory, for the inputs, for the output, and for the process itself. No network, no other program, no thread.
ALLOWED = {
    "brk", "mmap", "mremap", "munmap", "madvise",
    "newfstatat", "fstat", "stat", "openat", "read", "close", "lseek",
    "readlink", "readlinkat", "fchmod", "write", "rename", "renameat", "unlink", "unlinkat",
    "rt_sigaction", "getpid", "futex", "exit_group",
}
INPUTS = ('"board.pcf"', '"board.ftf"', '"board.txt"')

PROGRAM = os.environ.get("ZUKEN2QRL", "")


@unittest.skipUnless(can_trace(), "strace is missing or may not trace")
@unittest.skipIf(os.access(PROGRAM, os.X_OK) and is_sanitized(PROGRAM), "a sanitizer has system calls of its own")
class SystemCallsTest(FaultCase):
    def for_every_board(self, check):
        for board in every():
            for old in (OLD, None):
                with self.subTest(board=board.name, old=old is not None):
                    self.board = board
                    calls = self.calls(old)
                    check(calls.input + calls.output)

    def test_no_call_but_those_for_memory_and_the_named_files(self):
        self.for_every_board(lambda calls: self.assertLessEqual({name for name, _, _ in calls}, ALLOWED))

    def test_nothing_is_opened_but_the_inputs_for_reading_and_a_new_temporary_file_for_writing(self):
        def check(calls):
            opened = [arguments for name, _, arguments in calls if name == "openat"]
            written = [arguments for arguments in opened if "O_RDONLY" not in arguments]
            self.assertRegex("\n".join(written), r'\AAT_FDCWD, "\.qrl-\d+-0", O_WRONLY\|O_CREAT\|O_EXCL\|O_CLOEXEC, 0666\) += \d+\Z')
            for arguments in opened:
                if arguments not in written:
                    self.assertIn(arguments.split(", ")[1], INPUTS)

        self.for_every_board(check)

    def test_only_the_temporary_file_takes_another_name_and_only_that_of_the_output(self):
        def check(calls):
            renamed = [arguments for name, _, arguments in calls if name == "rename"]
            self.assertRegex("\n".join(renamed), r'\A"\.qrl-\d+-0", "board\.qrl"\) += 0\Z')

        self.for_every_board(check)


if __name__ == "__main__":
    unittest.main()
