"""Outputs that can't be written: the old file stays, nothing else stays, and one line tells the reason."""

import os
import re
import resource
import shutil
import subprocess
import tempfile
import time
import unittest

from program_case import BOARD, COUNTS_COVERAGE, ProgramCase, can_drop_privileges, unprivileged

OLD = b"an older output\n" * 100
# What the program asks of the system for its output.
OUTPUT_CALLS = ("openat", "fchmod", "write", "close", "rename")
REASONS = {
    "ENOENT": b"No such file or directory",
    "ENOSPC": b"No space left on device",
    "EIO": b"Input/output error",
    "EACCES": b"Permission denied",
    "EINTR": b"Interrupted system call",
}


def can_mount():
    if os.geteuid() != 0:
        return False
    with tempfile.TemporaryDirectory() as folder:
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4k", "tmpfs", folder],
                          capture_output=True, check=False).returncode != 0:
            return False
        subprocess.run(["umount", folder], check=True)
    return True


def can_trace():
    if COUNTS_COVERAGE or shutil.which("strace") is None:
        return False
    traced = subprocess.run(["strace", "-e", "inject=rename:error=EIO", "true"], capture_output=True, check=False)
    return traced.returncode == 0


def traced_environment():
    """The leak checker of a sanitized build gives up under a tracer."""
    options = os.environ.get("ASAN_OPTIONS", "")
    return {**os.environ, "ASAN_OPTIONS": options + ":detect_leaks=0"}


class FailedWriteTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board("in/board")

    def assert_failed_write(self, name, reason, **options):
        """A run that can't write `name` changes no file and tells why."""
        self.assert_run("in/board.pcf", name, stderr=name + b": " + reason + b"\n", **options)

    def test_the_folder_is_missing(self):
        self.assert_failed_write(b"away/out.qrl", REASONS["ENOENT"])

    def test_the_folder_is_a_file(self):
        self.put("file", b"content")
        self.assert_failed_write(b"file/out.qrl", b"Not a directory")

    def test_the_name_is_too_long(self):
        self.assert_failed_write(b"x" * 256, b"File name too long")
        self.assert_failed_write(b"x/" * 2048 + b"x", b"File name too long")

    def test_the_reason_comes_with_the_name_as_it_was_given(self):
        for name in (b"\xff\xc3/out", b"./away/../out/x", b"a b/%s%d", "größe/板".encode()):
            with self.subTest(name=name):
                self.assert_failed_write(name, REASONS["ENOENT"])

    def test_a_full_device_is_told_once(self):
        self.assert_failed_write(b"/dev/full", REASONS["ENOSPC"])

    def test_a_link_to_a_full_device_stays(self):
        os.symlink("/dev/full", self.path("out.qrl"))
        self.assert_failed_write(b"out.qrl", REASONS["ENOSPC"])

    @unittest.skipIf(COUNTS_COVERAGE, "the limit would hold for the counts too")
    def test_a_limit_on_the_size_of_files(self):
        size = len(self.output_of())
        for old in (None, OLD):
            for limit in (0, 1, 100, size - 1):
                with self.subTest(limit=limit, old=old is not None):
                    if old:
                        self.put("out.qrl", old)
                    self.assert_failed_write(b"out.qrl", b"File too large", preexec_fn=self.limiting(limit))

    @unittest.skipIf(COUNTS_COVERAGE, "the limit would hold for the counts too")
    def test_a_limit_that_the_output_just_keeps(self):
        self.put("out.qrl", OLD)
        self.assert_run("in/board.pcf", "out.qrl", made={b"out.qrl": self.output_of()},
                        preexec_fn=self.limiting(len(self.output_of())))

    @staticmethod
    def limiting(size):
        return lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))


@unittest.skipUnless(can_drop_privileges(), "can't run a process as nobody")
class ForbiddenFolderTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board()

    def assert_forbidden(self, name):
        self.assert_run("board.pcf", name, stderr=name + b": Permission denied\n", **unprivileged())

    def test_a_folder_of_others_takes_no_new_file(self):
        if os.geteuid() != 0:
            os.chmod(self.folder, 0o555)
            self.addCleanup(os.chmod, self.folder, 0o755)
        self.assert_forbidden(b"board.qrl")

    def test_a_file_in_a_folder_of_others_stays(self):
        self.put("board.qrl", OLD)
        if os.geteuid() != 0:
            os.chmod(self.folder, 0o555)
            self.addCleanup(os.chmod, self.folder, 0o755)
        self.assert_forbidden(b"board.qrl")

    def test_the_target_of_a_link_into_such_a_folder_stays(self):
        self.put("closed/target", OLD)
        os.chmod(self.path("closed"), 0o555)
        os.symlink("closed/target", self.path("out.qrl"))
        self.assert_forbidden(b"out.qrl")
        os.chmod(self.path("closed"), 0o755)


@unittest.skipUnless(can_mount(), "can't mount a small file system")
class FullDiskTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board()
        os.mkdir(self.path("disk"))
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", self.path("disk")], check=True)
        self.addCleanup(subprocess.run, ["umount", self.path("disk")], check=True)

    def fill(self):
        with self.assertRaises(OSError), open(self.path("disk/filler"), "wb", buffering=0) as file:
            while True:
                file.write(b"x" * 4096)

    def test_a_full_disk_keeps_the_old_output(self):
        self.put("disk/out.qrl", OLD)
        self.fill()
        self.assert_run("board.pcf", "disk/out.qrl", stderr=b"disk/out.qrl: No space left on device\n")

    def test_a_full_disk_takes_no_new_output(self):
        self.fill()
        self.assert_run("board.pcf", "disk/out.qrl", stderr=b"disk/out.qrl: No space left on device\n")

    def test_a_disk_that_can_only_be_read(self):
        self.put("disk/out.qrl", OLD)
        subprocess.run(["mount", "-o", "remount,ro", self.path("disk")], check=True)
        for name in (b"disk/out.qrl", b"disk/new.qrl"):
            with self.subTest(name=name):
                self.assert_run("board.pcf", name, stderr=name + b": Read-only file system\n")


@unittest.skipUnless(can_trace(), "strace is missing or may not trace")
class InjectedFailureTest(ProgramCase):
    """Lets each call for the output fail in turn, in front of an old output and without one."""

    def setUp(self):
        super().setUp()
        self.put_board()
        self.log = os.path.join(self.place, "trace")

    def traced(self, *rules):
        command = ["strace", "-o", self.log, "-e", "trace=" + ",".join(OUTPUT_CALLS)]
        for rule in rules:
            command += ["-e", rule]
        return {"prefix": (*command, "--"), "env": traced_environment()}

    def output_calls(self):
        """The calls of a run from the opening of the temporary file on, each with its number among those of its name."""
        self.run_program("board.pcf", **self.traced())
        with open(self.log, encoding="utf-8", errors="replace") as file:
            lines = [line for line in file if re.match(r"\w+\(", line)]
        counts = dict.fromkeys(OUTPUT_CALLS, 0)
        found = []
        for line in lines:
            call = line.split("(")[0]
            counts[call] += 1
            if found or ".qrl-" in line:
                found.append((call, counts[call]))
        self.reset(OLD)
        return found

    def reset(self, old):
        if os.path.exists(self.path("board.qrl")):
            os.remove(self.path("board.qrl"))
        if old is not None:
            self.put("board.qrl", old)

    def for_every_call(self, check):
        self.reset(OLD)
        with_old = self.output_calls()
        self.assertEqual({call for call, _ in with_old}, set(OUTPUT_CALLS))
        for old in (OLD, None):
            for call, number in with_old:
                if old is None and call == "fchmod":
                    continue
                with self.subTest(call=call, number=number, old=old is not None):
                    self.reset(old)
                    check(call, number)

    def test_a_failing_call_leaves_everything_as_it_was(self):
        def check(call, number):
            for error in ("ENOSPC", "EIO", "EACCES"):
                self.assert_run("board.pcf", stderr=b"board.qrl: " + REASONS[error] + b"\n",
                                **self.traced(f"inject={call}:error={error}:when={number}"))

        self.for_every_call(check)

    def test_an_interrupted_call_is_repeated_or_leaves_everything_as_it_was(self):
        def check(call, number):
            injected = self.traced(f"inject={call}:error=EINTR:when={number}")
            if call in ("openat", "write"):
                self.assert_run("board.pcf", made={b"board.qrl": self.output_of()}, **injected)
            else:
                self.assert_run("board.pcf", stderr=b"board.qrl: " + REASONS["EINTR"] + b"\n", **injected)

        self.for_every_call(check)

    def test_a_run_that_is_killed_before_a_call_leaves_the_old_output(self):
        def check(call, number):
            before = self.files().get(b"board.qrl")
            result = self.run_program("board.pcf", **self.traced(f"inject={call}:signal=KILL:when={number}"))
            self.assertNotEqual(result.status, 0)
            left = self.files()
            for name in [name for name in left if name.startswith(b".qrl-")]:
                os.remove(self.path(name))
            self.assertEqual(left.get(b"board.qrl"), before)

        self.for_every_call(check)


@unittest.skipIf(COUNTS_COVERAGE, "it could be killed while it writes the counts")
class KilledRunTest(ProgramCase):
    LAYERS = 20000
    RUNS = 20

    def test_a_run_that_is_killed_at_any_time_leaves_the_old_output_or_the_whole_new_one(self):
        layers = b"".join(b"(layerNumber %d)" % number for number in range(self.LAYERS))
        board = BOARD.replace(b"(conductiveLayer", b"(conductiveLayer " + layers)
        self.put_board(pcf=board)
        began = time.monotonic()
        whole = self.output_of(pcf=board)
        duration = time.monotonic() - began
        for run in range(self.RUNS):
            self.put("board.qrl", OLD)
            started = subprocess.Popen([self.program, "board.pcf"], cwd=self.folder)
            time.sleep(duration * run / self.RUNS)
            started.kill()
            started.wait()
            self.assertIn(self.files()[b"board.qrl"], (OLD, whole))


if __name__ == "__main__":
    unittest.main()
