# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the whole program manages, worked through its own interface: recording.py BUILD

Frames that hold a picture of their own against those that were due, on desktops that change; the
processor time of a recording with its preview on screen against a plain screen grabber's; what an
export takes beside its encoder; and how soon the window is there. Ends with status 1 when a bar is
missed. One line for each measure; `recording.py BUILD NAME...` takes only some of them.
"""

import pathlib
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "system"))

import counter  # noqa: E402  pylint: disable=wrong-import-position
import driver  # noqa: E402  pylint: disable=wrong-import-position

HD = (1920, 1080)
UHD = (3840, 2160)
LENGTH = 6  # seconds of each recording
TYPING = "while :; do for word in make test commit; do printf '%s ' $word; sleep .1; done; done"
NANOSECOND = 1e-9

# An encoder that says when it runs, before the real one in the search path.
WRAPPER = """#!/bin/sh
date +%s.%N >>"$HOME/encoder.times"
/usr/bin/ffmpeg "$@"
status=$?
date +%s.%N >>"$HOME/encoder.times"
exit $status
"""


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


def distinct_frames(screen, size, changes, rate):
    """The share of the frames due, in the time between the first frame and the last, that show a
    picture of their own."""
    def measure(build):
        with driver.Session(build, *screen) as session:
            inside = session.counter("--at", "0,0", "--size", "%dx%d" % size, "--rate",
                                     str(changes), "--unmanaged")
            program = driver.Program(session)
            choose_rate(program, rate)
            program.press("Record")
            program.recording_for(LENGTH)
            program.press("Stop")
            program.await_tab("Cut", patience=240)
            files = sorted(session.frames.glob("frame*.png"))
            numbers = [counter.read(counter.decode(path)[0], *inside) for path in files]
            program.end()
        assert None not in numbers and numbers == sorted(numbers), "wrong pictures"
        due = (numbers[-1] - numbers[0]) * rate / changes + 1
        return len(set(numbers)) / due
    return measure


def processor_seconds(session, *processes):
    """What these processes and the display server have used so far."""
    numbers = [number for name in ("Xvfb",) for number in session.processes(name)]
    total = 0
    for number in numbers + list(processes):
        for thread in pathlib.Path(f"/proc/{number}/task").iterdir():
            total += int((thread / "schedstat").read_text().split()[0])
    return total * NANOSECOND


def used_in(session, seconds, *processes):
    before = processor_seconds(session, *processes)
    time.sleep(seconds)
    return (processor_seconds(session, *processes) - before) / seconds


def share_of_grabber(build):
    """A terminal is typed in: a recording at 60 frames a second, its preview on screen, against a
    grabber that throws its frames away."""
    with driver.Session(build, *HD) as session:
        session.start("terminal", ["xterm", "-geometry", "120x40+900+300", "-e", "sh", "-c",
                                   TYPING])
        time.sleep(1)
        alone = used_in(session, LENGTH)
        grabber = session.start("grabber", [
            "ffmpeg", "-v", "error", "-f", "x11grab", "-framerate", "60", "-video_size",
            "%dx%d" % HD, "-i", session.environment["DISPLAY"], "-f", "rawvideo", "-y",
            "/dev/null"])
        time.sleep(1)
        grabbing = used_in(session, LENGTH, grabber.pid) - alone
        grabber.terminate()
        grabber.wait()
        program = driver.Program(session)
        choose_rate(program, 60)
        program.press("Record")
        time.sleep(1)
        recording = used_in(session, LENGTH, program.process.pid) - alone
        program.press("Stop")
        program.await_tab("Cut", patience=120)
        frames = len(list(session.frames.glob("frame*.png")))
        program.end()
    assert frames > 55 * LENGTH, f"only {frames} frames"
    print(f"  (recording {recording:.3f} of a core, grabber {grabbing:.3f}, scene {alone:.3f})")
    return recording / grabbing


def outside_encoder(build):
    """Of the time between Export and the save panel, the part in which no encoder runs."""
    with driver.Session(build, *HD) as session:
        tools = session.folder / "tools"
        tools.mkdir()
        wrapper = tools / "ffmpeg"
        wrapper.write_text(WRAPPER, encoding="ascii")
        wrapper.chmod(0o755)
        session.start("terminal", ["xterm", "-geometry", "120x40+900+300", "-e", "sh", "-c",
                                   TYPING])
        path = f"{tools}:{session.environment['PATH']}"
        program = driver.Program(session, {"PATH": path})
        choose_rate(program, 30)
        program.press("Record")
        program.recording_for(10)
        program.press("Stop")
        program.await_tab("Cut", patience=120)
        program.enter("GIF")
        program.press("Export")
        began = time.time()
        # Looked for seldom: the search takes processor time from the encoder.
        program.wait_for("the save panel", lambda: time.sleep(0.1) or program.find("dialog"), 300)
        ended = time.time()
        times = [float(line) for line in (session.home / "encoder.times").read_text().split()]
        program.end()
    inside = sum(end - start for start, end in zip(times[::2], times[1::2]))
    whole = max(ended, times[-1]) - min(began, times[0])
    return (whole - inside) / whole


def start(build):
    """From the start of the process to its window on the screen, warm: the median of five."""
    times = []
    with driver.Session(build, *HD) as session:
        for _ in range(6):
            began = time.monotonic()
            process = session.start("start", [session.build / driver.BINARY])
            subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--pid",
                            str(process.pid), "--name", "Tovarel"], env=session.environment,
                           check=True, capture_output=True, timeout=driver.PATIENCE)
            times.append(time.monotonic() - began)
            process.terminate()
            process.wait()
    return statistics.median(times[1:])


# name: what it is, how it is measured, its bar, whether more is better
MEASURES = {
    "frames": ("distinct frames / due, 1080p 30/s, large window",
               distinct_frames(HD, (1400, 700), 60, 30), 0.98, True),
    "frames-4k": ("distinct frames / due, 4K 30/s, all changing",
                  distinct_frames(UHD, UHD, 45, 30), 0.98, True),
    "frames-60-small": ("distinct frames / due, 1080p 60/s, little changing",
                        distinct_frames(HD, (300, 150), 90, 60), 0.98, True),
    "frames-60": ("distinct frames / due, 1080p 60/s, all changing",
                  distinct_frames(HD, HD, 90, 60), 0.98, True),
    "grabber": ("recording / plain grabber, processor, typing, 60/s", share_of_grabber, 0.5,
                False),
    "export": ("export outside the encoder / whole, 10 s 1080p", outside_encoder, 0.02, False),
    "start": ("start to window on the screen, seconds", start, 0.35, False),
}


def main(build, *names):
    missed = False
    for name in names or MEASURES:
        what, measure, bar, higher_is_better = MEASURES[name]
        value = measure(pathlib.Path(build))
        met = value >= bar if higher_is_better else value <= bar
        missed = missed or not met
        print(f"{what:<52} {value:6.3f}   bar {bar:.2f}{'' if met else '  MISSED'}", flush=True)
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
