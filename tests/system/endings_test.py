# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Every road out ends in order, whatever is going on, and leaves no encoder running: with status 0
when the program is asked to end, and by itself when its display goes, as when a session is torn
down."""

import os
import signal
import time

import case
from accessibility import act, is_enabled
from case import SAVE_PANEL, STAND_STILL, STILL, in_run
from driver import NOTE, Program, wait_for

SERVER = "Xvfb"


class Endings(case.Case):
    # Roads out -------------------------------------------------------------------------------

    def close(self, program):
        """Clicks the close button in the frame that the window manager draws around the window:
        at its upper right, above the window itself."""
        box = program.place()
        self.session.xdotool("mousemove", "--sync", box.x + box.width - 10, box.y - 10, "click", 1)

    def roads(self, program):
        return {
            "SIGTERM": lambda: program.process.send_signal(signal.SIGTERM),
            "SIGINT": lambda: program.process.send_signal(signal.SIGINT),
            "SIGHUP": lambda: program.process.send_signal(signal.SIGHUP),
            "closing the window": lambda: self.close(program),
            "Quit in the menu": lambda: program.choose("Tovarel", "Quit Tovarel"),
            "Quit by its shortcut": lambda: self.session.xdotool("key", "ctrl+q"),
        }

    def check_end(self, program, road):
        self.roads(program)[road]()
        self.assertEqual(program.status(), 0)
        self.await_none(STILL)

    def check_is_kept(self):
        """The next start would offer the recording; it begins without it."""
        self.assertGreater(len(self.frame_files()), 0)
        self.assertTrue((self.session.frames / NOTE).is_file())

    # States ----------------------------------------------------------------------------------

    def encoding(self, run, environment=None):
        """A program whose encoder stands still in this run."""
        program = self.exporting({
            **self.stand_in(in_run(run, STAND_STILL)), **(environment or {})})
        wait_for("the encoder", lambda: self.session.processes(STILL))
        return program

    def encoding_itself(self, environment=None):
        """A program whose own encoder is at work, which takes it some seconds in such a size."""
        self.session.remember_quality("best")
        program = Program(self.session, environment)
        self.session.remember_quality("classic")
        program.record(1.5)
        program.enter("GIF")
        act(program.await_control("radio button", "Custom size"))
        width = program.await_control("text", "Width")
        program.wait_for("the field", lambda: is_enabled(width))
        width.set_text_contents("5000")
        program.press("Generate GIF")
        program.await_control("progress bar", "Generating the GIF…")
        wait_for("the encoder", (self.session.documents / "PallomarExport/output.gif").exists)
        return program

    def choosing_a_place(self, environment=None):
        program = self.exporting(environment)
        program.await_control("dialog", SAVE_PANEL)
        return program

    def playing(self, environment=None):
        program = Program(self.session, environment)
        program.record(1.5)
        program.press("Play")
        return program

    # Tests -----------------------------------------------------------------------------------

    def test_in_the_middle_of_a_recording_which_is_kept(self):
        for road in self.roads(None):
            with self.subTest(road):
                self.check_end(self.recording(), road)
                self.check_is_kept()

    def test_a_hangup_that_was_ignored_at_the_start_stays_ignored(self):
        program = Program(self.session, command=["nohup"])
        program.process.send_signal(signal.SIGHUP)
        program.record(1)
        self.assertFalse(program.ended())
        self.check_end(program, "SIGTERM")

    def test_while_a_recording_is_saved_the_end_waits_for_that_and_a_second_signal_does_not(self):
        for road in ("SIGTERM", "SIGINT", "SIGHUP"):
            with self.subTest(road):
                program = self.saving()
                self.roads(program)[road]()
                time.sleep(0.2)
                self.assertFalse(program.ended())
                self.check_end(program, road)
                self.assertFalse((self.session.frames / NOTE).exists())
        program = self.saving()
        program.process.terminate()
        self.hold.unlink()
        self.assertEqual(program.status(), 0)
        self.check_is_kept()
        program = self.saving()
        self.close(program)
        program.await_label("as soon as the recording is saved")
        self.assertIsNotNone(program.find("progress bar"))
        self.hold.unlink()
        self.assertEqual(program.status(), 0)
        self.check_is_kept()

    def test_during_each_run_of_the_encoder(self):
        roads = {1: ["SIGTERM"], 2: ["SIGINT", "closing the window"],
                 3: ["SIGTERM", "SIGINT", "closing the window"]}
        for run, road in ((run, road) for run, ways in roads.items() for road in ways):
            with self.subTest(f"run {run}, {road}"):
                self.check_end(self.encoding(run), road)
        for run in (1, 3):
            with self.subTest(f"run {run}, killed"):
                program = self.encoding(run)
                program.process.kill()
                program.process.wait()
                self.await_none(STILL)

    def test_while_the_program_encodes_itself(self):
        self.session.counter("--at", "60,80", "--rate", "20")
        for road in ("SIGTERM", "SIGINT", "closing the window"):
            with self.subTest(road):
                self.check_end(self.encoding_itself(), road)

    def test_under_an_alert_and_a_save_panel(self):
        program = self.exporting(self.stand_in("exit 1"))
        program.alert()
        self.check_end(program, "SIGTERM")
        self.check_end(self.choosing_a_place(), "SIGINT")

    def test_when_the_display_goes(self):
        states = {
            "at rest": lambda display: Program(self.session, display),
            "recording": lambda display: self.recording(1, display),
            "saving": self.saving,
            "playing": self.playing,
            "in the run with progress": lambda display: self.encoding(3, display),
            "encoding itself": self.encoding_itself,
            "in a run that prepares it": lambda display: self.encoding(2, display),
            "under the save panel": self.choosing_a_place,
        }
        for state, reach in states.items():
            with self.subTest(state):
                # A display that may go, beside the session's own.
                before = self.session.processes(SERVER)
                display = self.session.start_display(f"server-{len(self.session.children)}")
                [server] = set(self.session.processes(SERVER)) - set(before)
                # The toolkit leaves by exit(), which a sanitizer takes for a moment to count what
                # is left.
                program = reach({"DISPLAY": display, "ASAN_OPTIONS": "detect_leaks=0"})
                os.kill(server, signal.SIGKILL)
                if state == "saving":
                    self.hold.unlink()
                # Below 0 it would be the signal that ended it.
                self.assertGreaterEqual(program.status(), 0, program.output())
                self.await_none(STILL)
                if state in ("recording", "saving"):
                    self.check_is_kept()


if __name__ == "__main__":
    case.main()
