"""The names of the sibling files, for board files of every name that the system allows."""

import os
import unittest

from program_case import ProgramCase, missing

# The name of a board file, and what it has in common with its siblings.
NAMES = [
    (b"board.pcf", b"board"),
    (b"board", b"board"),
    (b"board.", b"board"),
    (b"board.PCF", b"board"),
    (b"board.other", b"board"),
    (b"rev.1.2.pcf", b"rev.1.2"),
    (b"two..pcf", b"two."),
    (b".pcf", b".pcf"),
    (b".hidden.pcf", b".hidden"),
    (b"..pcf", b"."),
    (b" a board .pcf", b" a board "),
    (b"a\tb\nc.pcf", b"a\tb\nc"),
    (b"it's $HOME/*.pcf", b"it's $HOME/*"),
    (b"back\\slash.pcf", b"back\\slash"),
    (b"-board.pcf", b"-board"),
    (b"100%d%s.pcf", b"100%d%s"),
    (b"(;).pcf", b"(;)"),
    ("Größe 板 😀.pcf".encode(), "Größe 板 😀".encode()),
    (b"latin \xe4.pcf", b"latin \xe4"),
    (b"\xff\xfe\x80.pcf", b"\xff\xfe\x80"),
    (b"cut \xf0\x9f.pcf", b"cut \xf0\x9f"),
    (b"long \xc0\xaf.pcf", b"long \xc0\xaf"),
    (b"half \xed\xa0\x80\xed\xb2\x80.pcf", b"half \xed\xa0\x80\xed\xb2\x80"),
    (b"shift-jis \x83\x5c.pcf", b"shift-jis \x83\x5c"),
    (b"work.d/board.pcf", b"work.d/board"),
    (b"work.d/board", b"work.d/board"),
    (b"work.d/.board", b"work.d/.board"),
    (b"./board.pcf", b"./board"),
    (b"work/../board.pcf", b"work/../board"),
    (b"work//board.pcf", b"work//board"),
    (b"\xff.d/b\xff.pcf", b"\xff.d/b\xff"),
    (b"x" * 251 + b".pcf", b"x" * 251),
]


class FileNamesTest(ProgramCase):
    def put_named(self, name, stem, **contents):
        """Writes the files of a board whose board file isn't called like the others."""
        os.makedirs(self.path(b"work"), exist_ok=True)
        self.put_board(stem, **contents)
        os.rename(self.path(stem + b".pcf"), self.path(name))

    def for_every_name(self, check):
        for name, stem in NAMES:
            with self.subTest(name=name):
                self.new_folder()
                check(name, stem)

    def test_the_siblings_of_every_name_are_found(self):
        def check(name, stem):
            self.put_named(name, stem)
            self.assert_run(name, made={os.path.normpath(stem + b".qrl"): self.output_of()})

        self.for_every_name(check)

    def test_every_name_of_a_board_file_comes_out_as_it_went_in(self):
        def check(name, _):
            self.assert_run(name, status=1, stdout=missing(b"PCF", name))

        self.for_every_name(check)

    def test_every_name_of_a_footprint_file_comes_out_as_it_went_in(self):
        def check(name, stem):
            os.makedirs(self.path(b"work"), exist_ok=True)
            self.put(name, b"")
            self.assert_run(name, status=1, stdout=missing(b"FTF", stem + b".ftf"))

        self.for_every_name(check)

    def test_every_name_of_a_side_file_comes_out_as_it_went_in(self):
        def check(name, stem):
            self.put_named(name, stem, txt=None)
            self.assert_run(name, stdout=missing(b"TXT", stem + b".txt"),
                            made={os.path.normpath(stem + b".qrl"): self.output_of()})

        self.for_every_name(check)

    def test_every_name_can_be_an_output(self):
        self.put_board("source")
        for name, _ in NAMES:
            with self.subTest(name=name):
                os.makedirs(self.path(os.path.dirname(name)), exist_ok=True)
                os.makedirs(self.path(b"work"), exist_ok=True)
                self.assert_run("source.pcf", name, made={os.path.normpath(name): self.output_of()})

    def test_a_whole_path_names_a_file_from_any_folder(self):
        self.put_board()
        self.assert_run(self.path("board.pcf"), cwd="/", made={b"board.qrl": self.output_of()})

    def test_the_text_of_a_path_is_told_and_not_where_it_leads(self):
        os.makedirs(self.path(b"work"))
        self.assert_run("work/.././gone.pcf", status=1, stdout=missing(b"PCF", "work/.././gone.pcf"))

    def test_a_name_longer_than_the_system_takes_is_missing(self):
        name = b"y" * 300 + b".pcf"
        self.assert_run(name, status=1, stdout=missing(b"PCF", name))

    def test_the_current_folder_is_no_file(self):
        for name in (".", "..", "/", "./"):
            with self.subTest(name=name):
                self.assert_run(name, status=1, stdout=missing(b"PCF", name))


if __name__ == "__main__":
    unittest.main()
