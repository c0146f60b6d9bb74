# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""From a known changing picture on the screen to the frames and the GIF, which are read back."""

import itertools
import time

import case
import counter
from accessibility import SCALE
from driver import Program, act, in_picture

RATE = 20  # steps of the counter a second
PART = 2.2  # seconds that each part of the recording takes
PAUSE = 1.5
CHOSEN_RATE = 5  # frames a second, at the start of the program


class Recording(case.Case):
    def test_the_frames_and_the_gif_hold_the_counter_in_order_without_our_window(self):
        place = self.session.counter("--at", "60,80", "--size", "400x240", "--rate", str(RATE))
        self.addCleanup(self.session.children[-1].kill)
        program = Program(self.session)
        self.cover(program, place)
        place = in_picture(place)

        plain = program.in_task_bar()
        program.press("Record")
        began = time.monotonic()
        program.recording_for(PART)
        recording = program.in_task_bar()
        program.press("Pause")
        took = time.monotonic() - began
        time.sleep(PAUSE)  # The counter goes on, and what it shows meanwhile must be missing.
        paused = program.in_task_bar()
        program.press("Record")
        began = time.monotonic()
        program.recording_for(PART)
        program.press("Stop")
        took += time.monotonic() - began
        program.await_tab("Cut")

        self.assertEqual([title for title, icon in (plain, recording, paused)],
                         ["Tovarel", "Recording – Tovarel", "Paused – Tovarel"])
        self.assertEqual(len({icon for title, icon in (plain, recording, paused)}), 3)
        self.assertEqual(program.in_task_bar(), plain)

        files = self.frame_files()
        self.assertEqual([path.name for path in files],
                         [f"frame{number:08}.png" for number in range(len(files))])
        frames = counter.decode(str(self.session.frames / "frame%08d.png"), pattern=True)
        self.assertEqual(len(frames), len(files))
        self.check_pictures(frames, place)
        numbers = [counter.read(frame, *place) for frame in frames]
        gap = max(after - before for before, after in itertools.pairwise(numbers))
        self.assertGreaterEqual(gap, PAUSE * RATE * 0.8, numbers)

        program.enter("GIF")
        rate = int(program.list_of(str.isdigit).get_name())
        self.assertIn(rate, range(1, CHOSEN_RATE + 2))
        self.check_export(program, numbers, took, place)

    def test_the_pointer_is_in_the_frames_but_not_over_our_window(self):
        self.session.remember("ShowPointer", 1)
        program = Program(self.session)
        self.session.remember("ShowPointer", 0)
        # A desktop that is black above our window.
        top, spots = 200 * SCALE, [(60, 50), (500, 90)]
        self.session.xdotool("windowmove", "--sync", program.window(), 40, top)
        self.session.xdotool("mousemove", *spots[0])
        program.press("Record")
        program.recording_for(0.7)
        for spot in (spots[1], (300, top + 150)):
            self.session.xdotool("mousemove", *spot)
            time.sleep(0.7)
        program.press("Stop")
        program.await_tab("Cut")
        frames = counter.decode(str(self.session.frames / "frame%08d.png"), pattern=True)
        seen = [corner for corner, _ in itertools.groupby(map(self.pointer_in, frames))]
        self.assertEqual(len(seen), 3, seen)
        self.assertIsNone(seen[2], "over our window")
        self.assertEqual([at - before for before, at in zip(*seen[:2])],
                         [(at - before) // SCALE for before, at in zip(*spots)])

    def test_clicks_and_shortcuts_are_shown_and_what_is_typed_is_not(self):
        self.session.remember("ShowClicks", 1)
        x, y, width, _ = self.session.counter("--at", "60,80", "--size", "400x240")
        self.addCleanup(self.session.children[-1].kill)
        program = Program(self.session)
        self.session.remember("ShowClicks", 0)
        act(program.await_control("check box", "Keys"))
        program.await_label("Shortcuts that you press are shown")
        window = program.window()
        self.session.xdotool("windowmove", "--sync", window, 40 * SCALE, 300 * SCALE)
        program.press("Record")
        program.recording_for(0.3)
        # Another window has the keys: its upper half is grey.
        at = (x + width // 2, y + 4 * SCALE)
        self.session.xdotool("mousemove", *at, "mousedown", 3, "sleep", 0.5, "mouseup", 3)
        program.wait_for("another window to have the keys", lambda: self.session.xdotool(
            "getwindowfocus", check=False) != window)
        time.sleep(0.3)
        self.session.xdotool("key", "ctrl+z", "key", "ctrl+z")
        time.sleep(2)
        self.session.xdotool("key", "a", "shift+b", "7", "space")
        time.sleep(1)
        program.press("Stop")
        program.await_tab("Cut")
        frames = counter.decode(str(self.session.frames / "frame%08d.png"), pattern=True)
        clicks = [max(frame.pixel(*in_picture(at))) > 100 for frame in frames]
        plates = [self.plate_in(frame) for frame in frames]
        for shown in (clicks, plates):
            self.assertGreaterEqual(shown.count(True), 2, shown)
            self.assertEqual(shown[0], False)
            # At once, then gone: what was typed later is not there.
            self.assertEqual([each for each, _ in itertools.groupby(shown)], [False, True, False])

    def plate_in(self, picture):
        """Whether something bright is at the lower middle."""
        start = picture.height * 9 // 10 * picture.width * 3
        return max(picture.data[start:]) > 100

    def pointer_in(self, picture):
        """The upper left corner of all that is not black; None where everything is."""
        row = picture.width * 3
        lines = [picture.data[at : at + row] for at in range(0, len(picture.data), row)]
        bright = [[at // 3 for at, value in enumerate(line) if value > 16]
                  if max(line) > 16 else [] for line in lines]
        columns = [column for line in bright for column in line]
        return (min(columns), next(y for y, line in enumerate(bright) if line)) if columns else None

    def cover(self, program, place):
        """Puts the program's window over the counter and makes sure that it is in front."""
        window = program.window()
        self.session.xdotool("windowmove", "--sync", window, place[0] + 40, place[1] + 40)
        self.session.xdotool("windowactivate", "--sync", window)
        screen = self.session.picture()
        self.assertIsNone(counter.read(screen, *place), "the counter is not covered")

    def check_pictures(self, pictures, place):
        """Right size, a whole counter, and nothing beside it: our window stood there."""
        x, y, width, height = place
        for index, picture in enumerate(pictures):
            self.assertEqual((picture.width, picture.height), self.screen)
            self.assertIsNotNone(counter.read(picture, *place), f"no counter in picture {index}")
            for row in range(y + height + 40, picture.height, 10):
                line = picture.data[row * picture.width * 3 : (row + 1) * picture.width * 3]
                self.assertLess(max(line), 16, f"picture {index} shows something in row {row}")
            right = x + width + 40
            for row in range(0, picture.height, 10):
                at = row * picture.width * 3
                line = picture.data[at + right * 3 : at + picture.width * 3]
                self.assertLess(max(line), 16, f"picture {index} shows something in row {row}")
        numbers = [counter.read(picture, *place) for picture in pictures]
        self.assertEqual(numbers, sorted(numbers))
        self.assertGreater(len(set(numbers)), len(numbers) * 0.5)

    def check_export(self, program, numbers, took, place):
        target = self.session.home / "a 100% new folder.gif"
        target.write_text("an older file")
        pictures = self.check_gif(program, target, replace=True)
        self.check_pictures(pictures, place)
        self.assertEqual([counter.read(picture, *place) for picture in pictures], numbers)
        # As long as the recording took, the pause left out.
        self.assertAlmostEqual(sum(counter.durations(str(target))), took,
                               delta=max(0.02 * took, 1 / CHOSEN_RATE))
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
