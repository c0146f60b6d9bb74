# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What every test of the real program shares: a session for the whole file, no program left over
from one test to the next, and no sanitizer's report overlooked."""

import os
import re
import signal
import unittest

import driver

REPORT = re.compile(r"runtime error:|ERROR: \w+Sanitizer|Segmentation fault|ASSERT")


class Case(unittest.TestCase):
    screen = (800, 600)  # pixels
    session_type = driver.Session

    @classmethod
    def setUpClass(cls):
        cls.session = cls.enterClassContext(
            cls.session_type(os.environ["TOVAREL_BUILD"], *cls.screen))

    def tearDown(self):
        self.end_programs(signal.SIGKILL)
        for log in self.session.outputs.glob("tovarel-*.log"):
            said = log.read_text(encoding="utf-8", errors="replace")
            self.assertIsNone(REPORT.search(said), said)

    def end_programs(self, wanted):
        for number in self.session.processes(driver.BINARY):
            os.kill(number, wanted)
        self.await_none(driver.BINARY)

    def await_none(self, name):
        """Waits until no process of this name is left in the session."""
        driver.wait_for(f"no {name} to be left", lambda: not self.session.processes(name))

    def stand_in(self, script):
        """Puts a shell script in the place of ffmpeg, the environment for a program that is to
        find it. `real` stands for the real one in the script; None takes the file away."""
        folder = self.session.folder / "stand-ins"
        folder.mkdir(exist_ok=True)
        path = folder / "ffmpeg"
        path.unlink(missing_ok=True)
        if script is not None:
            real = driver.shutil.which("ffmpeg", path=self.session.environment["PATH"])
            path.write_text("#!/bin/sh\n" + script.replace("real", real) + "\n")
            path.chmod(0o755)
        return {"PATH": f"{folder}:{self.session.environment['PATH']}"}


def main():
    # Warnings here are the interpreter's about the accessibility library's own code.
    unittest.main(verbosity=2, warnings="ignore")
