# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Trims a real recording with the pointer and the keys, and holds the exported GIF to the frames that
were kept."""

import re

import case
import counter
import driver
from driver import Program, middle, wait_for

KEPT = re.compile(r"(\d+) of (\d+) frames?$")


class Trim(case.Case):
    def handle(self, name):
        return self.program.await_control("slider", name)

    def drag(self, name, to):
        """Drags a handle to a place, given as a share of the strip's width."""
        strip = self.program.await_control("panel", "Part of the recording to keep")
        box = driver.extents(strip)
        x, y = middle(self.handle(name))
        move = self.session.xdotool
        move("mousemove", "--sync", x, y, "mousedown", 1)
        goal = box.x + round(box.width * to)
        # In two steps, as a hand would: a drag is what lies between press and release.
        move("mousemove", "--sync", (x + goal) // 2, y)
        move("mousemove", "--sync", goal, y, "mouseup", 1)

    def held(self):
        """First and last frame between the handles; the line under the strip says how many these
        are. None as long as it says something else."""
        found = [match for text in self.program.labels() if (match := KEPT.search(text))]
        if not found:
            return None
        kept, total = map(int, found[0].groups())
        first, last = self.value("First frame"), min(self.value("Last frame"), total - 1)
        return (first, last) if kept == last - first + 1 else None

    def value(self, name):
        return int(self.handle(name).get_value_iface().get_current_value())

    def drag_both(self, total):
        """Both handles follow the pointer to their places; returns the range that is kept then."""
        self.drag("Last frame", 0.8)
        wait_for("the upper handle's place", lambda: (h := self.held()) and h[1] < total - 1)
        self.drag("First frame", 0.2)
        return wait_for("the lower handle's place", lambda: (h := self.held()) and h[0] > 0 and h)

    def move_by_key_and_value(self, first, last):
        """The last press chose the lower handle: a key moves it by one frame. Assistive technology
        sets any frame."""
        self.session.xdotool("key", "Right")
        wait_for("one frame on", lambda: self.value("First frame") == first + 1)
        self.handle("Last frame").get_value_iface().set_current_value(last - 1)
        wait_for("the value", lambda: self.held() == (first + 1, last - 1))
        return first + 1, last - 1

    def test_trim_and_export(self):
        inside = driver.in_picture(self.session.counter("--at", "60,80", "--rate", "5"))
        self.program = program = Program(self.session)
        program.record(5)
        files = self.frame_files()
        total = len(files)
        self.assertGreaterEqual(total, 15)
        wait_for("the whole recording to be kept", lambda: self.held() == (0, total - 1))
        first, last = self.move_by_key_and_value(*self.drag_both(total))

        program.enter("GIF")
        result = self.session.home / "trimmed.gif"
        program.press("Generate GIF")
        program.save_panel(result, patience=120)
        program.dismiss_alert("Success")
        wanted = [counter.read(counter.decode(path)[0], *inside) for path in files[first : last + 1]]
        self.assertNotIn(None, wanted)
        got = [counter.read(picture, *inside) for picture in counter.decode(result)]
        self.assertEqual(got, wanted)
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
