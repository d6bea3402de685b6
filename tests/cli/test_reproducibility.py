"""The same board gives the same bytes, wherever and whenever it is translated."""

import os
import subprocess
import unittest

from program_case import BOARD, ProgramCase

# A comma for the decimal point and another order of letters, where the system has them.
LOCALES = ("C", "POSIX", "C.UTF-8", "de_DE.UTF-8", "tr_TR.UTF-8", "fr_FR.ISO-8859-1", "ja_JP.SJIS", "no such locale")
TIME_ZONES = ("UTC", "Asia/Tokyo", "America/St_Johns", "nowhere")
NUMBERS = BOARD.replace(b"(unit MM)", b"(unit DBUNIT)").replace(b"(pt 4 0)", b"(pt 12345.678 -9.75e3)")


class ReproducibilityTest(ProgramCase):
    def setUp(self):
        super().setUp()
        self.put_board(pcf=NUMBERS)
        self.expected = self.output_of(pcf=NUMBERS)

    def assert_same(self, **options):
        self.assert_run("board.pcf", made={b"board.qrl": self.expected}, **options)
        os.remove(self.path("board.qrl"))

    def test_a_second_run(self):
        self.assert_same()
        self.assert_same()

    def test_a_run_over_its_own_output(self):
        self.put("board.qrl", self.expected)
        self.assert_same()

    def test_other_locales(self):
        for locale in LOCALES:
            with self.subTest(locale=locale):
                self.assert_same(env={**os.environ, "LC_ALL": locale, "LANG": locale, "LANGUAGE": locale})

    def test_other_time_zones(self):
        for zone in TIME_ZONES:
            with self.subTest(zone=zone):
                self.assert_same(env={**os.environ, "TZ": zone})

    def test_no_environment(self):
        kept = {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        self.assert_same(env=kept)

    def test_other_folders_and_names(self):
        for stem in ("a/very/deep/folder/board", "größe/板", "b"):
            with self.subTest(stem=stem):
                self.put_board(stem, pcf=NUMBERS)
                self.assert_run(stem + ".pcf", made={stem.encode() + b".qrl": self.expected})

    def test_the_way_to_the_files(self):
        self.assert_same(cwd=self.folder)
        for argument, folder in ((self.path("board.pcf"), "/"), ("./board.pcf", self.folder)):
            with self.subTest(argument=argument):
                self.assert_run(argument, cwd=folder, made={b"board.qrl": self.expected})

    def test_the_dates_of_the_files(self):
        for extension in ("pcf", "ftf", "txt"):
            os.utime(self.path("board." + extension), (0, 0))
        self.assert_same()

    def test_other_addresses_of_memory(self):
        fixed = ("setarch", "--addr-no-randomize")
        try:
            can_fix = subprocess.run([*fixed, "true"], capture_output=True, check=False).returncode == 0
        except FileNotFoundError:
            can_fix = False
        if not can_fix:
            self.skipTest("setarch is missing or may not fix addresses")
        self.assert_same(prefix=fixed)
        self.assert_same()


if __name__ == "__main__":
    unittest.main()
