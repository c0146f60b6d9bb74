# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A disk that is full: the user is told what is missing, and the program stays usable. Runs in a mount
space of its own, where a small disk can be had."""

import os
import re
import subprocess
import sys

import case
from driver import Program, wait_for

# A few frames of the known picture fit, not a whole recording.
SMALL_DISK = 64  # KB


class Disk(case.Case):
    def said(self, program):
        """What the status line says of missing frames: how many, and of how many."""
        return next((match for text in program.labels()
                     if (match := re.search(r"\b(\d+) of (\d+) frames? could", text))), None)

    def check_missing(self, program, saves=1):
        """The status line says how many frames of how many are missing: the truth."""
        wait_for("the save to end", lambda: program.output().count(str(self.session.frames)) >= saves)
        said = wait_for("the status line", lambda: self.said(program))
        missing, total = int(said[1]), int(said[2])
        self.assertGreater(missing, 0)
        self.assertEqual(missing, total - len(self.frame_files()), said.string)
        self.assertIn(str(self.session.frames), said.string)

    def test_a_full_disk(self):
        self.session.counter("--at", "60,80")
        program = Program(self.session)
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={SMALL_DISK}k", "none",
                        self.session.frames], check=True)
        try:
            program.record(5)
            self.check_missing(program)
            self.assertEqual(sorted(path.suffix for path in self.session.frames.iterdir()),
                             [".png"] * len(list(self.session.frames.iterdir())))
            # Still no room; then there is, and not a frame has been lost.
            program.press("Save Again")
            self.check_missing(program, saves=2)
            total = self.said(program)[2]
            subprocess.run(["mount", "-o", "remount,size=1g", self.session.frames], check=True)
            program.press("Save Again")
            program.wait_for("the whole recording", lambda: not self.said(program))
            self.assertEqual(len(self.frame_files()), int(total))
            self.assertTrue(program.enabled("Play"))
            self.assertIsNone(program.find("push button", "Save Again"))
        finally:
            subprocess.run(["umount", self.session.frames], check=True)
        self.check_usable(program)

    def check_usable(self, program):
        program.enter("Record")
        program.record(1.5)
        self.assertTrue(program.enabled("Play"))
        self.assertGreater(len(self.frame_files()), 0)
        self.assertIsNone(self.said(program))
        self.assertEqual(program.end(), 0)


def in_own_mount_space():
    """Starts this file again where mounting is allowed and seen by nobody else."""
    if os.environ.get("OWN_MOUNT_SPACE"):
        return
    # The second one is for a changed root (a build's bare system): such a root is no mount of its
    # own, and what does not spread from it cannot be told to.
    ways = (["unshare", "--mount", "--map-root-user"],) if os.geteuid() else (
        ["unshare", "--mount"], ["unshare", "--mount", "--propagation", "unchanged"])
    for way in ways:
        if subprocess.run([*way, "true"], check=False, capture_output=True).returncode == 0:
            os.environ["OWN_MOUNT_SPACE"] = "1"
            os.execvp(way[0], [*way, sys.executable, "-B", *sys.argv])
    print("skipped: no mount space of its own is allowed here")
    sys.exit(77)


if __name__ == "__main__":
    in_own_mount_space()
    case.main()
