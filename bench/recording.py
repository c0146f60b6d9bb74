# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the whole program manages, worked through its own interface: recording.py BUILD frames

A window that changes 60 times a second is recorded at 30 frames a second, and the frames that hold
a picture of their own are set against those that were due, at 1920x1080. Ends with status 1 when a
bar is missed.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "system"))

import counter  # noqa: E402  pylint: disable=wrong-import-position
import driver  # noqa: E402  pylint: disable=wrong-import-position

SCREEN = (1920, 1080)
LENGTH = 8  # seconds of each recording
CHANGES = 60  # a second, of the counter
RATE = 30


def choose_rate(program, rate):
    """In the frame-rate dialog, by the keys: the list finds the number that is typed."""
    program.press("Frames per Second")
    dialog = program.await_control("dialog", "Frames per Second")
    box = driver.wait_for("the list of rates",
                          lambda: next(driver.search(dialog, "combo box"), None))
    box.grab_focus()
    driver.wait_for("focus on the list", lambda: driver.has_state(box, "FOCUSED"))
    program.session.xdotool("type", str(rate))
    driver.wait_for("the rate", lambda: box.get_name() == str(rate)
                    or driver.content(box) == str(rate)
                    or any(driver.has_state(item, "SELECTED") and item.get_name() == str(rate)
                           for item in driver.search(box, "list item", showing=False)))
    program.press("OK")
    program.wait_for("the dialog to close", lambda: not program.find("dialog"))


def record(program, rate):
    """Records, stops, and waits for the save."""
    choose_rate(program, rate)
    program.press("Record")
    program.recording_for(LENGTH)
    program.press("Stop")
    program.await_tab("Cut", patience=120)


def distinct_frames(build):
    with driver.Session(build, *SCREEN) as session:
        inside = session.counter("--at", "100,100", "--size", "1400x700", "--rate", str(CHANGES))
        program = driver.Program(session)
        record(program, RATE)
        files = sorted(session.frames.glob("frame*.png"))
        numbers = [counter.read(counter.decode(path)[0], *inside) for path in files]
        program.end()
    assert None not in numbers and numbers == sorted(numbers), "wrong pictures"
    due = (numbers[-1] - numbers[0]) * RATE / CHANGES + 1
    return len(set(numbers)) / due, len(files)


MEASURES = {
    "frames": ("distinct frames / frames due, 30 a second", distinct_frames, 0.98, True),
}


def main(build, name):
    what, measure, bar, higher_is_better = MEASURES[name]
    value, frames = measure(build)
    met = value >= bar if higher_is_better else value <= bar
    verdict = "" if met else "  MISSED"
    print(f"{what:<44} {value:6.3f}   bar {bar:.2f}   {frames} frames{verdict}")
    return 0 if met else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
