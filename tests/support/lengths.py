# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Records, exports and measures: how long a file plays against how long was recorded, and whether
what it shows advances evenly."""

import dataclasses
import itertools
import locale
import os
import re
import subprocess
import time

import counter
from driver import act

COUNTS = 120  # a second, of the counter that is recorded: more than frames
PAUSE = 1.0  # seconds
SHORTEST_IN_WEBP = 11  # milliseconds; browsers play what is shorter as a tenth of a second


@dataclasses.dataclass
class Take:
    """One recording and its export. `parts` are the seconds between Record and Pause or Stop."""
    rate: int
    parts: tuple
    custom: int = 0  # frames per second; 0 for the recording's own
    speed: float = 1
    kind: str = "GIF"


@dataclasses.dataclass
class Measured:
    recorded: float  # seconds by the clock on the wall, between the answers to the presses
    answering: float  # seconds of these, at most, that passed before a press was answered
    stored: int  # frames of the recording
    frames: int  # frames of the file
    played: float  # seconds that the file plays
    slowest: float  # seconds that its longest frame is shown
    repeated: int  # frames of the recording that show what the one before showed
    skipped: int  # those before which more than a frame's time is missing
    as_planned: bool  # whether the pictures are those of the recording, evenly picked

    def ratio(self, speed):
        return self.played * speed / self.recorded

    def good(self, speed):
        """Within 2 % or one frame's time, whichever is larger, as far as the wall clock can tell:
        when in the course of a press the recording began or ended isn't known."""
        limit = max(0.02 * self.recorded, self.slowest * speed) + self.answering
        return self.as_planned and abs(self.played * speed - self.recorded) <= limit


def record(program, take):
    """Records: the seconds that it took, pauses left out, and how much longer or shorter it may
    have been, because a press takes effect before its answer comes."""
    program.enter("Record")
    program.choose_rate(take.rate)
    recorded = answering = 0
    for index, seconds in enumerate(take.parts):
        last = index == len(take.parts) - 1
        pressed = time.monotonic()
        program.press("Record")
        began = time.monotonic()
        time.sleep(seconds)
        ending = time.monotonic()
        program.press("Stop" if last else "Pause")
        ended = time.monotonic()
        recorded += ended - began
        answering += max(began - pressed, ended - ending)
        if not last:
            time.sleep(PAUSE)
    program.await_tab("Cut", patience=120)
    return recorded, answering


def local(number):
    """The number as the program writes it in the locale that the tests run in."""
    before = locale.setlocale(locale.LC_NUMERIC)
    try:
        locale.setlocale(locale.LC_NUMERIC, os.environ.get("TOVAREL_TEST_LOCALE", "C"))
        return f"{number:n}"
    finally:
        locale.setlocale(locale.LC_NUMERIC, before)


def export(program, take, target):
    program.enter("GIF")
    program.activate()
    if take.custom:
        act(program.await_control("radio button", "Custom frame rate"))
        program.choose_in(program.list_of(str.isdigit), str(take.custom), "1")
    program.choose_in(program.list_of(lambda name: name.endswith("×")), f"{local(take.speed)}×",
                      f"{local(0.25)}×")
    frames = frames_said(program)
    program.press(f"Generate {take.kind}")
    program.save_panel(target, patience=300, kind=take.kind)
    program.dismiss_alert("Success")
    return frames


def frames_said(program):
    """How many frames the GIF is to have, by the summary line."""
    pattern = re.compile(r"(?:GIF: )?(\d+) frames")
    said = program.wait_for("the summary", lambda: next(filter(None, (
        pattern.match(label.get_name()) for label in program.walk("label"))), None))
    return int(said.group(1))


def without_repeats(numbers):
    """A GIF shows a picture that stays the same once, for as long as it lasts."""
    return [number for number, _ in itertools.groupby(numbers)]


def webp_durations(path):
    """How long each picture of a WebP is shown, in seconds, as a browser plays it."""
    said = subprocess.run(["webpinfo", path], check=True, stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=60).stdout
    return [(length if length >= SHORTEST_IN_WEBP else 100) / 1000
            for length in map(int, re.findall(r"Duration: (\d+)", said))]


def measure(program, place, take, name):
    """`place` is where the counter lies in the picture."""
    recorded, answering = record(program, take)
    session = program.session
    target = session.home / f"{name}.{take.kind.lower()}"
    frames = export(program, take, target)
    stored = [counter.read(picture, *place) for picture in
              counter.decode(str(session.frames / "frame%08d.png"), pattern=True)]
    assert None not in stored, "a recorded frame does not show the counter"
    as_planned = True
    if take.kind == "GIF":
        durations = counter.durations(str(target))
        shown = [counter.read(picture, *place) for picture in counter.decode(str(target))]
        planned = [stored[index * len(stored) // frames] for index in range(frames)]
        as_planned = without_repeats(shown) == without_repeats(planned)
    else:
        durations = webp_durations(target)
    steps = [after - before for before, after in zip(stored, stored[1:])]
    expected = COUNTS * recorded / len(stored)
    gaps = sum(step > 1.9 * expected for step in steps) - (len(take.parts) - 1)
    return Measured(recorded, answering, len(stored), len(durations), sum(durations),
                    max(durations), steps.count(0), max(gaps, 0), as_planned)
