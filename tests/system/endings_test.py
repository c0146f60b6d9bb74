# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Every road out ends with status 0, whatever is going on, and leaves no encoder running."""

import signal

import case
from driver import Program, wait_for

# Run 1 makes the video, run 2 the palette of it, run 3 the GIF: a word that only its command line
# has. The encoder that stands still is the same process under another name.
RUNS = {1: "*scale=640x480*", 2: "*palettegen*", 3: "*paletteuse*"}
STILL = "sleep"


class Endings(case.Case):
    def setUp(self):
        self.hold = self.session.folder / "hold"
        self.hold.unlink(missing_ok=True)

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
            "closing the window": lambda: self.close(program),
            "Quit in the menu": lambda: program.choose("Tovarel", "Quit Tovarel"),
            "Quit by its shortcut": lambda: self.session.xdotool("key", "ctrl+q"),
        }

    def check_end(self, program, road):
        self.roads(program)[road]()
        self.assertEqual(program.status(), 0)

    # States ----------------------------------------------------------------------------------

    def test_in_the_middle_of_a_recording(self):
        for road in self.roads(None):
            with self.subTest(road):
                program = Program(self.session)
                program.press("Record")
                program.recording_for(0.5)
                self.check_end(program, road)
                self.assertEqual(list(self.session.frames.iterdir()), [])

    def saving(self):
        """A program whose saving stands still after the frames that are being written."""
        program = Program(self.session, {
            "LD_PRELOAD": str(self.session.build / "tests/system/libhold_rename.so"),
            "HOLD_RENAME": str(self.hold),
            # A sanitizer's run-time library wants to be the first one otherwise.
            "ASAN_OPTIONS": "verify_asan_link_order=0",
        })
        program.press("Record")
        program.recording_for(1.5)
        self.hold.touch()
        program.press("Stop")
        program.await_control("progress bar")
        return program

    def test_while_a_recording_is_saved_a_signal_ends_it(self):
        for road in ("SIGTERM", "SIGINT"):
            with self.subTest(road):
                self.check_end(self.saving(), road)
                self.hold.unlink()

    def test_while_a_recording_is_saved_a_close_request_does_nothing(self):
        program = self.saving()
        self.close(program)
        self.assertIsNotNone(program.find("progress bar"))
        self.hold.unlink()
        program.await_tab("Cut")
        self.assertFalse(program.ended())
        self.check_end(program, "closing the window")

    def exporting(self, run):
        """A program whose encoder stands still in this run."""
        still = f'case "$*" in {RUNS[run]}) exec {STILL} 1000 ;; esac\nexec real "$@"'
        program = Program(self.session, self.stand_in(still))
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        wait_for("the encoder", lambda: self.session.processes(STILL))
        return program

    def test_during_each_run_of_the_encoder(self):
        roads = {1: ["SIGTERM"], 2: ["SIGINT"], 3: ["SIGTERM", "SIGINT", "closing the window"]}
        for run, road in ((run, road) for run in roads for road in roads[run]):
            with self.subTest(f"run {run}, {road}"):
                self.check_end(self.exporting(run), road)
                self.await_none(STILL)

    def test_a_kill_leaves_no_encoder_behind(self):
        for run in (1, 3):
            with self.subTest(f"run {run}"):
                program = self.exporting(run)
                program.process.kill()
                program.process.wait()
                self.await_none(STILL)

    def test_under_an_alert_and_a_save_panel(self):
        self.session.counter("--at", "60,80")
        program = Program(self.session, self.stand_in("exit 1"))
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        program.alert()
        self.check_end(program, "SIGTERM")
        program = Program(self.session)
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        program.await_control("dialog", "Select a folder to save the GIF image")
        self.check_end(program, "SIGINT")


if __name__ == "__main__":
    case.main()
