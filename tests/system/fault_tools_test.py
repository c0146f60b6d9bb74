# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""An encoder that cannot be started, gives up half-way, is killed, talks without end or lacks a
filter, in each of its runs; no room for what it writes; folders that are taken away meanwhile. The
user is told once, and the same recording can be exported right after."""

import os
import shutil
import signal
import subprocess

import case
import counter
import disk_test
from case import REAL, RUNS, STAND_STILL, STILL, in_run
from driver import Program, wait_for

LAST = 'for last; do :; done\n'
TALK = "yes 'frame=1 time=00:00:01.00 \\r' | head -c 4000000"


class FaultyTools(case.Case):
    def start(self, environment):
        self.session.counter("--at", "60,80")
        self.target = self.session.home / "mine.gif"
        self.target.unlink(missing_ok=True)
        self.program = Program(self.session, environment)
        self.program.record(1.5)
        self.program.enter("GIF")

    def check_export(self, replace=False):
        """The export works, to the same file as ever."""
        self.check_gif(self.program, self.target, replace)

    def check_refusal(self, *words):
        said = self.program.dismiss_alert("Error")
        for word in words:
            self.assertIn(word, said)
        self.assertTrue(self.program.enabled("Generate GIF"))
        self.assertIsNone(self.program.find("dialog"), "a sheet or a save panel is up")

    def test_a_tool_that_goes_wrong_in_any_run(self):
        self.start(self.stand_in(REAL))
        tool = self.session.folder / "stand-ins" / "ffmpeg"
        for run in RUNS:
            with self.subTest(f"half-way, run {run}"):
                self.stand_in(in_run(
                    run, f"{LAST} head -c 999 /dev/zero >\"$last\"; echo 'no more' >&2; exit 7"))
                self.program.press("Generate GIF")
                self.check_refusal("ffmpeg", "7", "no more")
            with self.subTest(f"killed, run {run}"):
                self.stand_in(in_run(run, STAND_STILL))
                self.program.press("Generate GIF")
                for number in wait_for("the tool", lambda: self.session.processes(STILL)):
                    os.kill(number, signal.SIGKILL)
                self.check_refusal("ffmpeg", "9")
        with self.subTest("not executable"):
            self.stand_in(REAL)
            tool.chmod(0o644)
            self.program.press("Generate GIF")
            self.check_refusal("ffmpeg")
        with self.subTest("without a filter"):
            # The real tool's own words about a filter that it was built without.
            names = ' '.join(f'-e s/{name}/no{name}/' for name in ("palettegen", "paletteuse"))
            for run, name in ((2, "nopalettegen"), (3, "nopaletteuse")):
                self.stand_in(in_run(run, "".join((
                    "n=$#; while [ $n -gt 0 ]; do a=$1; shift; ",
                    f'case $a in *,palettegen|*paletteuse) a=$(echo "$a" | sed {names});; esac; ',
                    'set -- "$@" "$a"; n=$((n - 1)); done; exec real "$@"'))))
                self.program.press("Generate GIF")
                self.check_refusal("ffmpeg", name)
        with self.subTest("talking without end, in every run"):
            self.stand_in(f"{TALK}; {TALK} >&2\n{REAL}")
            self.check_export()
        self.stand_in(REAL)
        self.check_export(replace=True)
        self.assertEqual(self.program.end(), 0)

    def test_a_tool_that_was_never_found_is_named(self):
        self.start({"PATH": str(self.session.folder)})
        self.program.press("Generate GIF")
        self.check_refusal("ffmpeg")

    def test_no_room_for_what_is_staged_or_written(self):
        self.start(self.stand_in(REAL))
        # The disk fills up while an encoder is at work: what it began to write stays a part.
        folders = [self.session.documents / name for name in ("PallomarPallete", "PallomarExport")]
        for folder in folders:
            subprocess.run(["mount", "-t", "tmpfs", "-o", "size=2m", "none", folder], check=True)
        try:
            for run in RUNS:
                with self.subTest(f"run {run}"):
                    self.stand_in(in_run(run, f"{LAST} cat /dev/zero >\"${{last%/*}}/ballast\";"))
                    self.program.press("Generate GIF")
                    self.check_refusal("ffmpeg", "space")
                    for folder in folders:
                        (folder / "ballast").unlink(missing_ok=True)
            self.stand_in(REAL)
            self.check_export()
            self.target.unlink()
        finally:
            for folder in folders:
                subprocess.run(["umount", folder], check=True)
        for name in ("PallomarPallete", "PallomarExport"):
            folder = self.session.documents / name
            # Two pages of a file system, its root among them.
            subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8k", "none", folder], check=True)
            try:
                with self.subTest(name):
                    self.program.press("Generate GIF")
                    self.check_refusal("ffmpeg")
            finally:
                subprocess.run(["umount", folder], check=True)
            self.check_export()
            self.target.unlink()
        self.assertEqual(self.program.end(), 0)

    def test_no_room_for_what_the_program_encodes_itself(self):
        self.start(self.stand_in(None))  # which needs no tool
        self.program.choose_quality("Best")
        folder = self.session.documents / "PallomarExport"
        subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8k", "none", folder], check=True)
        try:
            self.program.press("Generate GIF")
            self.check_refusal("output.gif", "space")
            self.assertEqual(list(folder.iterdir()), [], "room for the next one")
        finally:
            subprocess.run(["umount", folder], check=True)
        # Neither the folders nor the recording's files are needed.
        for each in (folder, self.session.documents / "PallomarPallete", self.session.frames):
            shutil.rmtree(each)
        self.program.press("Generate GIF")
        self.program.save_panel(self.target)
        self.program.dismiss_alert("Success")
        self.assertGreater(len(counter.decode(str(self.target))), 3)
        self.assertEqual(self.program.end(), 0)

    def test_folders_that_are_taken_away(self):
        self.start(self.stand_in(REAL))
        program = self.program
        for name in ("PallomarPallete", "PallomarExport"):
            shutil.rmtree(self.session.documents / name)
        self.check_export()
        shutil.rmtree(self.session.frames)
        program.press("Generate GIF")
        self.check_refusal("ffmpeg")
        program.enter("Record")
        program.press("Record")
        program.recording_for(1)
        shutil.rmtree(self.session.documents)
        self.session.documents.mkdir()
        program.press("Stop")
        program.await_tab("Cut")
        program.enter("GIF")
        self.assertGreaterEqual(len(self.frame_files()), 3)
        self.check_export(replace=True)
        self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    disk_test.in_own_mount_space()
    case.main()
