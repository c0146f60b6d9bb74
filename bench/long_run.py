# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A long recording of a quiet desktop, from the start to the exported file: long_run.py BUILD [MINUTES]

At 60 frames a second, 20 minutes where nothing else is said: saved, cut to ten seconds, played,
exported. Tells memory, handles and threads of the program at each step, and the longest time in which
its interface did not answer while it recorded. Ends with status 1 when that was longer than allowed,
or handles or threads are left over that were not there after a first short round. With --short it
records for three seconds.
"""

import os
import pathlib
import sys
import time
import warnings

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import counter  # noqa: E402  pylint: disable=wrong-import-position
import driver  # noqa: E402  pylint: disable=wrong-import-position

SCREEN = (1280, 720)
RATE = 60  # frames a second
# The short form checks that it still works, and nothing that a busy machine changes.
SHORT = "--short" in sys.argv
CLIP = 1 if SHORT else 10  # seconds that are kept
LONGEST_SILENCE = 0.100  # seconds without an answer
SPARE_HANDLES = 4  # the toolkit opens some as it likes
PATIENCE = 3600  # seconds that a save or an export may take


def standing(pid):
    """Memory in MB, open handles, threads."""
    status = dict(line.split(":", 1) for line in
                  pathlib.Path(f"/proc/{pid}/status").read_text(encoding="utf-8").splitlines())
    return (int(status["VmRSS"].split()[0]) / 1024, len(os.listdir(f"/proc/{pid}/fd")),
            int(status["Threads"]))


def show(what, program, began):
    memory, handles, threads = standing(program.process.pid)
    print(f"{time.monotonic() - began:7.0f} s  {what:<22} {memory:7.0f} MB {handles:4} handles"
          f" {threads:3} threads", flush=True)
    return memory, handles, threads


def longest_silence(program, seconds):
    """Asks the interface again and again, as a screen reader does, and takes the time. An answer
    comes from the program's event loop."""
    button = program.button("Stop")
    longest, end = 0.0, time.monotonic() + seconds
    while time.monotonic() < end:
        asked = time.monotonic()
        assert button.get_name() == "Stop"
        longest = max(longest, time.monotonic() - asked)
        time.sleep(0.01)
    return longest


def cut(program, frames):
    """Moves the upper handle down to `frames`, by its value, as assistive technology does."""
    handle = program.await_control("slider", "Last frame")
    value = handle.get_value_iface()
    value.set_current_value(frames)
    driver.wait_for("the handle", lambda: abs(
        value.get_current_value() - frames) <= 1)


def export(program, target):
    """From the Cut tab: plays for a moment and makes the file."""
    program.press("Play")
    time.sleep(CLIP / 2)
    program.press("Stop")
    program.enter("GIF")
    program.press("Generate GIF")
    program.save_panel(target, patience=PATIENCE)
    program.dismiss_alert("Success")


def main(build, minutes=20.0):
    with driver.Session(build, *SCREEN) as session:
        program = driver.Program(session)
        program.choose_rate(RATE)
        # What is made once for the life of the program is there after a first round.
        program.record(CLIP)
        export(program, session.home / "first.gif")
        program.enter("Record")
        began = time.monotonic()
        start = show("after a first round", program, began)
        program.press("Record")
        program.recording_for(1)
        silence = longest_silence(program, minutes * 60)
        show("recorded", program, began)
        program.press("Stop")
        program.await_tab("Cut", PATIENCE)
        show("saved", program, began)
        frames = len(list(session.frames.glob("frame*.png")))
        cut(program, CLIP * RATE - 1)
        target = session.home / "long.gif"
        export(program, target)
        show("exported", program, began)
        pictures = len(counter.durations(str(target)))
        program.enter("Record")
        program.record(1)
        end = show("after a short recording", program, began)
        status = program.end()
    print(f"{frames} frames, {frames / (minutes * 60 + 1):.1f} a second; {pictures} in the GIF; "
          f"longest silence while recording {silence * 1000:.0f} ms; exit status {status}")
    leaks = end[1] > start[1] + SPARE_HANDLES or end[2] > start[2] + os.cpu_count()
    return int((silence > LONGEST_SILENCE and not SHORT) or leaks or status != 0)


if __name__ == "__main__":
    warnings.simplefilter("ignore")  # of the accessibility library, about its own names
    sys.exit(main(sys.argv[1], *([0.05] if SHORT else map(float, sys.argv[2:3]))))
