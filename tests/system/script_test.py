# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The command line: recordings without a window, and what the running window is told."""

import signal
import subprocess

import case
import counter
import driver
from driver import Program, wait_for


class Script(case.Case):
    def tearDown(self):
        super().tearDown()
        self.assertEqual([], list(self.session.folder.glob("Tovarel-*")), "nothing is left behind")

    def test_a_region_is_recorded_beside_a_window_and_nothing_is_replaced(self):
        x, y, width, height = self.session.counter()
        program = Program(self.session)
        program.record(1)
        frames = {path: path.stat().st_mtime_ns for path in self.session.frames.iterdir()}
        target = self.session.home / "a.gif"
        asked = ("record", "--region", f"{width}x{height}+{x}+{y}", "--seconds", 1, "--rate", 10,
                 "--quality", "best", "-o", target)
        # It may complain that the machine is slow.
        self.assertEqual(self.run_it(*asked)[:2], (0, f"{target}\n"))
        pictures = counter.decode(str(target))
        self.assertEqual((pictures[0].width, pictures[0].height), (width, height))
        numbers = [counter.read(picture, 0, 0, width, height) for picture in pictures]
        self.assertNotIn(None, numbers)
        self.assertEqual(numbers, sorted(set(numbers)), "in order, each picture once")
        self.assertGreaterEqual(sum(counter.durations(str(target))), 0.95)
        made = target.read_bytes()
        status, said, complained = self.run_it(*asked)
        self.assertEqual((status, said), (2, ""))
        self.assertIn("--force", complained)
        self.assertEqual(target.read_bytes(), made)
        self.assertEqual(self.run_it(*asked, "--force")[0], 0)
        self.assertEqual(
            frames, {path: path.stat().st_mtime_ns for path in self.session.frames.iterdir()})

    def test_what_cannot_be_done_ends_with_a_status_of_its_own(self):
        whole = ("record", "--screen", "--seconds", 0.5)
        for status, arguments, environment in (
                (2, whole + ("--rate", 0), {"DISPLAY": ""}),
                (3, whole, {"DISPLAY": ""}),
                (3, ("record", "--region", "640x480+700+0", "--seconds", 1), {}),
                (3, ("record", "--screen", 9, "--seconds", 1), {}),
                (3, ("record", "--window", "no such title", "--seconds", 1), {}),
                (3, ("--stop",), {}),
                (4, whole + ("-o", "a.mp4"), self.stand_in("exit 1"))):
            ended, said, complained = self.run_it(*arguments, environment=environment)
            self.assertEqual((ended, said), (status, ""), arguments)
            self.assertNotEqual(complained, "")
        self.assertFalse((self.session.folder / "a.mp4").exists())

    def test_an_interrupt_writes_what_there_is(self):
        place = self.session.counter()
        with self.running(
                "record", "--window", "COUNTER", "--seconds", 600, "--rate", 20,
                "-o", "c.webp") as process:
            # Its folders are there once it records; how long that takes is not known.
            frames = wait_for("the recording", lambda: list(self.session.folder.glob("Tovarel-*")))
            self.assertEqual(len(frames), 1)
            try:
                process.wait(1.5)
            except subprocess.TimeoutExpired:
                process.send_signal(signal.SIGINT)
            said, complained = process.communicate(timeout=driver.PATIENCE)
        self.assertEqual((process.returncode, said), (0, f"{self.session.folder}/c.webp\n"), complained)
        width, height = map(int, subprocess.run(
            ["webpinfo", self.session.folder / "c.webp"], check=True, text=True,
            capture_output=True, timeout=driver.PATIENCE).stdout
            .split("Canvas size ")[1].split("\n")[0].split(" x "))
        self.assertGreaterEqual(width, place[2], "with its frame")
        self.assertGreater(height, place[3])

    def test_the_window_is_told_what_to_do(self):
        program = Program(self.session)
        self.assertEqual(self.run_it("--stop")[0], 3)
        self.assertEqual(self.run_it("--toggle"), (0, "", ""))
        program.wait_for("the recording", lambda: program.enabled("Pause"))
        self.assertEqual(self.run_it("--pause"), (0, "", ""))
        program.wait_for("the pause", lambda: not program.enabled("Pause"))
        self.assertEqual(self.run_it("--pause"), (0, "", ""))
        program.recording_for(1)
        self.assertEqual(self.run_it("--toggle"), (0, "", ""))
        program.await_tab("Cut")
        self.assertGreater(len(self.frame_files()), 1)
        self.assertEqual(self.run_it("--toggle")[0], 0, "on the Record tab, wherever it was")
        program.recording_for(0.5)
        self.assertEqual(self.run_it("--stop")[0], 0)
        program.await_tab("Cut")


if __name__ == "__main__":
    case.main()
