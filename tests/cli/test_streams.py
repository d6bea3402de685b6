"""Standard streams that are closed, full or gone: what is said is lost, the output isn't."""

import os
import select
import subprocess
import unittest

from program_case import BOARD, NO_OUTLINE, ProgramCase, missing

BROKEN = b"((\n"
PATIENCE_SECONDS = 20


class StreamsTest(ProgramCase):
    def assert_written(self, result, stderr=b"", output=None):
        self.assert_result(result, stderr=stderr)
        with open(self.path("board.qrl"), "rb") as file:
            self.assert_bytes(output or self.output_of(), file.read(), "board.qrl")
        self.assertNotIn(b".qrl-", b" ".join(self.files()))

    @staticmethod
    def closing(*descriptors):
        def close():
            for descriptor in descriptors:
                os.close(descriptor)

        return close

    def test_each_standard_stream_may_be_closed(self):
        self.put_board(txt=None)
        for closed in ((0,), (1,), (2,), (0, 1), (1, 2), (0, 1, 2)):
            with self.subTest(closed=closed):
                result = self.run_program("board.pcf", preexec_fn=self.closing(*closed))
                result.stdout = b""
                self.assert_written(result)

    def test_what_is_said_without_standard_output_never_reaches_a_file(self):
        self.put_board(pcf=BROKEN, ftf=BROKEN, txt=None)
        for closed in ((1,), (0, 1), (1, 2), (0, 1, 2)):
            with self.subTest(closed=closed):
                result = self.run_program("board.pcf", preexec_fn=self.closing(*closed))
                stderr = b"" if 2 in closed else NO_OUTLINE
                self.assert_written(result, stderr, self.output_of(pcf=b"", ftf=b""))
                self.assertEqual(self.files()[b"board.pcf"], BROKEN)
                self.assertEqual(self.files()[b"board.ftf"], BROKEN)

    def test_a_failed_write_without_standard_error_ends_as_ever(self):
        self.put_board()
        self.assert_run("board.pcf", "away/out.qrl", preexec_fn=self.closing(2))

    def test_a_reader_of_standard_output_may_be_gone(self):
        self.put_board(txt=None)
        reader, writer = os.pipe()
        os.close(reader)
        result = self.run_program("board.pcf", stdout=writer)
        os.close(writer)
        self.assert_written(result)

    def test_standard_output_may_be_full(self):
        self.put_board(txt=None)
        with open("/dev/full", "wb") as full:
            self.assert_written(self.run_program("board.pcf", stdout=full))

    def test_the_status_tells_of_a_missing_file_when_standard_output_cannot(self):
        with open("/dev/full", "wb") as full:
            self.assert_result(self.run_program("board.pcf", stdout=full), status=1)

    def test_nothing_is_read_from_standard_input(self):
        self.put_board()
        reader, writer = os.pipe()
        started = subprocess.Popen([self.program, "board.pcf"], stdin=reader, cwd=self.folder)
        self.addCleanup(started.kill)
        os.close(reader)
        self.assertEqual(started.wait(timeout=PATIENCE_SECONDS), 0)
        os.close(writer)
        self.assertEqual(self.files()[b"board.qrl"], self.output_of())

    def test_every_line_is_out_before_the_next_file_is_read(self):
        self.put_board(pcf=None, txt=None)
        os.mkfifo(self.path("board.pcf"))
        started = subprocess.Popen([self.program, "board.pcf"], cwd=self.folder, stdout=subprocess.PIPE)
        self.addCleanup(started.kill)
        self.assertTrue(select.select([started.stdout], [], [], PATIENCE_SECONDS)[0], "nothing is said")
        self.assertEqual(started.stdout.readline(), missing(b"TXT", "board.txt"))
        with open(self.path("board.pcf"), "wb") as file:
            file.write(BOARD)
        self.assertEqual(started.communicate(timeout=PATIENCE_SECONDS)[0], b"")
        self.assertEqual(self.files()[b"board.qrl"], self.output_of())


if __name__ == "__main__":
    unittest.main()
