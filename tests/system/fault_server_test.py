# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The display goes away, as when a session is torn down: the program ends in order, whatever it is
at, and leaves no encoder running."""

import os
import signal

import case
from driver import Program, wait_for

STILL = "sleep"  # what an encoder that stands still is called
SERVER = "Xvfb"


class Server(case.Case):
    def setUp(self):
        # A display that may go, beside the session's own.
        before = self.session.processes(SERVER)
        width, height = self.screen
        number = self.session.announce(
            "server", lambda end: [SERVER, "-displayfd", str(end), "-screen", "0",
                                   f"{width}x{height}x24", "-nolisten", "tcp", "-noreset"])
        # The toolkit leaves by exit(), which a sanitizer takes for a moment to count what is left.
        self.display = {"DISPLAY": f":{number}", "ASAN_OPTIONS": "detect_leaks=0"}
        [self.server] = set(self.session.processes(SERVER)) - set(before)
        self.hold = self.session.folder / "hold"
        self.hold.unlink(missing_ok=True)

    def start(self, environment=None):
        return Program(self.session, {**self.display, **(environment or {})})

    def check_end(self, program):
        os.kill(self.server, signal.SIGKILL)
        # Below 0 it would be the signal that ended it.
        self.assertGreaterEqual(program.status(), 0, program.output())
        self.await_none(STILL)

    def exporting(self, words):
        """A program whose encoder stands still in the run with these words."""
        still = f'case "$*" in {words}) exec {STILL} 1000 ;; esac\nexec real "$@"'
        program = self.start(self.stand_in(still))
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        wait_for("the encoder", lambda: self.session.processes(STILL))
        return program

    def test_at_rest(self):
        self.check_end(self.start())

    def test_while_recording(self):
        program = self.start()
        program.press("Record")
        program.recording_for(1)
        self.check_end(program)

    def test_while_saving(self):
        program = self.start({
            "LD_PRELOAD": str(self.session.build / "tests/system/libhold_rename.so"),
            "HOLD_RENAME": str(self.hold),
            "ASAN_OPTIONS": "detect_leaks=0:verify_asan_link_order=0",
        })
        program.press("Record")
        program.recording_for(1.5)
        self.hold.touch()
        program.press("Stop")
        program.await_control("progress bar")
        self.check_end(program)

    def test_while_playing(self):
        program = self.start()
        program.record(1.5)
        program.press("Play")
        self.check_end(program)

    def test_in_the_run_with_progress(self):
        self.check_end(self.exporting("*paletteuse*"))

    def test_in_a_run_that_is_waited_for(self):
        self.check_end(self.exporting("*palettegen*"))

    def test_under_the_save_panel(self):
        program = self.start()
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        program.await_control("dialog", "Select a folder to save the GIF image")
        self.check_end(program)


if __name__ == "__main__":
    case.main()
