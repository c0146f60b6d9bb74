# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A save panel that is cancelled loses nothing, nor does a kill after that: the file can still be
saved, and the program asks before it would be lost."""

import case
import counter
from driver import Program

UNSAVED = "has not been saved"


class Unsaved(case.Case):
    def exported(self, kind):
        """A program whose export is finished, its panel cancelled."""
        self.session.counter("--at", "60,80")
        program = Program(self.session)
        program.record(1.5)
        program.enter("GIF")
        program.press(f"Generate {kind}")
        program.cancel_panel(kind)
        program.wait_for("the status line to say so", lambda: any(
            UNSAVED in text and kind in text for text in program.labels()))
        return program

    def test_a_gif_can_still_be_saved_and_the_end_asks_first(self):
        program = self.exported("GIF")
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
        program.press("Record")
        program.answer(UNSAVED, "Cancel")
        self.assertFalse(program.enabled("Stop"))
        target = self.session.home / "late.gif"
        program.press("Save…")
        program.save_panel(target)
        program.dismiss_alert("Success")
        self.assertEqual(len(counter.decode(str(target))), len(self.frame_files()))
        self.assertIsNone(program.find("push button", "Save…"))
        self.session.xdotool("windowactivate", "--sync", program.window())
        self.session.xdotool("key", "alt+F4")
        self.assertEqual(program.status(), 0)

    def test_a_webp_outlives_a_new_recording_until_it_is_discarded(self):
        program = self.exported("WebP")
        webp = self.session.documents / "PallomarExport" / "output.webp"
        made = webp.read_bytes()
        program.press("Generate GIF")
        program.answer(UNSAVED, "Save…")
        target = self.session.home / "first.webp"
        program.save_panel(target, kind="WebP")
        program.dismiss_alert("Success")
        self.assertEqual(target.read_bytes(), made)
        # What was asked for goes on by itself.
        program.cancel_panel("GIF")
        program.enter("Record")
        program.press("Record")
        program.answer(UNSAVED, "Discard")
        program.wait_for("the recording", lambda: program.enabled("Stop"))
        self.assertFalse((webp.parent / "output.gif").exists())
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
