# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Records, exports and measures: how long a file plays against how long was recorded, and whether
what it shows advances evenly."""

import dataclasses
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
        """Within 2 % or one frame's time, whichever is larger."""
        limit = max(0.02 * self.recorded, self.slowest * speed)
        return self.as_planned and abs(self.played * speed - self.recorded) <= limit


def record(program, take):
    """Records: the seconds that it took, pauses left out."""
    program.enter("Record")
    program.choose_rate(take.rate)
    recorded = 0
    for index, seconds in enumerate(take.parts):
        program.press("Record")
        began = time.monotonic()
        time.sleep(seconds)
        last = index == len(take.parts) - 1
        program.press("Stop" if last else "Pause")
        recorded += time.monotonic() - began
        if not last:
            time.sleep(PAUSE)
    program.await_tab("Cut", patience=120)
    return recorded


def export(program, take, target):
    program.enter("GIF")
    program.activate()
    if take.custom:
        act(program.await_control("radio button", "Custom frame rate"))
        program.choose_in(program.list_of(str.isdigit), str(take.custom), "1")
    program.choose_in(program.list_of(lambda name: name.endswith("×")), f"{take.speed:g}×",
                      "0.25×")
    program.press(f"Generate {take.kind}")
    program.save_panel(target, patience=300, kind=take.kind)
    program.dismiss_alert("Success")


def webp_durations(path):
    """How long each picture of a WebP is shown, in seconds, as a browser plays it."""
    said = subprocess.run(["webpinfo", path], check=True, stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=60).stdout
    return [(length if length >= SHORTEST_IN_WEBP else 100) / 1000
            for length in map(int, re.findall(r"Duration: (\d+)", said))]


def measure(program, place, take, name):
    """`place` is where the counter lies in the picture."""
    recorded = record(program, take)
    session = program.session
    target = session.home / f"{name}.{take.kind.lower()}"
    export(program, take, target)
    stored = [counter.read(picture, *place) for picture in
              counter.decode(str(session.frames / "frame%08d.png"), pattern=True)]
    assert None not in stored, "a recorded frame does not show the counter"
    as_planned = True
    if take.kind == "GIF":
        durations = counter.durations(str(target))
        shown = [counter.read(picture, *place) for picture in counter.decode(str(target))]
        as_planned = shown == [stored[index * len(stored) // len(shown)]
                               for index in range(len(shown))]
    else:
        durations = webp_durations(target)
    steps = [after - before for before, after in zip(stored, stored[1:])]
    expected = COUNTS * recorded / len(stored)
    gaps = sum(step > 1.9 * expected for step in steps) - (len(take.parts) - 1)
    return Measured(recorded, len(stored), len(durations), sum(durations), max(durations),
                    steps.count(0), max(gaps, 0), as_planned)
