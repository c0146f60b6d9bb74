# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""An encoder that fails, crashes, writes nothing or is missing: the user is told, and the next
export with the real one works."""

import case
import counter
from driver import Program

# What stands in for ffmpeg, and what the alert has to say besides its name.
THIRD_RUN_ONLY = 'case "$*" in *paletteuse*) ;; *) exec real "$@" ;; esac\n'
STAND_INS = {
    "failing": ("echo 'the moon is in the way' >&2; exit 3", ["3", "the moon is in the way"]),
    "failing in the run with progress": (
        THIRD_RUN_ONLY + "echo 'out of colours' >&2; exit 4", ["4", "out of colours"]),
    "crashing": ("kill -SEGV $$", []),
    "crashing in the run with progress": (THIRD_RUN_ONLY + "kill -SEGV $$", []),
    "silent": ("exit 0", []),
    "silent in the run with progress": (THIRD_RUN_ONLY + "exit 0", []),
    "missing": (None, []),
}


class Tools(case.Case):
    def test_a_tool_that_goes_wrong_is_named_and_the_next_export_works(self):
        self.session.counter("--at", "60,80")
        program = Program(self.session, self.stand_in('exec real "$@"'))
        program.record(1.5)
        program.enter("GIF")
        for name, (script, words) in STAND_INS.items():
            with self.subTest(name):
                self.stand_in(script)
                program.press("Generate GIF")
                self.check_refusal(program, words)
        self.stand_in('exec real "$@"')
        self.check_export(program)

    def test_a_tool_that_was_never_found_is_named(self):
        self.session.counter("--at", "60,80")
        program = Program(self.session, {"PATH": str(self.session.folder)})
        program.record(1.5)
        program.enter("GIF")
        program.press("Generate GIF")
        self.check_refusal(program, [])

    def check_refusal(self, program, words):
        said = program.dismiss_alert("Error")
        for word in ["ffmpeg", *words]:
            self.assertIn(word, said)
        # Whatever comes after the alert is there when the export's button can be pressed again.
        self.assertTrue(program.enabled("Generate GIF"))
        self.assertIsNone(program.find("dialog"), "a sheet or a save panel is up")

    def check_export(self, program):
        target = self.session.home / "new.gif"
        program.press("Generate GIF")
        program.save_panel(target)
        program.dismiss_alert("Success")
        self.assertEqual(len(counter.decode(str(target))), len(list(self.session.frames.iterdir())))


if __name__ == "__main__":
    case.main()
