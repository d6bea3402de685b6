"""The program is built with the defences of the toolchain, and nothing of the place where it was built is in it."""

import os
import platform
import shutil
import subprocess
import unittest

from boards import PROJECT
from program_case import ProgramCase

IS_X86 = platform.machine() in ("x86_64", "AMD64")


@unittest.skipUnless(shutil.which("readelf"), "readelf is missing")
@unittest.skipUnless(os.environ.get("QRL_HARDENED") == "1", "only an optimised build without sanitizers is hardened")
class HardeningTest(ProgramCase):
    def readelf(self, *options):
        return subprocess.run(["readelf", "--wide", *options, self.program], capture_output=True, text=True, check=True,
                              env={**os.environ, "LC_ALL": "C"}).stdout

    def test_it_can_be_loaded_anywhere(self):
        self.assertRegex(self.readelf("--file-header"), r"Type: +DYN")
        self.assertRegex(self.readelf("--dynamic"), r"\(FLAGS_1\).*\bPIE\b")

    def test_its_table_of_addresses_is_filled_at_the_start_and_then_read_only(self):
        self.assertRegex(self.readelf("--dynamic"), r"\(FLAGS_1\).*\bNOW\b")
        self.assertIn("GNU_RELRO", self.readelf("--program-headers"))

    def test_no_memory_can_be_written_and_executed(self):
        segments = self.readelf("--program-headers")
        self.assertRegex(segments, r"GNU_STACK .* RW +0x")
        self.assertNotIn("RWE", segments)
        self.assertNotIn("TEXTREL", self.readelf("--dynamic"))

    def test_overrun_stacks_and_buffers_end_it(self):
        symbols = self.readelf("--dyn-syms")
        self.assertIn("__stack_chk_fail", symbols)
        self.assertIn("__fprintf_chk", symbols)
        self.assertIn("__glibcxx_assert_fail", symbols)

    @unittest.skipUnless(IS_X86, "another family of processors")
    def test_jumps_have_to_land_on_marked_places(self):
        endbr64 = b"\xf3\x0f\x1e\xfa"
        with open(self.program, "rb") as file:
            self.assertGreater(file.read().count(endbr64), 100)

    def test_libraries_come_from_the_system_and_are_those_of_the_language(self):
        dynamic = self.readelf("--dynamic")
        needed = {line.split("[")[1].split(".so")[0] for line in dynamic.splitlines() if "(NEEDED)" in line}
        self.assertLessEqual(needed, {"libstdc++", "libm", "libgcc_s", "libc", "ld-linux-x86-64", "ld-linux-aarch64"})
        self.assertNotRegex(dynamic, r"\((RPATH|RUNPATH)\)")

    def test_the_place_of_the_sources_is_not_in_it(self):
        with open(self.program, "rb") as file:
            self.assertNotIn(os.fsencode(PROJECT), file.read())


if __name__ == "__main__":
    unittest.main()
