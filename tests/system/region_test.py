# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The region overlay on a real display: what the user frames is what is recorded, to the pixel, at
any scale, on any display, with a compositing manager and without; and it can always be left."""

import contextlib
import itertools
import signal
import subprocess

import case
import counter
from driver import BINARY, PATIENCE, Late, Program, act, wait_for
from region_screen import Screen, brightness, colour, cut_out

OVERLAY = "^Select a region$"
HOW_TO = "How to select a region"
KEY = "MACBrenmoor_Lumsey_b_Show_Select_Region_How_To"
PICOM = ["picom", "--backend", "xrender", "--config", "/dev/null"]
ASIDE = (800, 0)
BLUE, GREEN, RED = (0, 0, 255), (0, 255, 0), (255, 0, 0)


class Region(case.Case):
    screen = (1200, 900)
    block = 1  # side of the pattern's blocks, in pixels
    displays = {}  # name and place by index, as RandR knows them
    names = itertools.count()

    # Helpers -----------------------------------------------------------------------------------

    def program(self, scale=1, how_to="0"):
        # One at a time: where a part of a test failed, its program is still there.
        self.end_programs(signal.SIGKILL)
        self.await_none(BINARY)
        settings = self.session.home / ".config" / "Tovarel" / "Tovarel.conf"
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.unlink(missing_ok=True)
        if how_to is not None:
            settings.write_text(f"[General]\n{KEY}={how_to}\n")
        return Program(self.session, {"QT_SCALE_FACTOR": str(scale)})

    def stored_flag(self):
        text = (self.session.home / ".config" / "Tovarel" / "Tovarel.conf").read_text()
        return [line.split("=")[1] for line in text.splitlines() if line.startswith(KEY)]

    @contextlib.contextmanager
    def running(self, name, command):
        process = self.session.start(name, command)
        try:
            yield process
        finally:
            process.terminate()
            process.wait(PATIENCE)

    @contextlib.contextmanager
    def pattern(self):
        name = f"pattern-{len(list(self.session.outputs.iterdir()))}"
        command = [self.session.build / "tests/system/pattern_window", str(self.block)]
        with self.running(name, command):
            wait_for("the pattern", lambda: "shown" in self.session.output(name))
            yield

    @contextlib.contextmanager
    def compositing(self, wanted):
        if not wanted:
            yield
            return
        with self.running("picom", PICOM):
            wait_for("the compositing manager", self.session.composited)
            yield
        wait_for("the compositing manager to go", lambda: not self.session.composited())

    def monitors(self, *places):
        """Divides the desktop into displays, WIDTHxHEIGHT+X+Y each; none makes it one again. Those
        that stay as they are are not touched."""
        for index, output in enumerate(("screen", "none")):
            before = self.displays.get(index, (None, None))
            place = places[index] if index < len(places) else None
            if place == before[1]:
                continue
            self.displays[index] = None, place
            if place:
                # A name is given once only, and the display at an output replaces the one before.
                name = f"display-{next(self.names)}"
                width, height, x, y = place.replace("x", "+").split("+")
                self.xrandr("--setmonitor", name, f"{width}/300x{height}/200+{x}+{y}", output)
                self.displays[index] = name, place
            if before[0] and not (place and output == "screen"):
                self.xrandr("--delmonitor", before[0])

    def xrandr(self, *arguments):
        subprocess.run(["xrandr", *arguments], env=self.session.environment, check=True,
                       stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE)

    def overlay(self):
        return self.session.xdotool("search", "--onlyvisible", "--name", OVERLAY, check=False)

    def open_overlay(self, program, screen):
        """Opens the overlay and waits until it is drawn, with the region that it starts with."""
        program.press("Region")
        wait_for("the overlay", self.overlay)
        left, bottom, right, top = screen.start()
        self.await_square((left + right) / 2, (bottom + top) / 2, screen, RED)
        return left, bottom, right, top

    def await_square(self, x, y, screen, wanted):
        """Waits for a square of that colour around a point; beside the cross in the middle."""
        spot = screen.pixel(x + 4, y)
        wait_for(f"a square at {spot}", lambda: self.session.picture().pixel(*spot) == wanted)

    def await_no_overlay(self):
        wait_for("the overlay to go", lambda: not self.overlay())

    def drag(self, source, target):
        """Drags from one pixel to another."""
        self.session.xdotool("mousemove", "--sync", *source, "mousedown", 1)
        halfway = [(a + b) // 2 for a, b in zip(source, target)]
        self.session.xdotool("mousemove", *halfway, "mousemove", *target, "mouseup", 1)

    def frame(self, program, screen, target):
        """Drags the lower left corner and the upper right one to pixels of the desktop, and accepts
        with a press on the middle: the region's edges."""
        left, bottom, right, top = self.open_overlay(program, screen)
        (x0, y0), (x1, y1) = target
        self.drag(screen.pixel(left, bottom), (x0, y0))
        left, bottom = screen.edge(x0, y0)
        self.await_square(left - 4, bottom, screen, GREEN)
        self.drag(screen.pixel(right, top), (x1, y1))
        right, top = screen.edge(x1, y1)
        self.await_square(right - 4, top, screen, GREEN)
        edges = left, bottom, right, top
        self.check_see_through(screen, edges)
        middle = screen.pixel((left + right) / 2, (bottom + top) / 2)
        self.session.xdotool("mousemove", "--sync", *middle, "click", 1)
        self.await_no_overlay()
        return edges

    def check_see_through(self, screen, edges):
        """The outline is where it belongs, and close to it the desktop shows unchanged."""
        left, bottom, right, top = edges
        picture = self.session.picture()
        for x, y in ((left, bottom + 30), (right, bottom + 30), (left + 30, top)):
            spot = screen.pixel(x, y)
            self.assertEqual(picture.pixel(*spot), BLUE, f"no outline at {spot}")
        for x, y in ((left - 20, bottom - 20), (left - 20, top + 20), (left - 4, bottom + 30)):
            spot = screen.pixel(x, y)
            self.assertEqual(picture.pixel(*spot), colour(*spot, self.block),
                             f"the desktop does not show at {spot}")

    def check_recorded(self, program, area):
        """Records, and compares every frame with the pattern there, one pixel a block: no pixel may
        be off."""
        program.record(0.6)
        frames = counter.decode(str(self.session.frames / "frame%08d.png"), pattern=True)
        self.assertGreater(len(frames), 0)
        wanted = cut_out(*area, self.block)
        for frame in frames:
            self.assertEqual((frame.width, frame.height), area[2:])
            off = sum(a != b for a, b in zip(frame.data, wanted))
            self.assertEqual(off, 0, f"{off} of {len(wanted)} bytes are off")

    def put_aside(self, program, x, y):
        """Puts the main window away to where no corner is looked at on the screen."""
        self.session.xdotool("windowmove", "--sync", program.window(), x, y)

    # Tests -------------------------------------------------------------------------------------

    def check_framing(self, screen, window, target, halved=False, blending=False):
        """What is framed on this screen, with the window put there, is what is recorded."""
        self.block = 2 if halved else 1
        with self.pattern(), self.compositing(blending):
            program = self.program(screen.scale)
            self.put_aside(program, *window)
            area = screen.recorded(*self.frame(program, screen, target))
            self.check_recorded(program, tuple(x // self.block for x in area))
            program.end()

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
                                   ((559, 720), (733, 503)))
        # A grab twice as wide as the main window's screen counts as one of double density.
        self.monitors("600x900+0+0", "600x900+600+0")
        with self.subTest("beside an equal display a frame is half of what was framed"):
            self.check_framing(Screen(600, 0, 600, 900, 1), (620, 20), ((663, 821), (935, 621)),
                               halved=True)

    def test_the_gif_shows_the_place_that_was_framed(self):
        self.block = 4
        with self.pattern():
            program = self.program()
            self.put_aside(program, *ASIDE)
            screen = Screen(0, 0, *self.screen, 1)
            left, top, width, height = screen.recorded(
                *self.frame(program, screen, ((135, 790), (511, 402))))
            program.record(0.6)
            program.enter("GIF")
            picture = self.check_gif(program, self.session.home / "region.gif")[0]
            self.assertEqual((picture.width, picture.height), (width, height))
            # Colours are approximate, so each corner is laid over the screen at every place nearby:
            # it must fit best where it was framed.
            side = 40
            nearby = list(itertools.product(range(-2, 3), repeat=2))
            for x, y in itertools.product((0, width - side), (0, height - side)):
                def misfit(move, x=x, y=y):
                    return sum(
                        abs(brightness(picture.pixel(column, row)) - brightness(colour(
                            left + column + move[0], top + row + move[1], self.block)))
                        for row in range(y, y + side) for column in range(x, x + side))
                self.assertEqual(min(nearby, key=misfit), (0, 0), f"the corner at {x}, {y}")
            program.end()

    def test_a_region_partly_outside_the_desktop_is_transparent_there(self):
        self.block = 1
        with self.pattern():
            program = self.program()
            self.put_aside(program, *ASIDE)
            screen = Screen(0, 0, *self.screen, 1)
            left, bottom, right, top = self.open_overlay(program, screen)
            self.drag(screen.pixel(left, bottom), (0, 899))
            self.await_square(1, 6, screen, GREEN)
            # The pointer cannot leave the screen, but the arrow keys go on.
            for _ in range(3):
                self.session.xdotool("key", "shift+Left", "key", "shift+Down")
            self.session.xdotool("key", "Return")
            self.await_no_overlay()
            program.record(0.4)
            path = sorted(self.session.frames.iterdir())[0]
            x, y = -30 + 5, -30 + 1 + 5
            self.assertEqual(counter.probe(str(path), "stream=width,height,pix_fmt")[0],
                             f"{right - x},{top - y},rgba")
            frame = counter.decode(str(path))[0]
            self.assertEqual(frame.pixel(25, 0), colour(0, 900 - top))
            self.assertEqual(frame.pixel(24, 0), (0, 0, 0))
            self.assertEqual(frame.pixel(100, top - 1), colour(75, 899))
            self.assertEqual(frame.pixel(100, top), (0, 0, 0))

    def test_keys_move_the_corners_and_escape_gives_the_full_screen_back(self):
        program = self.program()
        screen = Screen(0, 0, *self.screen, 1)
        for blending in (False, True):
            with self.subTest(blending=blending), self.compositing(blending):
                left, bottom, right, top = self.open_overlay(program, screen)
                # Lower right first, then on to the upper right, then back.
                for key in ("Right", "shift+Down", "Tab", "shift+Up", "Up", "shift+Tab", "Left",
                            "Left"):
                    self.session.xdotool("key", key)
                self.session.xdotool("key", "Return")
                self.await_no_overlay()
                width, height = right - left - 1, top - bottom + 21
                self.await_label(program, f"{width} × {height} at {left},\u00a0{900 - top - 11}")
                self.open_overlay(program, screen)
                self.session.xdotool("key", "Escape")
                self.await_no_overlay()
                self.await_label(program, "Full screen")

    def await_label(self, program, wanted):
        with contextlib.suppress(Late):
            wait_for(wanted, lambda: any(wanted in text for text in program.labels()), 5)
        self.assertTrue(any(wanted in text for text in program.labels()),
                        f"{wanted!r} is not among {program.labels()}")

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
                left, bottom = screen.edge(100, 800)
                self.await_square(left - 4, bottom, screen, GREEN)
                self.assertTrue(self.overlay())
                self.monitors(*places)
                self.await_no_overlay()
                self.await_label(program, "Full screen")
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

    def await_see_through(self, screen, edges):
        def seen():
            try:
                self.check_see_through(screen, edges)
                return True
            except AssertionError:
                return False
        with contextlib.suppress(Late):
            wait_for("the desktop to show", seen, 10)
        self.check_see_through(screen, edges)

    def test_the_how_to_dialog_comes_until_it_is_turned_off(self):
        program = self.program(how_to=None)
        wait_for("the flag to be stored", lambda: self.stored_flag() == ["1"])

        def tick():
            act(program.await_control("check box"))

        for leave, stored in ((lambda: program.press("OK"), "1"),
                              (lambda: (tick(), self.session.xdotool("key", "Escape")), "1"),
                              (lambda: (tick(), program.press("OK")), "0")):
            program.press("Region")
            program.await_control("dialog", HOW_TO)
            leave()
            # However it ended, the region is chosen next.
            wait_for("the overlay", self.overlay)
            self.assertEqual(self.stored_flag(), [stored])
            self.session.xdotool("key", "Escape")
            self.await_no_overlay()
        program.press("Region")
        wait_for("the overlay", self.overlay)
        self.assertIsNone(program.find("dialog", HOW_TO))


if __name__ == "__main__":
    case.main()
