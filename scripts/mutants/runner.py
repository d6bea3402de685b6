"""Runs a test with some program, within limits of time and memory, and knows how long it takes without a mutant.

A mutant may do anything: go on for ever, ask for all memory, fill the disk, start what outlives it, or remove files. Each of
these ends as a failed test. Durations are kept in a file for the next run, each with the bytes of what was run, so that a test is
timed again only when the program or the test has changed.
"""

import dataclasses
import hashlib
import json
import os
import resource
import shutil
import signal
import subprocess
import time

from .tests import TOOLS

QUICK_SECONDS = 3       # a test that takes longer waits for the second look
ENDLESS_SECONDS = 1200  # without a mutant no test takes as long
MEMORY = 4 << 30        # a mutant that asks for more has run away
NOBODY = 65534


class Runner:
    def __init__(self, build, work):
        self.build = build
        self.path = work / "durations.json"
        self.durations = json.loads(self.path.read_text()) if self.path.exists() else {}
        self.fresh = set()  # the tests whose duration is that of the present build
        self.python = shutil.which("python3", path=os.defpath)  # one that any user may run
        self.user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.geteuid() == 0 else {}

    def is_passing(self, test, program, seconds):
        folder = self.build.tree / "tests/cli" if test.script else self.build.scratch
        process = subprocess.Popen(self._get_command(test, program), cwd=folder, env=self._get_environment(program), start_new_session=True,
                                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, preexec_fn=limit_run, **self.user)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            end_session(process)

    def _get_command(self, test, program):
        if test.script:
            return [self.python, "-B", test.script, "--failfast"]
        return [program, "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=" + (test.part or "*")]

    def _get_environment(self, program):
        """Names the program and its tools to command-line tests, and lets all that is written go to the scratch folder."""
        scratch = str(self.build.scratch)
        tools = {variable: str(self.build.folder / tool) for variable, tool in TOOLS.items()}
        return {**os.environ, **tools, "ZUKEN2QRL": str(program), "QRL_HARDENED": "0", "COVERAGE": "OFF",
                "HOME": scratch, "TMPDIR": scratch, "GOLDEN_ACTUAL": f"{scratch}/golden"}

    def measure_unknown(self, tests):
        """Lets is_quick know all of the tests."""
        for test in sorted(tests, key=lambda test: test.name):
            if test.name not in self.durations:
                self._measure(test)

    def is_quick(self, test):
        """By the duration that was measured last, be it on an earlier build: that is near enough, and spares to measure what isn't run."""
        return self.durations[test.name][1] < QUICK_SECONDS

    def get_limit(self, test):
        """The seconds after which the test, or a part of it, has gone on for too long."""
        self._measure(test)
        return 5 + 4 * self.durations[test.name][1]

    def _measure(self, test):
        """How long the whole test takes on what isn't changed. A test that fails there tells nothing."""
        if test.name in self.fresh:
            return
        self.fresh.add(test.name)
        program = self.build.folder / test.program
        inputs = [program, self.build.tree / "tests/cli" / test.script] if test.script else [program]
        stamp = hashlib.sha256(b"".join(path.read_bytes() for path in inputs)).hexdigest()
        if test.name in self.durations and self.durations[test.name][0] == stamp:
            return
        started = time.monotonic()
        if not self.is_passing(dataclasses.replace(test, part=""), program, ENDLESS_SECONDS):
            raise SystemExit(f"{test.name} fails without any change")
        self.durations[test.name] = (stamp, time.monotonic() - started)
        self.path.write_text(json.dumps(self.durations))


def limit_run():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (MEMORY, MEMORY))


def end_session(process):
    """Ends what a test has started, too."""
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()
