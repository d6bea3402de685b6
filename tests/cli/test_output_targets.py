"""Where the output can go: pipes, devices and links, and the permissions of what is made there."""

import os
import socket
import stat
import subprocess
import threading
import unittest

from program_case import TIMEOUT_SECONDS, ProgramCase, can_drop_privileges, unprivileged


class PipeTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board()

    def test_standard_output_can_take_the_output(self):
        for name in ("/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"):
            with self.subTest(name=name):
                self.assert_run("board.pcf", name, stdout=self.output_of())

    def test_messages_come_ahead_of_an_output_on_standard_output(self):
        os.remove(self.path("board.txt"))
        self.assert_run("board.pcf", "/dev/stdout",
                        stdout=b"TXT file board.txt does not exist\n" + self.output_of())

    def test_standard_error_can_take_the_output(self):
        self.assert_run("board.pcf", "/dev/stderr", stderr=self.output_of())

    def test_a_file_behind_standard_output_gets_the_output(self):
        with open(self.path("out.x"), "wb") as file:
            self.assert_result(self.run_program("board.pcf", "/dev/stdout", stdout=file))
        self.assertEqual(self.files()[b"out.x"], self.output_of())

    def test_a_named_pipe_gets_the_output_and_stays(self):
        os.mkfifo(self.path("pipe"))
        read = []

        def read_all():
            with open(self.path("pipe"), "rb") as file:
                read.append(file.read())

        reader = threading.Thread(target=read_all, daemon=True)
        reader.start()
        self.assert_run("board.pcf", "pipe")
        reader.join(TIMEOUT_SECONDS)
        self.assertEqual(read, [self.output_of()])

    def test_a_pipe_whose_reader_is_gone_is_a_failed_write(self):
        reader, writer = os.pipe()
        os.close(reader)
        result = self.run_program("board.pcf", "/dev/stdout", stdout=writer)
        os.close(writer)
        self.assert_result(result, stderr=b"/dev/stdout: Broken pipe\n")

    def test_a_device_gets_the_output_and_stays(self):
        self.assert_run("board.pcf", "/dev/null")
        self.assertTrue(stat.S_ISCHR(os.stat("/dev/null").st_mode))

    def test_a_socket_cannot_be_written(self):
        with socket.socket(socket.AF_UNIX) as made:
            made.bind(self.path("socket"))
            self.assert_run("board.pcf", "socket", stderr=b"socket: No such device or address\n")

    def test_a_folder_cannot_be_written(self):
        os.mkdir(self.path("out"))
        for name in ("out", "out/", "."):
            with self.subTest(name=name):
                self.assert_run("board.pcf", name, stderr=name.encode() + b": Is a directory\n")


class LinkTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board()

    def assert_target_is_written(self, target):
        self.assert_run("board.pcf", "out.qrl", made={target: self.output_of()})

    def test_a_link_stays_and_its_target_is_replaced(self):
        self.put("target", b"old")
        os.symlink("target", self.path("out.qrl"))
        self.assert_target_is_written(b"target")

    def test_a_link_to_nothing_stays_and_its_target_is_made(self):
        os.symlink("target", self.path("out.qrl"))
        self.assert_target_is_written(b"target")

    def test_a_link_counts_from_its_own_folder(self):
        self.put("other/target", b"old")
        os.mkdir(self.path("work"))
        os.symlink("../other/target", self.path("work/link"))
        os.symlink("work/link", self.path("out.qrl"))
        self.assert_target_is_written(b"other/target")

    def test_a_link_to_a_whole_path_is_followed(self):
        self.put("other/target", b"old")
        os.symlink(self.path("other/target"), self.path(b"out.qrl"))
        self.assert_target_is_written(b"other/target")

    def test_a_link_in_the_folders_of_the_name_is_followed(self):
        os.mkdir(self.path("target"))
        os.symlink("target", self.path("work"))
        self.assert_run("board.pcf", "work/out.qrl", made={b"target/out.qrl": self.output_of()})

    def put_chain(self, links):
        names = ["out.qrl", *(f"link{number}" for number in range(1, links)), "target"]
        for name, target in zip(names, names[1:]):
            os.symlink(target, self.path(name))

    def test_as_many_links_as_the_system_follows_are_followed(self):
        self.put_chain(40)
        self.assert_target_is_written(b"target")

    def test_one_link_more_is_a_failed_write(self):
        self.put_chain(41)
        self.assert_run("board.pcf", "out.qrl", stderr=b"out.qrl: Too many levels of symbolic links\n")

    def test_a_chain_of_links_without_an_end_stays(self):
        os.symlink("other", self.path("out.qrl"))
        os.symlink("out.qrl", self.path("other"))
        self.assert_run("board.pcf", "out.qrl", stderr=b"out.qrl: Too many levels of symbolic links\n")

    def test_a_link_to_a_device_stays(self):
        os.symlink("/dev/null", self.path("out.qrl"))
        self.assert_run("board.pcf", "out.qrl")

    def test_a_link_into_a_folder_that_is_not_there_stays(self):
        os.symlink("away/target", self.path("out.qrl"))
        self.assert_run("board.pcf", "out.qrl", stderr=b"out.qrl: No such file or directory\n")

    def test_another_name_of_the_old_file_keeps_the_old_content(self):
        self.put("out.qrl", b"old")
        os.link(self.path("out.qrl"), self.path("backup"))
        self.assert_target_is_written(b"out.qrl")
        self.assertEqual(self.files()[b"backup"], b"old")


class PermissionsTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board()

    def mode_of(self, name):
        return stat.S_IMODE(os.stat(self.path(name)).st_mode)

    def test_an_old_file_hands_on_its_permissions(self):
        for mode in (0o644, 0o600, 0o755, 0o666, 0o777, 0o640, 0o400):
            with self.subTest(mode=oct(mode)):
                self.put("out.qrl", b"old")
                os.chmod(self.path("out.qrl"), mode)
                self.assert_run("board.pcf", "out.qrl", made={b"out.qrl": self.output_of()}, umask=0o077)
                self.assertEqual(self.mode_of("out.qrl"), mode)
                os.remove(self.path("out.qrl"))

    def test_the_target_of_a_link_hands_on_its_permissions(self):
        self.put("target", b"old")
        os.chmod(self.path("target"), 0o664)
        os.symlink("target", self.path("out.qrl"))
        self.assert_run("board.pcf", "out.qrl", made={b"target": self.output_of()}, umask=0o077)
        self.assertEqual(self.mode_of("target"), 0o664)

    def test_a_new_file_has_the_permissions_that_the_umask_leaves(self):
        for umask in (0o000, 0o022, 0o027, 0o077, 0o277):
            with self.subTest(umask=oct(umask)):
                self.assert_run("board.pcf", "out.qrl", made={b"out.qrl": self.output_of()}, umask=umask)
                self.assertEqual(self.mode_of("out.qrl"), 0o666 & ~umask)
                os.remove(self.path("out.qrl"))

    @unittest.skipUnless(can_drop_privileges(), "can't run a process as nobody")
    def test_everybody_can_write_into_an_open_folder(self):
        os.mkdir(self.path("open"))
        os.chmod(self.path("open"), 0o777)
        self.assert_run("board.pcf", "open/out.qrl", made={b"open/out.qrl": self.output_of()}, **unprivileged())


class SideBySideTest(ProgramCase):
    def test_runs_into_one_file_leave_a_whole_one(self):
        self.put_board()
        runs = [subprocess.Popen([self.program, "board.pcf"], cwd=self.folder) for _ in range(16)]
        self.assertEqual([run.wait(timeout=TIMEOUT_SECONDS) for run in runs], [0] * len(runs))
        expected = self.files()
        self.assertEqual(sorted(expected), [b"board.ftf", b"board.pcf", b"board.qrl", b"board.txt"])
        self.assert_bytes(self.output_of(), expected[b"board.qrl"], "board.qrl")

    def test_what_an_earlier_run_left_behind_is_no_obstacle(self):
        self.put_board()
        # The program takes the place of this shell and with it its number.
        leave = 'for i in 0 1 2; do echo left >".qrl-$$-$i"; done; exec "$@"'
        self.assert_result(self.run_program("board.pcf", prefix=("sh", "-c", leave, "sh")))
        left = self.files()
        self.assert_bytes(self.output_of(), left.pop(b"board.qrl"), "board.qrl")
        temporaries = [content for name, content in left.items() if name.startswith(b".qrl-")]
        self.assertEqual(temporaries, [b"left\n"] * 3)


if __name__ == "__main__":
    unittest.main()
