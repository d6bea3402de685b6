"""The arguments: which files a run reads and writes, what it says and how it ends."""

import os
import unittest

from program_case import BOARD, FOOTPRINTS, NO_OUTLINE, SIDE, ProgramCase, can_drop_privileges, missing, unprivileged

REQUEST = b" Please specify the Zuken .pcf file as a command line argument \n"


class ArgumentsTest(ProgramCase):
    def test_no_argument_asks_for_one(self):
        self.assert_run(stdout=REQUEST)

    def test_the_output_stands_beside_the_board_file(self):
        self.put_board("work/board")
        self.assert_run("work/board.pcf", made={b"work/board.qrl": self.output_of()})

    def test_the_output_holds_the_board(self):
        self.assertIn(b'StackupLayer("Conductive_2", "Signal", "Bottom", 0.2, "Copper")\n', self.output_of())

    def test_an_output_name_is_taken_as_it_is(self):
        self.put_board()
        for name in (b"out.x", b"out", b".out", b"out.qrl.", b'"out"', b" ", b"-o"):
            with self.subTest(name=name):
                self.assert_run("board.pcf", name, made={name: self.output_of()})

    def test_an_output_name_counts_from_the_current_folder(self):
        self.put_board("work/board")
        self.assert_run("work/board.pcf", "out.x", made={b"out.x": self.output_of()})

    def test_an_empty_output_name_cannot_be_written(self):
        self.put_board()
        self.assert_run("board.pcf", "", stderr=b": No such file or directory\n")

    def test_more_arguments_are_ignored(self):
        self.put_board()
        self.assert_run("board.pcf", "out.x", "other.pcf", "--help", made={b"out.x": self.output_of()})

    def test_an_old_output_is_replaced(self):
        self.put_board()
        self.put("board.qrl", b"old\n" * 10000)
        self.assert_run("board.pcf", made={b"board.qrl": self.output_of()})

    def test_the_board_file_may_be_its_own_output(self):
        self.put_board()
        self.assert_run("board.pcf", "board.pcf", made={b"board.pcf": self.output_of()})


class MissingFileTest(ProgramCase):
    def test_without_a_board_file_nothing_is_written(self):
        self.put_board(pcf=None)
        self.assert_run("board.pcf", "out.x", status=1, stdout=missing(b"PCF", "board.pcf"))

    def test_without_any_file_only_the_board_file_is_told(self):
        self.assert_run("work/board.pcf", status=1, stdout=missing(b"PCF", "work/board.pcf"))

    def test_without_a_footprint_file_nothing_is_written_and_the_side_file_not_told(self):
        for txt in (SIDE, None):
            with self.subTest(txt=txt):
                self.put_board("x", ftf=None, txt=txt)
                self.assert_run("x.pcf", status=1, stdout=missing(b"FTF", "x.ftf"))
                os.remove(self.path("x.pcf"))

    def test_without_a_footprint_file_an_old_output_stays(self):
        self.put_board(ftf=None)
        self.put("board.qrl", b"old")
        self.assert_run("board.pcf", status=1, stdout=missing(b"FTF", "board.ftf"))

    def test_without_a_side_file_the_board_is_written(self):
        self.put_board("work/board", txt=None)
        self.assert_run("work/board.pcf", stdout=missing(b"TXT", "work/board.txt"),
                        made={b"work/board.qrl": self.output_of()})

    def test_the_extension_is_compared_letter_by_letter(self):
        self.put("board.pcf", BOARD)
        self.put("board.FTF", FOOTPRINTS)
        self.assert_run("board.pcf", status=1, stdout=missing(b"FTF", "board.ftf"))

    def test_a_folder_is_no_file(self):
        for kind, extension, status in ((b"PCF", b".pcf", 1), (b"FTF", b".ftf", 1), (b"TXT", b".txt", 0)):
            with self.subTest(kind=kind):
                stem = kind.lower()
                self.put_board(stem)
                os.remove(self.path(stem + extension))
                os.mkdir(self.path(stem + extension))
                made = {stem + b".qrl": self.output_of()} if status == 0 else {}
                self.assert_run(stem + b".pcf", status=status, stdout=missing(kind, stem + extension), made=made)

    def test_a_link_to_nothing_is_no_file(self):
        self.put_board(pcf=None)
        os.symlink("away.pcf", self.path("board.pcf"))
        self.assert_run("board.pcf", status=1, stdout=missing(b"PCF", "board.pcf"))

    def test_links_to_files_are_files(self):
        self.put_board("work/b")
        for extension in ("pcf", "ftf", "txt"):
            os.symlink("work/b." + extension, self.path("board." + extension))
        self.assert_run("board.pcf", made={b"board.qrl": self.output_of()})


class QuotesTest(ProgramCase):
    def test_a_quote_at_either_end_is_dropped(self):
        self.put_board()
        for argument in ('"board.pcf"', '"board.pcf', 'board.pcf"'):
            with self.subTest(argument=argument):
                self.assert_run(argument, made={b"board.qrl": self.output_of()})
                os.remove(self.path("board.qrl"))

    def test_only_one_quote_is_dropped_at_each_end(self):
        self.put_board(b'"board')
        self.assert_run('""board.pcf"', made={b'"board.qrl': self.output_of()})

    def test_a_quote_within_the_name_stays(self):
        self.put_board(b'a"b')
        self.assert_run('a"b.pcf', made={b'a"b.qrl': self.output_of()})

    def test_the_message_gives_the_name_without_quotes(self):
        for argument in ('"gone.pcf"', '"gone.pcf', 'gone.pcf"', "gone.pcf"):
            with self.subTest(argument=argument):
                self.assert_run(argument, status=1, stdout=missing(b"PCF", "gone.pcf"))

    def test_an_argument_of_quotes_alone_names_no_file(self):
        for argument in ("", '"', '""'):
            with self.subTest(argument=argument):
                self.assert_run(argument, status=1, stdout=b"PCF file  does not exist\n")

    def test_a_third_quote_is_a_name(self):
        self.assert_run('"""', status=1, stdout=missing(b"PCF", '"'))


@unittest.skipUnless(can_drop_privileges(), "can't run a process as nobody")
class UnreadableFileTest(ProgramCase):
    def put_unreadable(self, extension):
        self.put_board()
        os.chmod(self.folder, 0o777)
        os.chmod(self.path(b"board" + extension), 0)

    def assert_unprivileged_run(self, stderr, output):
        result = self.run_program("board.pcf", **unprivileged())
        self.assert_result(result, stderr=stderr)
        with open(self.path("board.qrl"), "rb") as file:
            self.assert_bytes(output, file.read(), "board.qrl")

    def test_an_unreadable_board_file_is_an_empty_board(self):
        self.put_unreadable(b".pcf")
        self.assert_unprivileged_run(NO_OUTLINE, self.output_of(pcf=b""))

    def test_an_unreadable_footprint_file_is_an_empty_one(self):
        self.put_unreadable(b".ftf")
        self.assert_unprivileged_run(b"", self.output_of(ftf=b""))

    def test_an_unreadable_side_file_counts_as_there(self):
        self.put_unreadable(b".txt")
        self.assert_unprivileged_run(b"", self.output_of(txt=b""))


if __name__ == "__main__":
    unittest.main()
