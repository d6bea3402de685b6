"""Each system call of a run fails, or is the last one before the run is killed: the old output stays or the whole new one comes."""

import dataclasses
import itertools
import os
import unittest

from boards import generated
from fault_case import NO_MEMORY, NO_MEMORY_STATUS, OLD, FaultCase, can_trace, is_sanitized, is_temporary, traced_environment
from program_case import NO_OUTLINE, missing

REASONS = {
    "ENOSPC": b"No space left on device",
    "EIO": b"Input/output error",
    "EACCES": b"Permission denied",
    "EDQUOT": b"Disk quota exceeded",
    "EROFS": b"Read-only file system",
    "EINTR": b"Interrupted system call",
    "ENOMEM": b"Cannot allocate memory",
}
MEMORY_CALLS = ("brk", "mmap", "mremap", "munmap", "madvise")
PROGRAM = os.environ.get("ZUKEN2QRL", "")
# These have no failure that a program could meet.
WITHOUT_FAILURE = ("exit_group", "getpid", "futex", "rt_sigaction")


@dataclasses.dataclass(frozen=True)
class Fault:
    call: str
    number: int  # among the calls of this name
    error: str | None  # None kills the run
    stays: bool  # all calls of this name behind it fail too
    old: bytes | None

    def rule(self):
        how = f"error={self.error}" if self.error else "signal=KILL"
        if self.error and self.call == "brk":
            how = "retval=0"  # tells by the end that it has not moved
        return f"{self.call}:{how}:when={self.number}" + "+" * self.stays

    def __str__(self):
        return self.rule()


@unittest.skipUnless(can_trace(), "strace is missing or may not trace")
@unittest.skipIf(os.access(PROGRAM, os.X_OK) and is_sanitized(PROGRAM), "a sanitizer has system calls of its own")
class SystemFaultTest(FaultCase):
    def setUp(self):
        super().setUp()
        # Its output is written in several pieces, and its trees are large enough for memory from the system itself.
        self.board = generated(0.7, 1)
        # A file that can't be read counts as an empty one.
        files = ((content, b"") for content in (self.board.pcf, self.board.ftf, self.board.txt))
        self.as_far_as_read = [self.output_of(*some) for some in itertools.product(*files)]

    def injected_run(self, folder, fault, *more_rules):
        self.lay(folder, fault.old)
        prefix = ["strace", "-o", os.devnull]
        for rule in (fault.rule(), *more_rules):
            prefix += ["-e", "inject=" + rule]
        return self.run_in(folder, [*prefix, "--"], env=traced_environment())

    def wrong(self, fault, result, left):
        """What is wrong about a run in which a call for the output or for memory has failed."""
        output, others = left
        told = result.stderr.removeprefix(NO_OUTLINE)
        if others:
            return f"left {others}"
        if result.status == NO_MEMORY_STATUS:
            return None if output == fault.old and told == NO_MEMORY else f"told {told}"
        if result.status != 0:
            return f"status {result.status}: {told}"
        if output == self.whole():
            return None if result.stderr == b"" else f"written, and yet told {result.stderr}"
        if output != fault.old:
            return "a torn output"
        is_mute = fault.call == "write" and fault.stays and result.stderr == b""
        return None if is_mute or told == b"board.qrl: " + REASONS[fault.error] + b"\n" else f"told {told}"

    def wrong_with_input_fault(self, folder, fault):
        result = self.injected_run(folder, fault)
        left = output, others = self.left_in(folder)
        if result.status == 1 and left == (fault.old, []):
            return None if result.stdout in (missing(b"PCF", "board.pcf"), missing(b"FTF", "board.ftf")) else "a wrong message"
        if result.status == 0 and not others and output in self.as_far_as_read:
            return None if result.stderr in (b"", NO_OUTLINE) else f"told {result.stderr}"
        if fault.call == "newfstatat" and left == (fault.old, []) and result.status == 0:
            return None  # a file that is there at the first look and not at the second
        return self.wrong(fault, result, left)

    def wrong_with_output_fault(self, folder, fault, *more_rules):
        result = self.injected_run(folder, fault, *more_rules)
        output, others = self.left_in(folder)
        if more_rules:
            others = [name for name in others if not is_temporary(name)]
        return self.wrong(fault, result, (output, others))

    @staticmethod
    def faults(calls, old):
        """Each call fails alone for each reason, and with all calls of its name behind it."""
        for name, number, _ in calls:
            if name in WITHOUT_FAILURE:
                continue
            for error in ("ENOMEM",) if name in MEMORY_CALLS else REASONS:
                yield Fault(name, number, error, False, old)
                # A call that is interrupted for ever is repeated for ever.
                if error != "EINTR":
                    yield Fault(name, number, error, True, old)

    def test_a_failing_call_for_the_input_leaves_the_old_output_or_gives_a_whole_one(self):
        calls = self.calls(OLD).input
        self.assertLessEqual({"newfstatat", "openat", "read", "close"}, {name for name, _, _ in calls})
        self.for_every_fault(self.faults(calls, OLD), self.wrong_with_input_fault)

    def test_a_failing_call_for_the_output_leaves_the_old_output_or_gives_the_whole_new_one(self):
        for old in (OLD, None):
            calls = self.calls(old).output
            names = [name for name, _, _ in calls]
            self.assertLessEqual({"newfstatat", "readlink", "openat", "write", "close", "rename"}, set(names))
            self.assertGreater(names.count("write"), 1)
            with self.subTest(old=old is not None):
                self.for_every_fault(self.faults(calls, old), self.wrong_with_output_fault)

    def test_a_temporary_file_that_cannot_be_removed_either_changes_nothing_for_the_output(self):
        calls = [call for call in self.calls(OLD).output if call[0] in ("write", "close", "fchmod", "rename")]
        self.for_every_fault([Fault(name, number, "ENOSPC", False, OLD) for name, number, _ in calls],
                             lambda folder, fault: self.wrong_with_output_fault(folder, fault, "unlink:error=EIO"))

    def test_an_interrupted_call_for_a_file_is_repeated(self):
        def check(folder, fault):
            result = self.injected_run(folder, fault)
            if self.left_in(folder) == (self.whole(), []) and result.status == 0 and result.stderr == b"":
                return None
            return f"status {result.status}: {result.stderr}"

        calls = self.calls(OLD)
        self.for_every_fault(
            [Fault(name, number, "EINTR", False, OLD) for name, number, arguments in calls.input + calls.output
             if name in ("read", "write") or (name == "openat" and "O_CREAT" in arguments)], check)

    def test_a_run_that_is_killed_at_any_call_leaves_the_old_output_or_the_whole_new_one(self):
        def check(folder, fault):
            result = self.injected_run(folder, fault)
            output, others = self.left_in(folder)
            if result.status == 0 or output not in (fault.old, self.whole()):
                return f"status {result.status}, a torn output"
            return None if len(others) <= 1 and all(map(is_temporary, others)) else f"left {others}"

        for old in (OLD, None):
            calls = self.calls(old)
            with self.subTest(old=old is not None):
                self.for_every_fault([Fault(name, number, None, False, old) for name, number, _ in calls.input + calls.output],
                                     check)


@unittest.skipUnless(can_trace(), "strace is missing or may not trace")
@unittest.skipIf(os.access(PROGRAM, os.X_OK) and is_sanitized(PROGRAM), "a sanitizer has system calls of its own")
class LinkFaultTest(FaultCase):
    """The way to the output leads over a link."""

    def setUp(self):
        super().setUp()
        self.board = generated(0.1, 1)

    def test_a_link_that_cannot_be_read_stays(self):
        def check(folder, error):
            self.lay(folder, None)
            link = os.path.join(folder, "board.qrl")
            target = os.path.join(folder, "target")
            with open(target, "wb") as file:
                file.write(OLD)
            os.symlink("target", link)
            prefix = ["strace", "-o", os.devnull, "-e", f"inject=readlink:error={error}:when=1", "--"]
            result = self.run_in(folder, prefix, env=traced_environment())
            with open(target, "rb") as file:
                target_content = file.read()
            if not os.path.islink(link) or target_content != OLD:
                return "the link is gone"
            told = b"board.qrl: " + REASONS[error] + b"\n"
            return None if (result.status, result.stderr) == (0, told) else f"told {result.stderr}"

        self.for_every_fault(("EIO", "EACCES", "ENOMEM"), check)

    def test_an_old_output_that_cannot_be_looked_at_stays(self):
        number = next(number for name, number, text in self.calls(OLD).output if name == "newfstatat")

        def check(folder, error):
            self.lay(folder, OLD)
            prefix = ["strace", "-o", os.devnull, "-e", f"inject=newfstatat:error={error}:when={number}", "--"]
            result = self.run_in(folder, prefix, env=traced_environment())
            told = b"board.qrl: " + REASONS[error] + b"\n"
            if self.left_in(folder) != (OLD, []):
                return "the old output is gone, and with it its permissions"
            return None if (result.status, result.stderr) == (0, told) else f"told {result.stderr}"

        self.for_every_fault(("EIO", "EACCES", "ENOMEM"), check)


if __name__ == "__main__":
    unittest.main()
