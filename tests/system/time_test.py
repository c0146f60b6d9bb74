# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What is exported lasts as long as what happened, at any rate and speed, one recording after
another in one start. bench/durations.py measures many more."""

import case
import driver
from driver import Program
from lengths import COUNTS, Take, measure

TAKES = (
    Take(5, (3.4,)),  # the first one of a start
    Take(60, (2.5,)),
    Take(10, (1.3, 1.6)),
    Take(24, (2.2,), custom=10, speed=2),
    Take(15, (2.2,), custom=30, speed=0.5, kind="WebP"),
)


class Time(case.Case):
    def test_files_play_as_long_as_was_recorded(self):
        place = driver.in_picture(
            self.session.counter("--at", "40,60", "--size", "270x120", "--rate", str(COUNTS)))
        self.session.remember_quality("balanced")
        program = Program(self.session)
        for index, take in enumerate(TAKES):
            with self.subTest(take):
                measured = measure(program, place, take, f"take {index}")
                self.assertTrue(measured.good(take.speed), measured)
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    case.main()
