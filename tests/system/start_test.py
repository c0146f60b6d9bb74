# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Starting: without a display, a second time, and where no folder can be made."""

import os
import subprocess
import unittest

import driver
from driver import Program, wait_for


def setUpModule():
    global session
    session = unittest.enterModuleContext(driver.Session(os.environ["TOVAREL_BUILD"]))


class Start(unittest.TestCase):
    def tearDown(self):
        for number in session.processes(driver.BINARY):
            os.kill(number, 9)
        wait_for("the programs to be gone", lambda: not session.processes(driver.BINARY))

    def test_without_a_display_one_sentence_and_status_1(self):
        for display in ("", ":9999"):
            done = subprocess.run(
                [session.build / driver.BINARY], check=False, capture_output=True, text=True,
                env={**session.environment, "DISPLAY": display}, timeout=driver.PATIENCE)
            self.assertEqual(done.returncode, 1)
            self.assertEqual(done.stdout, "")
            self.assertEqual(done.stderr.count("\n"), 1, done.stderr)
            self.assertRegex(done.stderr, r"^Tovarel .*display.*\.\n$")

    def test_a_second_start_brings_the_first_window_forward_and_leaves_the_folders_alone(self):
        first = Program(session)
        window = first.window()
        kept = session.frames / "kept"
        kept.write_text("by the first")
        session.xdotool("windowminimize", "--sync", window)
        wait_for("the window to be minimised",
                 lambda: session.xdotool("getactivewindow", check=False) != window)
        second = Program(session, wait=False)
        self.assertEqual(second.status(), 0)
        wait_for("the first window in front", lambda: (
            session.xdotool("getactivewindow", check=False) == window
            and session.xdotool("search", "--onlyvisible", "--name", "^Tovarel$") == window))
        self.assertFalse(first.ended())
        self.assertTrue(kept.exists())
        self.assertEqual(first.end(), 0)

    def test_a_lock_left_by_a_killed_program_stops_nobody(self):
        first = Program(session)
        first.process.kill()
        first.process.wait()
        second = Program(session)
        self.assertEqual(second.end(), 0)

    def test_old_content_of_the_folders_is_gone_after_start(self):
        for name in ("Pallomar", "PallomarExport", "PallomarPallete"):
            folder = session.documents / name
            (folder / "below" / "deeper").mkdir(parents=True, exist_ok=True)
            (folder / ".hidden").write_text("old")
            (folder / "broken").symlink_to("nowhere")
        program = Program(session)
        for name in ("Pallomar", "PallomarExport", "PallomarPallete"):
            self.assertEqual(list((session.documents / name).iterdir()), [])
        self.assertEqual(program.end(), 0)

    def test_a_folder_that_cannot_be_made_is_told_and_ends_with_status_0(self):
        # A file in the place of the folder above; modes would not stop root.
        aside = session.documents.rename(session.home / "aside")
        session.documents.write_text("in the way")
        try:
            program = Program(session, wait=False)
            self.assertIn("Error #0008. Application will exit.", " ".join(program.alert()))
            program.press("Close")
            self.assertEqual(program.status(), 0)
        finally:
            session.documents.unlink()
            aside.rename(session.documents)


if __name__ == "__main__":
    unittest.main(verbosity=2)
