# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The region overlay on a real display: what the user frames is what is recorded, to the pixel, at
any scale, on any display, with a compositing manager and without; and it can always be left."""

import itertools

import case
import counter
from driver import Program, act, wait_for
from region_case import ASIDE, GREEN, HOW_TO, RegionCase
from region_screen import Screen

FULL_SCREEN = "Full screen, without this window"


class Region(RegionCase):
    def test_what_is_framed_is_recorded_at_any_scale_with_and_without_blending(self):
        for blending, scale in itertools.product((False, True), (1, 1.5, 2)):
            with self.subTest(scale=scale, blending=blending):
                # One grab is halved: the one whose screen has half as many points as pixels.
                self.check_framing(Screen(0, 0, *self.screen, scale), ASIDE,
                                   ((135, 790), (511, 402)), scale == 2, blending)

    def test_a_region_on_a_second_display_is_recorded_from_there(self):
        self.addCleanup(self.monitors)
        self.monitors("500x800+0+0", "700x700+500+130")
        for scale in (1, 1.5, 2):
            with self.subTest(scale=scale):
                self.check_framing(Screen(500, 130, 700, 700, scale), (800, 400),
                                   ((559, 720), (733, 503)), scale == 2)
        # Two of the same width: the grab is twice as wide as the screen, and is not halved.
        self.monitors("600x900+0+0", "600x900+600+0")
        with self.subTest("beside an equal display"):
            self.check_framing(Screen(600, 0, 600, 900, 1), (620, 20), ((663, 821), (935, 621)))
        # The recorded screen's density decides, not that of the other one.
        self.monitors("401x900+0+0", "798x898+401+1")
        with self.subTest("beside one of double density"):
            self.check_framing(Screen(401, 1, 798, 898, 1), (620, 20), ((663, 821), (935, 621)),
                               environment={"QT_SCREEN_SCALE_FACTORS": "2;1",
                                            "QT_SCALE_FACTOR": "1"})

    def test_a_panel_moves_neither_the_overlay_nor_what_is_recorded(self):
        for side, scale in itertools.product(("left", "right", "top", "bottom"), (1, 2)):
            with self.subTest(side=side, scale=scale), self.panel(side) as spot:
                self.check_framing(Screen(0, 0, *self.screen, scale), ASIDE,
                                   ((135, 790), (511, 402)), scale == 2, by_way_of=spot)

    def test_a_region_reaches_the_edges_of_the_screen_and_no_further(self):
        self.block = 1
        with self.pattern():
            program = self.program()
            self.put_aside(program, *ASIDE)
            screen = Screen(0, 0, *self.screen, 1)
            left, bottom, right, top = self.open_overlay(program, screen)
            # Picked up beside its middle, and yet into the very corner of the screen.
            spot = screen.pixel(left, bottom)
            self.drag((spot[0] - 3, spot[1] - 2), (0, 899))
            self.await_square(-2, 2, screen, GREEN)
            for _ in range(3):
                self.session.xdotool("key", "shift+Left", "key", "shift+Down")
            self.session.xdotool("key", "Return")
            self.await_no_overlay()
            self.check_recorded(program, (0, 900 - top, right, top))
            path = sorted(self.session.frames.iterdir())[0]
            self.assertEqual(counter.probe(str(path), "stream=pix_fmt")[0], "rgb24")

    def test_a_region_is_moved_as_a_whole_and_drawn_anew(self):
        self.block = 1
        screen = Screen(0, 0, *self.screen, 1)
        with self.pattern():
            program = self.program()
            self.put_aside(program, *ASIDE)
            for blending in (False, True):
                with self.subTest(blending=blending), self.compositing(blending):
                    # On from what was accepted last.
                    last = (60, 250, 260, 370) if blending else None
                    self.open_overlay(program, screen, last)
                    self.drag((100, 100), (300, 220))
                    self.await_square(100 - 4, 900 - 100, screen, GREEN)
                    self.drag((250, 130), (210, 560))
                    self.await_square(60 - 4, 900 - 530, screen, GREEN)
                    self.session.xdotool("mousemove", "--sync", 160, 590, "click", 1)
                    self.await_no_overlay()
                    program.await_label("200 × 120 at 60,\u00a0530")
            self.check_recorded(program, (60, 530, 200, 120))

    def test_a_region_that_no_encoder_takes_is_not_accepted(self):
        program = self.program()
        screen = Screen(0, 0, *self.screen, 1)
        left, bottom, right, top = self.open_overlay(program, screen)
        self.drag(screen.pixel(left, bottom), screen.pixel(right - 1, top - 1))
        program.await_label("Too small")
        self.session.xdotool("key", "Return", "key", "shift+Up",
                             "key", "shift+Left")
        wait_for("the reason to go", lambda: not program.says("Too small"))
        self.assertTrue(self.overlay())
        self.session.xdotool("key", "Escape")
        self.await_no_overlay()
        program.await_label(FULL_SCREEN)

    def test_a_window_is_picked_and_a_width_is_typed(self):
        x, y, width, height = self.session.counter("--at", "60,80", "--size", "240x160")
        program = self.program()
        self.put_aside(program, *ASIDE)
        self.open_overlay(program, Screen(0, 0, *self.screen, 1))
        self.session.xdotool("mousemove", "--sync", x + 20, y + 20, "keydown", "w", "click", 1,
                             "keyup", "w")
        fields = {name: program.await_control("spin button", name)
                  for name in ("X", "Y", "Width", "Height")}

        def picked():
            left, top, wide, high = (int(field.get_current_value()) for field in fields.values())
            # Its frame is the window's too.
            return (left <= x and top < y and left + wide >= x + width
                    and top + high >= y + height and high < height + 60 and (left, top, high))
        left, top, high = program.wait_for("the window to be taken", picked)
        program.click(fields["Width"])
        self.session.xdotool("key", "ctrl+a", "type", "200")
        self.session.xdotool("key", "Return")
        self.await_no_overlay()
        program.await_label(f"200 × {high} at {left},\u00a0{top}")

    def test_one_monitor_is_recorded_alone_and_remembered(self):
        self.addCleanup(self.monitors)
        self.monitors("500x900+0+0", "700x900+500+0")
        name = self.displays[1][0]
        self.block = 1
        with self.pattern():
            self.program().end()
            self.session.remember("Monitor", name)
            program = Program(self.session, remembering=True)
            self.put_aside(program, 20, 20)
            program.await_label(f"{name} · 700 × 900")
            self.check_recorded(program, (500, 0, 700, 900))
            program.end()

    def test_keys_move_the_corners_and_escape_leaves_the_choice_as_it_was(self):
        program = self.program()
        screen = Screen(0, 0, *self.screen, 1)
        region, shown = screen.start(), FULL_SCREEN
        for blending in (False, True):
            with self.subTest(blending=blending), self.compositing(blending):
                region = self.open_overlay(program, screen, region)
                left, bottom, right, top = region
                self.session.xdotool("key", "Down", "key", "Escape")
                self.await_no_overlay()
                program.await_label(shown)
                self.assertEqual(self.open_overlay(program, screen, region), region)
                # Lower right first, then on to the upper right, then back.
                for key in ("Right", "shift+Down", "Tab", "shift+Up", "Up", "shift+Tab", "Left",
                            "Left"):
                    self.session.xdotool("key", key)
                self.session.xdotool("key", "Return")
                self.await_no_overlay()
                region = left, bottom - 10, right - 1, top + 11
                width, height = region[2] - left, region[3] - region[1]
                shown = f"{width} × {height} at {left},\u00a0{900 - region[3]}"
                program.await_label(shown)

    def test_another_screen_ends_the_overlay_and_the_same_one_does_not(self):
        self.addCleanup(self.monitors)
        screen = Screen(0, 0, 700, 900, 1)
        changes = {
            "resized": ("650x850+0+0", "400x800+700+0"),
            "the other one removed, this one grows": ("1200x900+0+0",),
        }
        for name, places in changes.items():
            with self.subTest(name):
                self.monitors("700x900+0+0", "500x900+700+0")
                program = self.program()
                self.session.xdotool("windowmove", "--sync", program.window(), 20, 30)
                left, bottom = self.open_overlay(program, screen)[:2]
                # The other display is none of the overlay's business.
                self.monitors("700x900+0+0", "400x800+700+0")
                self.drag(screen.pixel(left, bottom), (100, 800))
                left, bottom = screen.dragged((left, bottom), (100, 800))
                self.await_square(left - 4, bottom, screen, GREEN)
                self.assertTrue(self.overlay())
                self.monitors(*places)
                self.await_no_overlay()
                program.await_label(FULL_SCREEN)
                self.assertEqual(program.end(), 0)

    def test_a_compositing_manager_may_come_and_go_and_the_program_may_end(self):
        self.block = 1
        screen = Screen(0, 0, *self.screen, 1)
        with self.pattern():
            program = self.program()
            self.put_aside(program, *ASIDE)
            edges = self.open_overlay(program, screen)
            for blending in (True, False):
                with self.compositing(blending):
                    self.await_see_through(screen, edges)
            self.assertEqual(program.end(), 0)

    def test_the_how_to_dialog_comes_until_it_is_turned_off(self):
        program = self.program(how_to=None)
        wait_for("the flag to be stored", lambda: self.stored_flag() == ["1"])

        def tick():
            act(program.await_control("check box"))

        for leave, stored, goes_on in (
                (lambda: program.press("OK"), "1", True),
                (lambda: (tick(), self.session.xdotool("key", "Escape")), "1", False),
                (lambda: (tick(), program.press("OK")), "0", True)):
            program.press("Region")
            program.await_control("dialog", HOW_TO)
            leave()
            if goes_on:
                wait_for("the overlay", self.overlay)
                self.session.xdotool("key", "Escape")
                self.await_no_overlay()
            else:
                wait_for("the dialog to close", lambda: not program.find("dialog", HOW_TO))
                program.wait_for("the window", lambda: program.enabled("Region"))
                self.assertFalse(self.overlay())
            self.assertEqual(self.stored_flag(), [stored])
        program.press("Region")
        wait_for("the overlay", self.overlay)
        self.assertIsNone(program.find("dialog", HOW_TO))


if __name__ == "__main__":
    case.main()
