# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Drives the real program as a user would: a virtual display with a window manager, the
accessibility bus to find and press controls, the pointer and the keys.

A Session is that display with everything on it, in a home of its own, so that nothing of the
user's is touched; a Program is one start of Tovarel in it. Nothing here waits for a fixed time:
every wait is for a condition and has a limit. The output of every process goes to a file in the
session's folder. One session in a process, since the accessibility library connects once.
"""

import contextlib
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import counter
from accessibility import (  # pylint: disable=unused-import; the tests find all of it here
    SCALE, act, atspi, bus_errors, content, desktop, extents, has_state, in_picture, is_enabled,
    middle, search)
from waiting import PATIENCE, Late, wait_for

BINARY = "tovarel"
COUNTER = "tests/system/counter_window"
# A button on each tab's page that no other page has.
PAGES = {"Record": "Region", "Cut": "Play", "GIF": "Generate GIF"}


C_LIBRARY = ctypes.CDLL(None)
PR_SET_PDEATHSIG = 1  # prctl(2)


def end_with_us():
    """Lets the kernel end the process when this one is gone, however that came."""
    C_LIBRARY.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class Session:
    """A display, a window manager and a message bus. To be used as a context manager; what was
    started in it is ended with it, whatever happened."""

    def __init__(self, build, width=800, height=600, depth=24):
        self.build = pathlib.Path(build).resolve()
        self.width, self.height, self.depth = width * SCALE, height * SCALE, depth
        self.display_options = []
        self.with_window_manager = True
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tovarel-"))
        self.home = self.folder / "home"
        self.documents = self.home / "Documents"
        self.frames = self.documents / "Pallomar"
        self.runtime = self.folder / "runtime"
        self.outputs = self.folder / "outputs"
        self.environment = {}
        self.children = []

    def __enter__(self):
        # A limit that strikes from outside must not leave anything behind either.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended by a signal"))
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, kind, _value, _trace):
        self.close(keep_outputs=kind is not None)

    def _start(self):
        for folder in (self.home, self.documents, self.outputs):
            folder.mkdir()
        self.runtime.mkdir(mode=0o700)
        self.environment = {
            "HOME": str(self.home),
            "LC_ALL": os.environ.get("TOVAREL_TEST_LOCALE", "C.UTF-8"),
            "PATH": os.environ["PATH"],
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_SCALE_FACTOR": str(SCALE),
            "TMPDIR": str(self.folder),
            "XDG_RUNTIME_DIR": str(self.runtime),
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LOCPATH", "TZ"):
            if name in os.environ:
                self.environment[name] = os.environ[name]
        self.environment["DISPLAY"] = self.start_display("Xvfb")
        bus = self.announce(
            "dbus-daemon", lambda end: ["dbus-daemon", "--session", "--nofork", "--nopidfile"]
            + [f"--print-address={end}"])
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus
        if self.with_window_manager:
            # It forgets a window that asks to be shown while it starts, so neither its process nor
            # its properties on the root window are enough to go by.
            started = self.folder / "window-manager-started"
            self.start("openbox", ["openbox", "--startup", f"touch {started}"])
            wait_for("the window manager", started.exists)
        # The accessibility library reads the environment of this process.
        for name in [name for name in os.environ if name.startswith("XDG_")]:
            del os.environ[name]
        os.environ.update(self.environment)

    def start_display(self, name):
        """Starts a display: its name in DISPLAY. The server looks for a free number itself."""
        screen = f"{self.width}x{self.height}x{self.depth}"
        return ":" + self.announce(
            name, lambda end: ["Xvfb", "-displayfd", str(end), "-screen", "0", screen]
            + ["-nolisten", "tcp", "-noreset", *self.display_options])

    def announce(self, name, command):
        """Starts a server that writes one line to an open file once it is ready: that line."""
        read, write = os.pipe()
        try:
            self.start(name, command(write), pass_fds=(write,))
        finally:
            os.close(write)
        with open(read, encoding="utf-8") as answer:
            line = answer.readline().strip()
        if not line:
            raise AssertionError(f"{name} did not start:\n{self.output(name)}")
        return line

    def start(self, name, command, environment=None, **options):
        """Starts a process in the session; its output goes to outputs/NAME.log."""
        options.setdefault("stdin", subprocess.DEVNULL)
        with open(self.outputs / f"{name}.log", "ab") as output:
            self.children.append(subprocess.Popen(
                command, stdout=output, stderr=output, preexec_fn=end_with_us,
                env={**self.environment, **(environment or {})}, **options))
        return self.children[-1]

    def output(self, name):
        return (self.outputs / f"{name}.log").read_text(encoding="utf-8", errors="replace")

    def xdotool(self, *arguments, check=True):
        """What xdotool answers; it moves the pointer and presses keys like a user's hand."""
        done = subprocess.run(
            ["xdotool", *map(str, arguments)], env=self.environment, text=True, check=False,
            stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE)
        if check and done.returncode:
            raise AssertionError(f"xdotool {arguments}: {done.stderr}")
        return done.stdout.strip() if done.returncode == 0 else ""

    def picture(self):
        """What the screen shows, without the pointer."""
        raw = subprocess.run(
            ["ffmpeg", "-v", "error", "-f", "x11grab", "-draw_mouse", "0"]
            + ["-video_size", f"{self.width}x{self.height}", "-i", self.environment["DISPLAY"]]
            + ["-frames:v", "1", "-f", "rawvideo", "-pix_fmt", "rgb24", "-"],
            check=True, stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE).stdout
        return counter.Picture(self.width, self.height, raw)

    @contextlib.contextmanager
    def x11(self):
        """The X library, and a connection of this process to the display."""
        library = ctypes.CDLL("libX11.so.6")
        library.XOpenDisplay.restype = ctypes.c_void_p
        library.XInternAtom.restype = library.XGetSelectionOwner.restype = ctypes.c_ulong
        library.XDefaultRootWindow.restype = ctypes.c_ulong
        display = ctypes.c_void_p(library.XOpenDisplay(self.environment["DISPLAY"].encode()))
        try:
            yield library, display
        finally:
            library.XCloseDisplay(display)

    def composited(self):
        """Whether a compositing manager has the display: whether the selection has an owner."""
        with self.x11() as (library, display):
            atom = ctypes.c_ulong(library.XInternAtom(display, b"_NET_WM_CM_S0", 0))
            return library.XGetSelectionOwner(display, atom) != 0

    def counter(self, *options):
        """Starts the window with the known picture; its place on the screen, as
        (x, y, width, height) without the frame."""
        name = f"counter-{len(list(self.outputs.iterdir()))}"
        self.start(name, [self.build / COUNTER, *options])
        lines = wait_for("the counter's window", lambda: self.output(name).split("\n")[:-1])
        return tuple(int(number) for number in lines[-1].split())

    def processes(self, name=None):
        """Numbers of the living processes that were started in this session, by anyone."""
        mark = f"HOME={self.home}".encode()
        # A process of ours that was killed is a zombie as soon as its first thread has ended; files
        # and locks are given back by the last one, and only then can it be waited for.
        ending = {child.pid for child in self.children if child.poll() is None}
        found = []
        for entry in pathlib.Path("/proc").iterdir():
            if not entry.name.isdigit() or int(entry.name) == os.getpid():
                continue
            try:
                ours = mark in (entry / "environ").read_bytes().split(b"\0")
                stat = (entry / "stat").read_text(encoding="utf-8", errors="replace")
            except OSError:
                continue
            command, state = stat[stat.index("(") + 1 :].rsplit(") ", 1)
            living = ours and not state.startswith("Z")
            if (living or int(entry.name) in ending) and name in (None, command):
                found.append(int(entry.name))
        return found

    def close(self, keep_outputs=False):
        for wanted in (signal.SIGTERM, signal.SIGKILL):
            end = time.monotonic() + 3
            while self.processes() and time.monotonic() < end:
                for number in self.processes():
                    try:
                        os.kill(number, wanted)
                    except ProcessLookupError:
                        pass
                time.sleep(0.05)
        if keep_outputs:
            for path in sorted(self.outputs.glob("tovarel*.log")):
                print(f"--- {path.name}\n{self.output(path.stem)[-4000:]}", flush=True)
        shutil.rmtree(self.folder, ignore_errors=True)


class Program:
    """One start of the program. A control is found by its role and its accessible name, among what
    is on the screen: what a user sees of it."""

    _count = 0

    def __init__(self, session, environment=None, wait=True):
        self.session = session
        Program._count += 1
        self.log = f"tovarel-{Program._count}"
        self.process = session.start(self.log, [session.build / BINARY], environment)
        if wait:
            wait_for("the main window", lambda: self.ended() or self.frame())
            assert not self.ended(), f"ended at start with {self.process.poll()}:\n{self.output()}"

    # The process -----------------------------------------------------------------------------

    def output(self):
        return self.session.output(self.log)

    def ended(self):
        return self.process.poll() is not None

    def status(self):
        """The exit status, once the program has ended by itself."""
        return wait_for("the end of the program", lambda: self.ended() and [self.process.poll()])[0]

    def end(self):
        if not self.ended():
            self.process.terminate()
        return self.status()

    # Finding ---------------------------------------------------------------------------------

    def root(self):
        """The program on the accessibility bus, or None before it is there."""
        for index in range(desktop().get_child_count()):
            try:
                child = desktop().get_child_at_index(index)
                if child and child.get_process_id() == self.process.pid:
                    return child
            except bus_errors():
                continue
        return None

    def walk(self, role, name=None, showing=True):
        """The controls with this role and name, where given, nearest to the root first. What is not
        on the screen is passed over with everything in it, unless `showing` is false."""
        root = self.root()
        return search(root, role, name, showing) if root else iter(())

    def all(self, role, name=None, showing=True):
        return list(self.walk(role, name, showing))

    def find(self, role, name=None):
        return next(self.walk(role, name), None)

    def await_control(self, role, name=None, patience=PATIENCE):
        return self.wait_for(f"{role} {name or ''}", lambda: self.find(role, name), patience)

    def wait_for(self, what, condition, patience=PATIENCE):
        """The same, and what is on the screen if it does not happen."""
        try:
            return wait_for(what, condition, patience)
        except Late as late:
            raise Late(f"{late}; on the screen: {self.describe()}") from None

    def describe(self):
        """Role and name of everything that is on the screen."""
        seen = [f"{item.get_role_name()} {item.get_name()!r}" for item in self.walk(None)
                if item.get_name()]
        return ", ".join(seen) or "nothing"

    def button(self, name):
        return self.await_control("push button", name)

    # Doing -----------------------------------------------------------------------------------

    def press(self, name, patience=PATIENCE):
        """Presses a button as assistive technology does, once it may be pressed."""
        item = self.wait_for(
            f"button {name} to be pressable",
            lambda: next(filter(is_enabled, self.walk("push button", name)), None), patience)
        act(item)

    def choose(self, *path):
        """Chooses from the menu bar with the pointer: the titles of the menus, then the item's."""
        item = self.await_control("menu bar")
        for title in path:
            item = self.wait_for(
                f"menu item {title}",
                lambda title=title, above=item: next(search(above, "menu item", title), None))
            self.click(item)

    def ask_for_tab(self, name):
        """Asks for a tab as assistive technology does; it may be refused."""
        act(self.await_control("page tab", name))

    def shown_tab(self):
        """The tab whose page is on the screen."""
        return next((tab for tab, button in PAGES.items() if self.find("push button", button)), None)

    def await_tab(self, name, patience=PATIENCE):
        self.wait_for(f"tab {name}", lambda: self.shown_tab() == name, patience)

    def enter(self, name):
        self.ask_for_tab(name)
        self.await_tab(name)

    def enabled(self, name):
        """Whether the button that is shown under this name may be pressed."""
        return is_enabled(self.button(name))

    def labels(self):
        """Everything that stands as text in the window."""
        return [content(item) for item in self.all("label")]

    def click(self, item, button=1):
        """Clicks the middle of a control with the pointer."""
        x, y = middle(item)
        self.session.xdotool("mousemove", "--sync", x, y, "click", button)

    def frame(self):
        """The main window, whose title ends with the program's name and begins with what it is
        doing; None before it is there."""
        return next((item for item in self.walk("frame") if item.get_name().endswith("Tovarel")), None)

    def window(self):
        """The main window's number on the display."""
        return wait_for("the main window on the screen", lambda: self.session.xdotool(
            "search", "--onlyvisible", "--all", "--pid", self.process.pid, "--name", "(^|– )Tovarel$",
            check=False)).split()[0]

    def in_task_bar(self):
        """What a task bar can show of the window: its title and its icon's pixels."""
        title = self.session.xdotool("getwindowname", self.window())
        icon = subprocess.run(
            ["xprop", "-id", self.window(), "-notype", "32c", "_NET_WM_ICON"], check=True,
            env=self.session.environment, stdin=subprocess.DEVNULL, capture_output=True,
            timeout=PATIENCE).stdout
        return title, icon

    def place(self):
        """Where the main window lies on the screen, without its frame."""
        return extents(wait_for("the main window", self.frame))

    def recording_for(self, seconds):
        """Lets a recording that was just asked for grow: its length is what takes the time."""
        self.wait_for("the recording to run", lambda: self.enabled("Stop") and self.enabled("Pause"))
        time.sleep(seconds)

    def record(self, seconds):
        """Record, Stop, and the frames saved: ends on the Cut tab."""
        self.press("Record")
        self.recording_for(seconds)
        self.press("Stop")
        self.await_tab("Cut")

    def alert(self, patience=PATIENCE):
        """The texts of the alert that is up, once there is one, in one string."""
        item = self.await_control("alert", patience=patience)
        return "\n".join([item.get_name(), *(content(label) for label in search(item, "label"))])

    def dismiss_alert(self, wanted):
        """Closes the alert, which has to say what is wanted: its texts."""
        said = self.alert()
        assert wanted in said, f"expected {wanted!r}, the alert says {said!r}"
        self.press("Close")
        self.wait_for("the alert to close", lambda: not self.find("alert"))
        return said

    def save_panel(self, path, replace=False, patience=PATIENCE, kind="GIF"):
        """Types the path into the save panel and confirms it, once more if a file is replaced."""
        panel_title = f"Select a folder to save the {kind} image"
        panel = self.await_control("dialog", panel_title, patience)
        field = wait_for("the panel's name field", lambda: next(search(panel, "text"), None))
        wait_for("a preset name", lambda: content(field) == f"output.{kind.lower()}")
        field.set_text_contents(str(path))
        wait_for("the path in the field", lambda: content(field) == str(path))
        self.press("Save")
        if replace:
            self.press("Yes")
        self.wait_for("the panel to close", lambda: not self.find("dialog", panel_title))
