# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Record, Pause and Stop from other windows: where the display grants the keys, and where not."""

import contextlib
import ctypes

import case
from driver import Program, wait_for

CONTROL, MOD4 = 1 << 2, 1 << 6  # X11 protocol, KEYBUTMASK
SYNCHRONOUS, ASYNCHRONOUS = 0, 1
ANY_MODIFIER = 1 << 15
NEXT_EVENT, REPLAY = 4, 5  # AllowEvents: SyncKeyboard, ReplayKeyboard
SUPER_L = 0xffeb


class DesktopKeys(case.Case):
    def start(self):
        """The program with the window of another one in focus, which hears every other key."""
        self.session.counter("--at", "40,60", "--size", "300x200")
        program = Program(self.session)
        own = program.window()
        other = self.session.xdotool("search", "--onlyvisible", "--name", "^counter$").split()[0]
        self.session.xdotool("windowactivate", "--sync", other)
        self.assertNotEqual(self.session.xdotool("getactivewindow"), own)
        return program

    def press(self, letter):
        self.session.xdotool("key", f"super+ctrl+{letter}")

    @contextlib.contextmanager
    def taken(self, letter):
        """Another client that has the key already."""
        with self.session.x11() as (x11, display):
            root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
            code = x11.XKeysymToKeycode(display, ctypes.c_ulong(ord(letter)))
            x11.XGrabKey(display, code, CONTROL | MOD4, root, 0, ASYNCHRONOUS, ASYNCHRONOUS)
            x11.XSync(display, 0)
            yield

    @contextlib.contextmanager
    def desktop_that_wants_super(self):
        """Another client that takes Super with whatever follows it: yields what answers it."""
        with self.session.x11() as (x11, display):
            root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
            x11.XGrabKey(display, x11.XKeysymToKeycode(display, ctypes.c_ulong(SUPER_L)),
                         ANY_MODIFIER, root, 0, ASYNCHRONOUS, SYNCHRONOUS)
            x11.XSync(display, 0)

            def answer(mode):
                wait_for("the key", lambda: x11.XPending(display))
                x11.XNextEvent(display, ctypes.create_string_buffer(192))
                x11.XAllowEvents(display, mode, ctypes.c_ulong(0))
                x11.XSync(display, 0)
            yield answer

    def test_they_work_when_super_goes_down_first_on_a_desktop_that_wants_it(self):
        program = self.start()
        with self.desktop_that_wants_super() as answer:
            for key, mode in (("super", NEXT_EVENT), ("ctrl", NEXT_EVENT), ("r", REPLAY)):
                self.session.xdotool("keydown", key)
                answer(mode)
            self.session.xdotool("keyup", "r", "keyup", "ctrl", "keyup", "super")
            program.wait_for("the recording", lambda: program.enabled("Pause"))

    def test_they_record_pause_and_stop_from_another_window_whatever_locks_are_on(self):
        program = self.start()
        self.assertIn("Shortcuts in any window, with Super+Ctrl: R Record · P Pause · S Stop",
                      program.labels())
        self.press("p")  # Nothing to pause yet.
        self.press("r")
        program.wait_for("the recording", lambda: program.enabled("Pause"))
        self.session.xdotool("key", "Caps_Lock")
        self.press("p")
        program.wait_for("the pause", lambda: program.enabled("Record"))
        self.assertTrue(program.enabled("Stop"))
        self.session.xdotool("key", "Num_Lock")
        self.press("r")
        program.recording_for(0.5)
        self.session.xdotool("key", "Caps_Lock")
        self.press("s")
        program.await_tab("Cut")
        self.session.xdotool("key", "Num_Lock")
        # The recording that is being cut is safe from a new one.
        self.press("r")
        self.session.xdotool("windowactivate", "--sync", program.window(), "key", "ctrl+1")
        program.await_tab("Record")
        self.assertFalse(program.enabled("Stop"))

    def test_for_a_key_that_another_client_has_there_is_another_and_the_user_is_told(self):
        with self.taken("p"):
            program = self.start()
            self.assertIn("Shortcuts in any window, with Super+Ctrl: R Record · A Pause · S Stop"
                          " – Already in use: P", program.labels())
            self.press("r")
            self.press("p")
            program.recording_for(1)
            self.press("a")
            program.wait_for("the pause", lambda: program.enabled("Record"))
            self.press("s")
            program.await_tab("Cut")


if __name__ == "__main__":
    case.main()
