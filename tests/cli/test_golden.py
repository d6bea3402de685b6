"""The boards under tests/golden, each about one feature: the neutral file and both streams, to the byte."""

import os
import shutil
import sys
import unittest

from program_case import ProgramCase, diff

GOLDEN = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "golden")


def content(path):
    """What a file holds. One that isn't there stands for an empty one."""
    try:
        with open(path, "rb") as file:
            return file.read()
    except FileNotFoundError:
        return b""


class GoldenTest(ProgramCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.kept = os.environ.get("GOLDEN_ACTUAL")
        if not cls.kept:
            sys.exit("GOLDEN_ACTUAL has to name the folder that takes what differs")

    def test_every_board_gives_its_expected_files(self):
        features = sorted(entry.name for entry in os.scandir(GOLDEN) if entry.is_dir())
        self.assertTrue(features, "no boards in " + GOLDEN)
        for feature in features:
            with self.subTest(feature=feature):
                self.assert_golden(feature)

    def assert_golden(self, feature):
        self.new_folder()
        golden = os.path.join(GOLDEN, feature)
        inputs = [name for name in os.listdir(golden) if name.startswith("board.")]
        for name in inputs:
            shutil.copy(os.path.join(golden, name), self.folder)
        result = self.run_program("board.pcf")
        actual = {
            "expected.err": result.stderr,
            "expected.out": result.stdout,
            "expected.qrl": content(os.path.join(self.folder, "board.qrl")),
        }
        differences = self.keep_what_differs(feature, actual)
        if differences:
            self.fail("\n" + "".join(differences))
        self.assertEqual(0, result.status, "exit status")
        self.assertEqual({*inputs, "board.qrl"}, set(os.listdir(self.folder)), "files in the folder")

    def keep_what_differs(self, feature, actual):
        """Leaves in the build folder what differs, and nothing of an earlier run, under the names of the expected files."""
        kept = os.path.join(self.kept, feature)
        shutil.rmtree(kept, ignore_errors=True)
        differences = []
        for name, found in actual.items():
            expected = content(os.path.join(GOLDEN, feature, name))
            if found != expected:
                os.makedirs(kept, exist_ok=True)
                with open(os.path.join(kept, name), "wb") as file:
                    file.write(found)
                differences.append(diff(expected, found, f"{feature}/{name}"))
        return differences


if __name__ == "__main__":
    unittest.main()
