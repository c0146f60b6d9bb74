# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Starting: without a display, a second time, and where no folder can be made."""

import subprocess

import case
import driver
from driver import Program, wait_for


class Start(case.Case):
    def test_without_a_display_one_sentence_and_status_1(self):
        for display in ("", ":9999"):
            done = subprocess.run(
                [self.session.build / driver.BINARY], check=False, capture_output=True, text=True,
                env={**self.session.environment, "DISPLAY": display}, timeout=driver.PATIENCE)
            self.assertEqual(done.returncode, 1)
            self.assertEqual(done.stdout, "")
            self.assertRegex(done.stderr, r"\ATovarel [^\n]*display[^\n]*\.\n\Z")

    def test_a_second_start_brings_the_first_window_forward_and_leaves_the_folders_alone(self):
        # A killed one has left its lock and its socket; they stop nobody.
        killed = Program(self.session)
        killed.process.kill()
        killed.process.wait()
        first = Program(self.session)
        window = first.window()
        kept = self.session.frames / "kept"
        kept.write_text("by the first")
        self.session.xdotool("windowminimize", "--sync", window)
        wait_for("the window to be away", lambda: self.in_front() != window)
        second = Program(self.session, wait=False)
        self.assertEqual(second.status(), 0)
        wait_for("the first window in front", lambda: self.in_front() == window)
        self.assertEqual(first.window(), window)
        self.assertFalse(first.ended())
        self.assertTrue(kept.exists())
        self.assertEqual(first.end(), 0)

    def test_panels_find_the_launcher_by_the_windows_name(self):
        folder = self.session.build / "resources" / "desktop"
        launchers = {path.stem: path.read_text() for path in folder.glob("*.desktop")}
        program = Program(self.session)
        said = subprocess.run(
            ["xprop", "-id", program.window(), "-notype", "WM_CLASS"], check=True, text=True,
            env=self.session.environment, stdin=subprocess.DEVNULL, capture_output=True,
            timeout=driver.PATIENCE).stdout
        name = said.split('"')[1]
        self.assertRegex(name, r"\A(\w+\.){2,}\w+\Z")
        self.assertIn(f"\nStartupWMClass={name}\n", launchers[name])
        # One that was pinned to a panel under the program's first name still works.
        self.assertIn("tovarel", launchers)
        self.assertEqual(program.end(), 0)

    def in_front(self):
        return self.session.xdotool("getactivewindow", check=False)

    def test_old_content_of_the_folders_is_gone_after_the_start(self):
        folders = [self.session.documents / name
                   for name in ("Pallomar", "PallomarExport", "PallomarPallete")]
        kept = self.session.home / "kept"
        kept.mkdir()
        (kept / "file").write_text("not in a working folder")
        for folder in folders:
            (folder / "below" / "deeper").mkdir(parents=True, exist_ok=True)
            (folder / ".hidden").write_text("old")
            (folder / "broken").symlink_to("nowhere")
            (folder / "outside").symlink_to(kept)
        program = Program(self.session)
        for folder in folders:
            self.assertEqual(list(folder.iterdir()), [])
        self.assertTrue((kept / "file").exists())
        self.assertEqual(program.end(), 0)

    def test_a_folder_that_cannot_be_made_is_told_and_the_end_is_orderly(self):
        # A file in the place of the folder above: modes would not stop root.
        aside = self.session.documents.rename(self.session.home / "aside")
        self.session.documents.write_text("in the way")
        try:
            program = Program(self.session, wait=False)
            said = program.alert()
            self.assertIn("Error", said)
            self.assertIn("Error #0008. Application will exit.", said)
            program.press("Close")
            self.assertEqual(program.status(), 0)
        finally:
            self.session.documents.unlink()
            aside.rename(self.session.documents)


if __name__ == "__main__":
    case.main()
