# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""How long files play against how long was recorded: durations.py BUILD [START...]

A table of recordings through the program's own interface: rates, lengths, with and without a pause,
one after another in one start and first in one, with rates and speeds of their own, as GIF and as
WebP; all of them, or those of some starts of the program by their numbers. Ends with status 1 when a
file is off by more than 2 % or one frame's time, or shows other frames than it should. With --short only the
first recording of each start is made, and none is judged.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import driver  # noqa: E402  pylint: disable=wrong-import-position
from lengths import COUNTS, Take, measure  # noqa: E402  pylint: disable=wrong-import-position

SCREEN = (800, 600)
# The short form checks that it still works, and nothing that a busy machine changes.
SHORT = "--short" in sys.argv
# Each inner list is one start of the program.
STARTS = (
    [Take(5, (3.4,)), Take(10, (3.4,)), Take(5, (6.7,)), Take(60, (4.8,)), Take(1, (6.0,)),
     Take(50, (3.0,)), Take(15, (10.0,)), Take(30, (2.0,))],
    [Take(1, (10.0,)), Take(24, (2.0, 2.5)), Take(5, (1.3, 2.4)), Take(60, (1.5, 1.5)),
     Take(10, (2.0, 1.0, 1.5)), Take(15, (1.1, 1.9), kind="WebP")],
    [Take(30, (4.0,), custom=10), Take(10, (4.0,), custom=30), Take(24, (4.0,), speed=2),
     Take(15, (3.0,), speed=0.25), Take(60, (3.0,), speed=4), Take(50, (3.0,), custom=60),
     Take(30, (3.0,), custom=15, speed=1.5), Take(5, (5.0,), custom=5, speed=0.5)],
    [Take(60, (3.0,), kind="WebP"), Take(5, (4.0,), kind="WebP"),
     Take(24, (3.0,), speed=4, kind="WebP"), Take(50, (3.0,), custom=20, kind="WebP"),
     Take(1, (5.0,), kind="WebP"), Take(30, (3.0,), custom=60, speed=2, kind="WebP")],
)


def report(take, measured):
    parts = "+".join(map(str, take.parts))
    print(f"{take.kind:4}  {take.rate:4}  {take.custom or '':>6}  {take.speed:5}  {parts:15}"
          f"  {measured.recorded:8.3f}  {measured.stored:6}  {measured.frames:6}"
          f"  {measured.played:6.2f}  {measured.ratio(take.speed):.3f}  {measured.repeated:5}"
          f"  {measured.skipped:4}{'' if measured.good(take.speed) else '  MISSED'}", flush=True)


def main(build, *words):
    starts = [word for word in words if word != "--short"]
    good = True
    print("kind  rate  custom  speed  parts            recorded  stored  frames  played  ratio"
          "  twice  gaps")
    with driver.Session(build, *SCREEN, quality="balanced") as session:
        place = driver.in_picture(session.counter(
            "--at", "40,60", "--size", "270x120", "--rate", str(COUNTS)))
        for start in map(int, starts or range(len(STARTS))):
            program = driver.Program(session)
            for index, take in enumerate(STARTS[start][:1] if SHORT else STARTS[start]):
                measured = measure(program, place, take, f"take {start} {index}")
                good = good and (SHORT or measured.good(take.speed))
                report(take, measured)
            program.end()
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
