# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Takes the pictures of the window that software centers show: screenshots.py BUILD FOLDER

A virtual display with something moving on it, the real program worked through its own interface,
and a picture of its window on each of the three tabs: record.png, cut.png and gif.png in FOLDER.
"""

import pathlib
import subprocess
import sys

# What drives the program in the tests drives it here.
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import driver  # noqa: E402  pylint: disable=wrong-import-position

RECORDED = 3  # seconds
SIZE = (960, 620)  # of the window, in pixels


def take(session, program, target):
    """A picture of the window as the desktop shows it, without its frame."""
    left, top, width, height = program.place()
    subprocess.run(
        ["ffmpeg", "-v", "error", "-y", "-f", "x11grab", "-draw_mouse", "0"]
        + ["-video_size", f"{width}x{height}"]
        + ["-i", f"{session.environment['DISPLAY']}+{left},{top}", "-frames:v", "1", target],
        check=True, stdin=subprocess.DEVNULL, timeout=driver.PATIENCE)
    print(target)


def main(build, folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    with driver.Session(build, 1600, 900, quality=None) as session:
        session.counter("--at", "60,60", "--size", "1480x780", "--rate", "8")
        program = driver.Program(session)
        session.xdotool("windowsize", "--sync", program.window(), *SIZE)
        program.click(program.button("Record"))
        program.recording_for(1)
        take(session, program, folder / "record.png")
        program.recording_for(RECORDED)
        program.click(program.button("Stop"))
        program.await_tab("Cut")
        take(session, program, folder / "cut.png")
        program.enter("GIF")
        take(session, program, folder / "gif.png")
        program.end()


if __name__ == "__main__":
    main(*sys.argv[1:])
