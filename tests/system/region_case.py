# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the tests of the region overlay share: displays, panels and compositing managers to run it
on, and a region framed and recorded as a user would."""

import contextlib
import ctypes
import itertools
import math
import signal
import subprocess

import case
import counter
from driver import BINARY, PATIENCE, Late, Program, wait_for
from region_screen import colour, cut_out

OVERLAY = "^Select a Region$"
HOW_TO = "How to Select a Region"
KEY = "MACBrenmoor_Lumsey_b_Show_Select_Region_How_To"
PICOM = ["picom", "--backend", "xrender", "--config", "/dev/null"]
ASIDE = (800, 0)
THICKNESS = 40  # of a panel, in pixels
ATOM, CARDINAL, SIZE_HINTS = 4, 6, 41  # X11 protocol, predefined atoms
USER_POSITION = 1  # ICCCM, WM_NORMAL_HINTS
GREEN, RED = (0, 255, 0), (255, 0, 0)
LIGHT, DARK = (255, 255, 255), (32, 32, 32)  # the two tones of the line around the region
LINE = 1.5  # points, of each tone
DIM = 127 / 255  # what is left of what is not recorded, where the desktop blends windows


class RegionCase(case.Case):
    """Opens the overlay, frames something, and compares what is recorded with what was framed."""

    screen = (1200, 900)
    block = 1  # side of the pattern's blocks, in pixels
    displays = {}  # name and place by index, as RandR knows them
    names = itertools.count()

    # Helpers -----------------------------------------------------------------------------------

    def program(self, scale=1, how_to="0", environment=None):
        # One at a time: where a part of a test failed, its program is still there.
        self.end_programs(signal.SIGKILL)
        self.await_none(BINARY)
        settings = self.session.home / ".config" / "Tovarel" / "Tovarel.conf"
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.unlink(missing_ok=True)
        if how_to is not None:
            settings.write_text(
                f"[General]\nGIFQuality=classic\nShowPointer=0\n{KEY}={how_to}\n")
        return Program(self.session, environment or {"QT_SCALE_FACTOR": str(scale)})

    def stored_flag(self):
        text = (self.session.home / ".config" / "Tovarel" / "Tovarel.conf").read_text()
        return [line.split("=")[1] for line in text.splitlines() if line.startswith(KEY)]

    @contextlib.contextmanager
    def beside(self, name, command):
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
        with self.beside(name, command):
            wait_for("the pattern", lambda: "shown" in self.session.output(name))
            yield

    @contextlib.contextmanager
    def compositing(self, wanted):
        if not wanted:
            yield
            return
        with self.beside("picom", PICOM):
            wait_for("the compositing manager", self.session.composited)
            yield
        wait_for("the compositing manager to go", lambda: not self.session.composited())

    @contextlib.contextmanager
    def panel(self, side):
        """A desktop's panel on one side of the screen, which it keeps clear of other windows."""
        width, height = self.screen
        x, y, across, down = {
            "left": (0, 0, THICKNESS, height), "right": (width - THICKNESS, 0, THICKNESS, height),
            "top": (0, 0, width, THICKNESS), "bottom": (0, height - THICKNESS, width, THICKNESS),
        }[side]
        strut = [THICKNESS if name == side else 0 for name in ("left", "right", "top", "bottom")]
        with self.session.x11() as (x11, display):
            x11.XCreateSimpleWindow.restype = ctypes.c_ulong
            root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
            window = ctypes.c_ulong(x11.XCreateSimpleWindow(
                display, root, x, y, across, down, 0, 0, ctypes.c_ulong(0xff00ff)))

            def atom(name):
                return x11.XInternAtom(display, name, 0)

            def tell(name, kind, *values):
                x11.XChangeProperty(display, window, ctypes.c_ulong(atom(name)),
                                    ctypes.c_ulong(kind), 32, 0,
                                    (ctypes.c_ulong * len(values))(*values), len(values))
            tell(b"_NET_WM_WINDOW_TYPE", ATOM, atom(b"_NET_WM_WINDOW_TYPE_DOCK"))
            tell(b"WM_NORMAL_HINTS", SIZE_HINTS, USER_POSITION, x, y, across, down, *[0] * 13)
            tell(b"_NET_WM_STRUT", CARDINAL, *strut)
            tell(b"_NET_WM_STRUT_PARTIAL", CARDINAL, *strut, *[0, 9999] * 4)
            x11.XMapWindow(display, window)
            x11.XSync(display, 0)
            spot = x + across // 2, y + down // 2

            def shown():
                return self.session.picture().pixel(*spot) == (255, 0, 255)
            wait_for("the panel", shown)
            yield spot
        # The next one may get the same number, which the window manager must have forgotten.
        wait_for("the panel to go", lambda: not shown())

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
                # A name is given once only.
                name = f"display-{next(self.names)}"
                width, height, x, y = place.replace("x", "+").split("+")
                self.xrandr("--setmonitor", name, f"{width}/300x{height}/200+{x}+{y}", output)
                self.displays[index] = name, place
            # Servers differ in whether the display at an output replaces the one before.
            if before[0] and before[0] in self.xrandr("--listmonitors").split():
                self.xrandr("--delmonitor", before[0])

    def xrandr(self, *arguments):
        return subprocess.run(
            ["xrandr", *arguments], env=self.session.environment, check=True, text=True,
            stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE).stdout

    def overlay(self):
        return self.session.xdotool("search", "--onlyvisible", "--name", OVERLAY, check=False)

    def open_overlay(self, program, screen, region=None):
        """Opens the overlay and waits until it is drawn, with the region that it starts with: the
        last one, or else that of a first time."""
        program.press("Region")
        wait_for("the overlay", self.overlay)
        left, bottom, right, top = region or screen.start()
        self.await_square((left + right) // 2, (bottom + top) // 2, screen, RED)
        return left, bottom, right, top

    def await_square(self, x, y, screen, wanted):
        """Waits for a square of that colour around a point; beside the tick in the middle."""
        spot = screen.pixel(x + 4, y)
        wait_for(f"a square at {spot}", lambda: self.session.picture().pixel(*spot) == wanted)

    def await_no_overlay(self):
        wait_for("the overlay to go", lambda: not self.overlay())

    def drag(self, source, target):
        """Drags from one pixel to another."""
        self.session.xdotool("mousemove", "--sync", *source, "mousedown", 1)
        halfway = [(a + b) // 2 for a, b in zip(source, target)]
        self.session.xdotool("mousemove", *halfway, "mousemove", *target, "mouseup", 1)

    def frame(self, program, screen, target, by_way_of=None):
        """Drags the lower left corner and the upper right one to pixels of the desktop, and accepts
        with a press on the middle: the region's edges. The first corner can be put down at one
        pixel, and be picked up again there."""
        left, bottom, right, top = self.open_overlay(program, screen)
        for pixel in (by_way_of, target[0]) if by_way_of else target[:1]:
            self.drag(screen.pixel(left, bottom), pixel)
            left, bottom = screen.dragged((left, bottom), pixel)
            self.await_square(left - 4, bottom, screen, GREEN)
        self.drag(screen.pixel(right, top), target[1])
        right, top = screen.dragged((right, top), target[1])
        self.await_square(right - 4, top, screen, GREEN)
        edges = left, bottom, right, top
        self.check_see_through(screen, edges)
        middle = screen.pixel((left + right) / 2, (bottom + top) / 2)
        self.session.xdotool("mousemove", "--sync", *middle, "click", 1)
        self.await_no_overlay()
        return edges

    def check_see_through(self, screen, edges):
        """The line is around what is recorded and not in it, where the desktop shows unchanged;
        outside it is dimmed where that can be."""
        left, bottom, right, top = edges
        (x, y), (end, below) = screen.pixel(left, top), screen.pixel(right, bottom)
        line, dim = math.floor(LINE * screen.scale + 0.5), DIM if self.session.composited() else 1
        row, column = below - round(30 * screen.scale), x + round(30 * screen.scale)
        # A window that has come to a screen of another density takes its size there a little later.
        for within in ((x, row), (end - 1, row), (column, y)):
            wait_for(f"the desktop at {within}", lambda at=within:
                     self.session.picture().pixel(*at) == colour(*at, self.block))
        picture = self.session.picture()
        for outwards, spot in (((-1, 0), (x - 1, row)), ((1, 0), (end, row)), ((0, -1), (column, y - 1))):
            for away, wanted in ((0, LIGHT), (line - 1, LIGHT), (line, DARK), (2 * line - 1, DARK)):
                there = tuple(at + by * away for at, by in zip(spot, outwards))
                self.assertEqual(picture.pixel(*there), wanted, f"no line at {there}")
        beyond = round(20 * screen.scale)  # the squares
        for spot in ((x - beyond, below + beyond), (x - beyond, y - beyond), (x - 2 * line - 1, row)):
            for seen, shown in zip(picture.pixel(*spot), colour(*spot, self.block)):
                self.assertLessEqual(abs(seen - shown * dim), 1, f"wrong at {spot}")

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

    def check_framing(self, screen, window, target, halved=False, blending=False,
                      by_way_of=None, environment=None):
        """What is framed on this screen, with the window put there, is what is recorded."""
        self.block = 2 if halved else 1
        with self.pattern(), self.compositing(blending):
            program = self.program(screen.scale, environment=environment)
            self.put_aside(program, *window)
            area = screen.recorded(*self.frame(program, screen, target, by_way_of))
            self.check_recorded(program, tuple(x // self.block for x in area))
            program.end()

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
