# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A save panel that is cancelled loses nothing, nor does a kill after that: the file can still be
saved, and the program asks before it would be lost."""

import case
import counter
from driver import Program

UNSAVED = "has not been saved"


class Unsaved(case.Case):
    def test_a_gif_can_still_be_saved_and_the_end_asks_first(self):
        self.session.counter("--at", "60,80")
        program = self.exporting()
        program.cancel_panel()
        program.await_label(UNSAVED)
        program.process.kill()
        program.process.wait()
        program = Program(self.session, recover=True)
        program.answer("An earlier recording", "Open")
        program.await_tab("Cut")
        program.enter("GIF")
        program.wait_for("the card", lambda: "Not saved yet" in program.labels())
        self.session.xdotool("windowactivate", "--sync", program.window())
        for way in ("alt+F4", "ctrl+q"):
            self.session.xdotool("key", way)
            program.answer(UNSAVED, "Cancel")
            self.assertFalse(program.ended())
        # The offer is beside the status line on every tab.
        program.enter("Record")
        target = self.session.home / "late.gif"
        program.press("Save…")
        program.save_panel(target)
        program.dismiss_alert("Success")
        self.assertEqual(len(counter.decode(str(target))), len(self.frame_files()))
        self.assertIsNone(program.find("push button", "Save…"))
        self.session.xdotool("windowactivate", "--sync", program.window())
        self.session.xdotool("key", "alt+F4")
        self.assertEqual(program.status(), 0)


if __name__ == "__main__":
    case.main()
