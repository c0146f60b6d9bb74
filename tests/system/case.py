# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What every test of the real program shares: a session for the whole file, no program left over
from one test to the next, and no sanitizer's report overlooked."""

import contextlib
import os
import re
import shutil
import signal
import subprocess
import unittest

import counter
import driver

# Run 1 of a GIF export makes the video, run 2 the palette of it, run 3 the GIF: a word that only its
# command line has.
RUNS = {1: "*scale=640x480*", 2: "*palettegen*", 3: "*paletteuse*"}
REAL = 'exec real "$@"'
STILL = "sleep"  # what an encoder that stands still is called; it hears nothing but a kill
SAVE_PANEL = "Select a folder to save the GIF image"
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

    # The command line -------------------------------------------------------------------------

    @contextlib.contextmanager
    def running(self, *arguments, environment=None, stderr=subprocess.PIPE):
        """The program on its command line, begun."""
        with subprocess.Popen(
            [self.session.build / driver.BINARY, *map(str, arguments)], text=True,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=stderr,
            cwd=self.session.folder,
            env={**self.session.environment, **(environment or {})}) as process:
            try:
                yield process
            except BaseException:
                process.kill()
                raise

    def run_it(self, *arguments, environment=None):
        """What it ends with, what it says and what it complains of."""
        with self.running(*arguments, environment=environment) as process:
            said, complained = process.communicate(timeout=driver.PATIENCE)
        self.assertIsNone(REPORT.search(complained), complained)
        return process.returncode, said, complained

    # The window -------------------------------------------------------------------------------

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
            real = shutil.which("ffmpeg", path=self.session.environment["PATH"])
            path.write_text("#!/bin/sh\n" + script.replace("real", real) + "\n")
            path.chmod(0o755)
        return {"PATH": f"{folder}:{self.session.environment['PATH']}"}


    def recording(self, seconds=0.5, environment=None):
        """A program that records."""
        program = driver.Program(self.session, environment)
        program.press("Record")
        program.recording_for(seconds)
        return program

    def saving(self, environment=None):
        """A program whose saving stands still after the frames that are being written, as long as
        the file `hold` is there."""
        self.hold = self.session.folder / "hold"
        self.hold.unlink(missing_ok=True)
        program = self.recording(1.5, {
            "LD_PRELOAD": str(self.session.build / "tests/system/libhold_rename.so"),
            "HOLD_RENAME": str(self.hold),
            **(environment or {}),
            # A sanitizer's run-time library wants to be the first one otherwise.
            "ASAN_OPTIONS": "detect_leaks=0:verify_asan_link_order=0",
        })
        self.hold.touch()
        program.press("Stop")
        program.await_control("progress bar")
        return program

    def exporting(self, environment=None):
        """A program whose GIF export has just been asked for."""
        program = driver.Program(self.session, environment)
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        return program

    def check_gif(self, program, target, replace=False):
        """Exports the whole recording: the pictures of the GIF, one for each frame."""
        program.press("Generate GIF")
        program.save_panel(target, replace=replace)
        program.dismiss_alert("Success")
        pictures = counter.decode(str(target))
        self.assertEqual(len(pictures), len(self.frame_files()))
        return pictures

    def frame_files(self):
        return sorted(self.session.frames.glob("frame*.png"))


STAND_STILL = f"trap '' TERM INT HUP; exec {STILL} 1000"


def in_run(number, script):
    """That script in this run of an export, the real encoder in the others."""
    return f'case "$*" in {RUNS[number]}) {script} ;; esac\n{REAL}'


def main():
    # Warnings here are the interpreter's about the accessibility library's own code.
    unittest.main(verbosity=2, warnings="ignore")
