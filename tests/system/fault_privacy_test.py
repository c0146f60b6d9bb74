# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the program and its encoders ask the system for, from the start over a recording and both
exports to the end: no network, no file written anywhere but in the working folders, in the place that
the user chose and in the program's own settings, and no new file whose name somebody else could have
laid there before."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

import case
import driver
from driver import Program

CALLS = "socket,open,openat,creat,rename,renameat,renameat2,link,linkat,symlink,symlinkat," \
        "mkdir,mkdirat,mknod,mknodat,truncate,shmget"
# A call in the log: its name and arguments, with the number of the process in front.
CALL = re.compile(r"^\d+ +(\w+)\((.*)")
TEXT = re.compile(r'"((?:[^"\\\\]|\\\\.)*)"')


class Privacy(case.Case):
    def trace(self):
        """A build folder whose program is the traced one; the log of its calls."""
        folder = self.session.folder / "traced"
        folder.mkdir()
        log = folder / "calls"
        (folder / "tests").symlink_to(self.session.build / "tests")
        program = folder / driver.BINARY
        # The tracer steps aside (-D): the program stays the process that was started.
        program.write_text(
            f"#!/bin/sh\nexec strace -D -f -qq -s 4096 --seccomp-bpf -e trace={CALLS} -e signal=none"
            f" -o {log} {self.session.build / driver.BINARY}\n", encoding="utf-8")
        program.chmod(0o755)
        self.session.build = folder
        return log

    def test_nothing_goes_anywhere_else(self):
        self.session.counter("--at", "60,80")
        log = self.trace()
        # On another file system the result is written anew.
        shared = pathlib.Path("/dev/shm")
        chosen = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory(
            prefix="tovarel-", dir=shared if os.access(shared, os.W_OK) else None)))
        program = Program(self.session, {"ASAN_OPTIONS": "detect_leaks=0"})
        program.record(1.5)
        program.enter("GIF")
        for name, kind in (("classic.gif", "GIF"), ("mine.webp", "WebP"), ("own.gif", "GIF")):
            if name == "own.gif":
                program.choose_quality("Balanced")
            program.press(f"Generate {kind}")
            program.save_panel(chosen / name, kind=kind)
            program.dismiss_alert("Success")
        self.assertEqual(program.end(), 0)
        driver.wait_for("the end of the log", lambda: not self.session.processes("strace"))
        calls = [match.groups() for line in log.read_text(encoding="utf-8").splitlines()
                 if (match := CALL.match(line))]
        self.assertGreater(len(calls), 1000)
        self.check_sockets(calls)
        self.check_files(calls, chosen)

    def check_sockets(self, calls):
        families = {arguments.split(",")[0] for name, arguments in calls if name == "socket"}
        self.assertEqual(families, {"AF_UNIX"})

    def check_files(self, calls, chosen):
        places = [chosen, self.session.runtime, self.session.home / ".config",
                  *(self.session.documents / f"Pallomar{end}"
                    for end in ("", "Export", "Pallete", "Previous"))]
        seen = set()
        for name, arguments in calls:
            if name == "socket":
                continue
            if name == "shmget":
                self.assertRegex(arguments, r"IPC_PRIVATE.*0?600", "others could attach to it")
                continue
            if name.startswith("open") and not re.search("O_WRONLY|O_RDWR|O_CREAT", arguments):
                continue
            for text in TEXT.findall(arguments):
                # The one tool that is given relative paths runs in the documents' folder.
                path = pathlib.Path(os.path.normpath(self.session.documents / text))
                if re.match("/proc/self/fd/|/dev/(?!shm)", str(path)):
                    continue  # an open file by its number, and devices, which keep nothing
                [place] = [place for place in places if path.is_relative_to(place)][:1] or [None]
                self.assertIsNotNone(place, f"{name}({arguments}")
                seen.add(place)
                if place == chosen and "O_CREAT" in arguments:
                    self.assertIn("O_EXCL", arguments)
        self.assertLessEqual({chosen, *places[3:-1]}, seen, "the log does not show what was written")


if __name__ == "__main__":
    if subprocess.run(["strace", "-f", "true"], check=False, capture_output=True).returncode:
        print("skipped: nothing may be traced here")
        sys.exit(77)
    case.main()
