# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A recording outlives the program's end, however that comes, until a file was made of it: the next
start offers it, and takes it up as it was. A new recording does not cost the one before."""

import re
import signal
import stat
import time

import case
import counter
import driver
from driver import Program

STILL_THERE = "An earlier recording is still there"
RECORDED = 3  # seconds
KEPT = re.compile(r"Kept: ([\d.,]+)\ss of [\d.,]+\ss · (\d+) of (\d+) frames")


class Recovery(case.Case):
    def recorded(self, wanted, seconds=RECORDED):
        """Records, and ends the program by this signal."""
        program = Program(self.session)
        program.record(seconds)
        self.finish(program, wanted)

    def finish(self, program, wanted):
        program.process.send_signal(wanted)
        program.process.wait()

    def kept(self, program):
        """Number of frames and seconds, as the Cut tab shows them."""
        found = [match for text in program.labels() if (match := KEPT.search(text))]
        self.assertTrue(found, program.labels())
        self.assertEqual(found[0][2], found[0][3])
        return int(found[0][2]), float(found[0][1].replace(",", "."))

    def check_nothing_is_offered(self):
        program = Program(self.session, recover=True)
        self.assertEqual(list(self.session.frames.iterdir()), [])
        program.press("Record")
        program.wait_for("the recording", lambda: program.enabled("Stop"))
        self.assertIsNone(program.find("alert"))
        self.finish(program, signal.SIGKILL)

    def test_after_a_kill_the_frames_are_opened_again_and_exported(self):
        inside = driver.in_picture(self.session.counter("--at", "60,80", "--rate", "5"))
        began = time.monotonic()
        self.recorded(signal.SIGKILL)
        note = dict(line.split(" ", 1) for line in
                    (self.session.frames / driver.NOTE).read_text("ascii").splitlines())
        recorded = float(note["seconds"])
        self.assertTrue(RECORDED <= recorded <= time.monotonic() - began, note)
        files = self.frame_files()
        before = [path.read_bytes() for path in files]
        self.assertEqual(stat.S_IMODE(self.session.frames.stat().st_mode), 0o700)
        self.assertEqual(stat.S_IMODE((self.session.frames / driver.NOTE).stat().st_mode), 0o600)

        # One that is killed while it asks has not touched anything.
        asking = Program(self.session, recover=True)
        asking.alert()
        self.finish(asking, signal.SIGKILL)
        program = Program(self.session, recover=True)
        said = program.answer(STILL_THERE, "Open")
        self.assertIn(f"{len(files)} frames", said)
        program.await_tab("Cut")
        self.assertEqual([path.read_bytes() for path in self.frame_files()], before)
        frames, seconds = self.kept(program)
        self.assertEqual(frames, len(files))
        # To a whole rate: the time is as true as that.
        self.assertAlmostEqual(seconds, recorded, delta=recorded * 0.12)
        program.press("Play")
        program.press("Stop")
        program.enter("GIF")
        pictures = self.check_gif(program, self.session.home / "again.gif")
        self.assertNotIn(None, [counter.read(picture, *inside) for picture in pictures])
        # It is a recording like any other, up to the next one.
        program.enter("Record")
        program.record(1)
        self.assertNotEqual(len(self.frame_files()), 0)
        self.assertEqual(program.end(), 0)

    def test_after_the_end_of_the_session_it_can_be_deleted(self):
        self.recorded(signal.SIGTERM, 1)
        program = Program(self.session, recover=True)
        program.answer(STILL_THERE, "Delete")
        driver.wait_for("an empty folder", lambda: not list(self.session.frames.iterdir()))
        self.finish(program, signal.SIGKILL)
        self.check_nothing_is_offered()

    def end_by(self, program, keys):
        program.activate()
        self.session.xdotool("key", keys)
        time.sleep(3)
        if not program.ended():  # a press that a busy machine has lost
            self.session.xdotool("key", keys)
        self.assertEqual(program.status(), 0)

    def test_the_end_by_the_user_keeps_what_no_file_was_made_of(self):
        self.end_by(self.recording(1.5), "ctrl+q")
        files = self.frame_files()
        self.assertGreater(len(files), 3)
        program = Program(self.session, recover=True)
        self.assertIn(f"{len(files)} frames", program.answer(STILL_THERE, "Open"))
        program.await_tab("Cut")
        self.end_by(program, "alt+F4")
        program = Program(self.session, recover=True)
        program.answer(STILL_THERE, "Open")
        program.await_tab("Cut")
        program.enter("GIF")
        self.check_gif(program, self.session.home / "kept.gif")
        self.end_by(program, "alt+F4")
        self.assertNotEqual(self.frame_files(), [], "no folder is emptied at the end")
        self.check_nothing_is_offered()

    def test_a_recording_that_was_replaced_can_be_had_back(self):
        def content():
            return [path.read_bytes() for path in self.frame_files()]

        self.session.counter("--at", "60,80", "--rate", "5")
        program = Program(self.session)
        program.record(1)
        first = content()
        program.enter("Record")
        program.press("Record")
        program.recording_for(0.5)
        self.finish(program, signal.SIGKILL)
        program = Program(self.session, recover=True)
        program.answer(STILL_THERE, "Open")
        program.await_tab("Cut")
        self.assertEqual(content(), first)
        program.enter("Record")
        program.record(1.5)
        second = content()
        for wanted in (first, second):
            program.enter("Record")
            program.choose("Action", "Record", "Bring Back Previous Recording")
            program.await_tab("Cut")
            self.assertEqual(content(), wanted)
            self.assertEqual(self.kept(program)[0], len(wanted))
        self.finish(program, signal.SIGKILL)

    def test_a_recording_that_is_not_whole_is_not_offered(self):
        self.recorded(signal.SIGKILL, 1)
        self.frame_files()[1].unlink()
        self.check_nothing_is_offered()

    def test_one_that_was_being_saved_is_not_offered(self):
        self.finish(self.saving(), signal.SIGKILL)
        self.check_nothing_is_offered()

    def test_frames_with_a_damaged_picture_are_said_to_be_so_and_stay(self):
        self.recorded(signal.SIGKILL, 1)
        path = self.frame_files()[-1]
        content = path.read_bytes()
        path.unlink()
        path.write_bytes(content[:60] + bytes(len(content) - 60))
        program = Program(self.session, recover=True)
        program.answer(STILL_THERE, "Open")
        said = program.dismiss_alert("Error")
        self.assertIn(path.name, said)
        self.assertTrue(path.exists())
        program.record(1)
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
