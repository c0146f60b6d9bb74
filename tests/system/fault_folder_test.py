# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A documents folder of a name that tools and formats trip over."""

import case
import counter
import driver
from driver import Program

# What the encoder takes for a number (a second one would make it take none), what a shell and a
# settings file read, a line's end, and letters beyond ASCII.
NAMES = ["a %3d of %%d and [*?]", "'quotes' \"both\" $HOME `x` \\ ;#&|", "a\nnew line",
         "-<b>ünï 日本</b>"]


class StrangeSession(driver.Session):
    def __init__(self, build, width=800, height=600):
        super().__init__(build, width, height)
        self.home = self.folder.joinpath(*NAMES)
        self.home.parent.mkdir(parents=True)
        self.documents = self.home / "Documents"
        self.frames = self.documents / "Pallomar"


class StrangeFolder(case.Case):
    session_type = StrangeSession

    def test_a_recording_and_both_exports_work(self):
        self.session.counter("--at", "60,80")
        program = Program(self.session)
        program.record(2)
        frames = len(self.frame_files())
        self.assertGreaterEqual(frames, 3)
        program.enter("GIF")
        for kind, pictures in (("GIF", lambda path: len(counter.decode(str(path)))),
                               ("WebP", lambda path: path.read_bytes().count(b"ANMF"))):
            with self.subTest(kind):
                target = self.session.home / f"a %d file.{kind.lower()}"
                program.press(f"Generate {kind}")
                # The panel starts in the home. A whole path with quotation marks typed into it would
                # be read as a list of names by the toolkit.
                program.save_panel(target.name, kind=kind)
                program.dismiss_alert("Success")
                self.assertTrue(any(str(target) in text for text in program.labels()))
                self.assertEqual(pictures(target), frames)
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
