# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Shows the program at work where there is no display: demo.py BUILD OUTPUT

A virtual display, something moving on it, and the real program in front, worked through its own
interface with the pointer and the keys: Record, Stop, Cut, GIF, the save panel. Leaves the GIF at
OUTPUT and says what is in it.
"""

import pathlib
import sys

# What drives the program in the tests drives it here.
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import counter  # noqa: E402  pylint: disable=wrong-import-position
import driver  # noqa: E402  pylint: disable=wrong-import-position

RECORDED = 3  # seconds


def main(build, output):
    output = pathlib.Path(output).resolve()
    output.unlink(missing_ok=True)
    print("Starting a virtual display with a window manager and a moving picture", flush=True)
    with driver.Session(build, quality=None) as session:
        session.counter("--at", "200,160", "--size", "400x240", "--rate", "8")
        print("Starting Tovarel in front of it", flush=True)
        program = driver.Program(session)
        print(f"Record, and {RECORDED} seconds later Stop", flush=True)
        program.click(program.button("Record"))
        program.recording_for(RECORDED)
        program.click(program.button("Stop"))
        program.await_tab("Cut")
        print("Cut: the whole recording is kept", flush=True)
        program.click(program.await_control("page tab", "GIF"))
        program.await_tab("GIF")
        print("GIF: generating, in the size and at the rate of the recording", flush=True)
        program.click(program.button("Generate GIF"))
        program.save_panel(output)
        program.dismiss_alert("Success")
        program.choose("Tovarel", "Quit Tovarel")
        status = program.status()
        assert status == 0, f"Tovarel ended with status {status}"
    pictures = counter.decode(output)
    seconds = sum(counter.durations(output))
    print(f"{output}: {len(pictures)} frames of {pictures[0].width}x{pictures[0].height}, "
          f"{seconds:.1f} seconds, {output.stat().st_size // 1024} KB")


if __name__ == "__main__":
    main(*sys.argv[1:])
