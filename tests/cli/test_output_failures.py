"""Outputs that can't be written: the old file stays, nothing else stays, and one line tells the reason."""

import os
import resource
import subprocess
import tempfile
import time
import unittest

from boards import generated
from program_case import BOARD, COUNTS_COVERAGE, ProgramCase, can_drop_privileges, unprivileged

OLD = b"an older output\n" * 100
REASONS = {"ENOENT": b"No such file or directory", "ENOSPC": b"No space left on device"}


def can_mount():
    if os.geteuid() != 0:
        return False
    with tempfile.TemporaryDirectory() as folder:
        if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=4k", "tmpfs", folder],
                          capture_output=True, check=False).returncode != 0:
            return False
        subprocess.run(["umount", folder], check=True)
    return True


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

    def test_a_disk_that_fills_up_on_the_way_keeps_the_old_output(self):
        board = generated(0.1, 1)
        self.put_board(pcf=board.pcf, ftf=board.ftf, txt=board.txt)
        self.put("disk/out.qrl", OLD)
        self.assertGreater(len(self.output_of(board.pcf, board.ftf, board.txt)), 64 * 1024)
        self.assert_run("board.pcf", "disk/out.qrl", stderr=b"disk/out.qrl: No space left on device\n")

    def test_a_disk_that_can_only_be_read(self):
        self.put("disk/out.qrl", OLD)
        subprocess.run(["mount", "-o", "remount,ro", self.path("disk")], check=True)
        for name in (b"disk/out.qrl", b"disk/new.qrl"):
            with self.subTest(name=name):
                self.assert_run("board.pcf", name, stderr=name + b": Read-only file system\n")


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
