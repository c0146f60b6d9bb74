# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the whole program manages, worked through its own interface: recording.py BUILD

Frames that hold a picture of their own against those that were due, on desktops that change; the
processor time of a recording with its preview on screen against a plain screen grabber's; what an
export takes beside its encoder; and how soon the window is there. Ends with status 1 when a bar is
missed. One line for each measure; `recording.py BUILD NAME...` takes only some of them, and --short
only a moment of each.
"""

import os
import pathlib
import re
import signal
import statistics
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import counter  # noqa: E402  pylint: disable=wrong-import-position
import driver  # noqa: E402  pylint: disable=wrong-import-position

HD = (1920, 1080)
UHD = (3840, 2160)
# The short form checks that a bench still works, and no bars.
SHORT = "--short" in sys.argv
LENGTH = 1 if SHORT else 6  # seconds of each recording
LOOKS = 20  # a second, at what is played
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


def distinct_frames(screen, size, changes, rate, length=LENGTH):
    """The share of the frames due, in the time between the first frame and the last, that show a
    picture of their own."""
    def measure(build):
        with driver.Session(build, *screen) as session:
            program = driver.Program(session)
            program.choose_rate(rate)
            # Only now: it covers what a pointer would click.
            inside = session.counter("--at", "0,0", "--size", "%dx%d" % size, "--rate",
                                     str(changes), "--unmanaged")
            program.press("Record")
            program.recording_for(length)
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
        program.choose_rate(60)
        program.press("Record")
        time.sleep(1)
        recording = used_in(session, LENGTH, program.process.pid) - alone
        program.press("Stop")
        program.await_tab("Cut", patience=120)
        frames = len(list(session.frames.glob("frame*.png")))
        program.end()
    assert SHORT or frames > 55 * LENGTH, f"only {frames} frames"
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
        path = f"{tools}:{session.environment['PATH']}"
        program = driver.Program(session, {"PATH": path})
        program.choose_rate(30)
        session.counter("--at", "0,0", "--size", "%dx%d" % HD, "--rate", "45", "--unmanaged")
        program.press("Record")
        program.recording_for(LENGTH if SHORT else 10)
        program.press("Stop")
        program.await_tab("Cut", patience=120)
        program.enter("GIF")
        program.press("Generate GIF")
        began = time.time()
        # Looked for seldom: the search takes processor time from the encoder.
        program.wait_for("the save panel", lambda: time.sleep(0.1) or program.find(
            "dialog", "Select a folder to save the GIF image"), 300)
        ended = time.time()
        times = [float(line) for line in (session.home / "encoder.times").read_text().split()]
        program.end()
    inside = sum(end - start for start, end in zip(times[::2], times[1::2]))
    between = times[-1] - times[0] - inside
    print(f"  (before {times[0] - began:.2f} s, encoder {inside:.2f} s, between its runs "
          f"{between:.2f} s, to the panel {ended - times[-1]:.2f} s)")
    return (ended - began - inside) / (ended - began)


def counter_place(picture, end):
    """Where in the picture the counter's window shows above this line, as counter.read wants it: its
    cells fill the lower half. None where it doesn't."""
    cells = [(x, y) for y in range(0, end, 2) for x in range(0, picture.width, 2)
             if picture.pixel(x, y) in counter.COLOURS]
    if not cells:
        return None
    left, right = min(x for x, _ in cells), max(x for x, _ in cells) + 2
    top, bottom = min(y for _, y in cells), max(y for _, y in cells) + 2
    place = left, 2 * top - bottom, right - left, 2 * (bottom - top)
    return None if counter.read(picture, *place) is None else place


def watch(session, place, seconds, meanwhile):
    """What the counter at this place of the screen shows, as (second, number), while something else
    is done; None where it could not be read."""
    x, y, width, height = place
    grabber = subprocess.Popen(
        ["ffmpeg", "-v", "error", "-f", "x11grab", "-draw_mouse", "0", "-framerate",
         str(LOOKS), "-video_size", f"{width}x{height}", "-i",
         f"{session.environment['DISPLAY']}+{x},{y}", "-t", str(seconds), "-f", "rawvideo",
         "-pix_fmt", "rgb24", session.folder / "watched"], env=session.environment,
        stdin=subprocess.DEVNULL)
    meanwhile()
    assert grabber.wait(seconds + 10) == 0
    data = (session.folder / "watched").read_bytes()
    size = width * height * 3
    pictures = [counter.Picture(width, height, data[at : at + size])
                for at in range(0, len(data), size)]
    return [(number / LOOKS, counter.read(picture, 0, 0, width, height))
            for number, picture in enumerate(pictures)]


def played(build):
    """Frames played against frames due, of a recording at 60 frames a second in which everything
    changes, while the window is being resized."""
    with driver.Session(build, *HD) as session:
        program = driver.Program(session)
        program.choose_rate(60)
        inside = session.counter("--at", "0,0", "--size", "%dx%d" % HD, "--rate", "90",
                                 "--unmanaged")
        program.press("Record")
        program.recording_for(LENGTH)
        program.press("Stop")
        program.await_tab("Cut", patience=240)
        rate = next(float(found[1]) for text in program.labels()
                    if (found := re.search(r"Frames: [\d,]+ · ([\d.]+)", text)))
        numbers = [counter.read(counter.decode(path)[0], *inside)
                   for path in sorted(session.frames.glob("frame*.png"))]
        for number in session.processes("counter_window"):
            os.kill(number, signal.SIGTERM)
        # Below the preview the strip shows the same pictures.
        strip = min(driver.extents(handle).y for handle in program.all("slider"))
        place = program.wait_for("the preview", lambda: counter_place(session.picture(), strip))
        window = program.window()
        size = program.place()

        def resize():
            time.sleep(2)
            for step in range(60):
                session.xdotool("windowsize", window, size.width + 8 * (step % 20),
                                size.height + 4 * (step % 20))
                time.sleep(0.05)
            session.xdotool("windowsize", window, size.width, size.height)

        program.press("Play")
        seen = [(second, numbers.index(number)) for second, number in watch(session, place, 9, resize)
                if number in numbers]
        program.end()
    (began, first), (ended, last) = seen[0], seen[-1]
    assert ended - began > (0 if SHORT else 7), "the playback could not be read"
    due = (ended - began) * rate
    behind = (first + due - last) % len(numbers)
    if behind > len(numbers) / 2:
        behind -= len(numbers)
    print(f"  ({due:.0f} frames of {len(numbers)} due in {ended - began:.1f} s, {behind:.1f} behind)")
    return (due - behind) / due


def start(build):
    """From the start of the process to its window on the screen, warm: the median of five."""
    times = []
    with driver.Session(build, *HD) as session:
        for _ in range(6):
            began = time.monotonic()
            process = session.start("start", [session.build / driver.BINARY])
            while not session.xdotool("search", "--onlyvisible", "--all", "--pid", process.pid,
                                      "--name", "^Tovarel$", check=False):
                time.sleep(0.005)
            times.append(time.monotonic() - began)
            process.terminate()
            process.wait()
    return statistics.median(times[1:])


# name: what it is, how it is measured, its bar, whether more is better
MEASURES = {
    "frames": ("distinct frames / due, 1080p 30/s, large window",
               distinct_frames(HD, (1400, 700), 60, 30), 0.98, True),
    "frames-4k": ("distinct frames / due, 4K 30/s, all changing",
                  distinct_frames(UHD, UHD, 45, 30, length=3), 0.98, True),
    "frames-60-small": ("distinct frames / due, 1080p 60/s, little changing",
                        distinct_frames(HD, (300, 150), 90, 60), 0.98, True),
    "frames-60": ("distinct frames / due, 1080p 60/s, all changing",
                  distinct_frames(HD, HD, 90, 60), 0.98, True),
    "grabber": ("recording / plain grabber, processor, typing, 60/s", share_of_grabber, 0.5,
                False),
    "export": ("export outside the encoder / whole, 10 s 1080p 30/s", outside_encoder, 0.02, False),
    "played": ("frames played / due, 1080p 60/s, all changing, resized", played, 0.98, True),
    "start": ("start to window on the screen, seconds", start, 0.35, False),
}

# One of each kind: those that are left out differ by their sizes and rates only.
SHORT_FORM = ("frames", "grabber", "export", "played", "start")


def report(build, name):
    """Takes one measure and prints its line. Whether its bar was met."""
    what, measure, bar, higher_is_better = MEASURES[name]
    value = measure(pathlib.Path(build))
    met = value >= bar if higher_is_better else value <= bar
    if SHORT:
        print(f"{what:<52} {value:6.3f}", flush=True)
        return True
    print(f"{what:<52} {value:6.3f}   bar {bar:.2f}{'' if met else '  MISSED'}", flush=True)
    return met


def main(build, *words):
    names = [word for word in words if word != "--short"]
    if len(names) == 1:
        return 0 if report(build, names[0]) else 1
    # A process may have one session only (see session.py), so each measure gets one of its own.
    runs = [subprocess.run([sys.executable, "-B", __file__, build, name]
                           + ["--short"] * SHORT, check=False)
            for name in names or (SHORT_FORM if SHORT else MEASURES)]
    return 1 if any(run.returncode for run in runs) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
