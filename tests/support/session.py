# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A Session is a virtual display with everything on it, in a home of its own, so that nothing of the
user's is touched. The output of every process goes to a file in the session's folder. One session in
a process, since the accessibility library connects once."""

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
from accessibility import SCALE
from waiting import PATIENCE, wait_for

COUNTER = "tests/support/counter_window"
C_LIBRARY = ctypes.CDLL(None)
PR_SET_PDEATHSIG = 1  # prctl(2)


def end_with_us():
    """Lets the kernel end the process when this one is gone, however that came."""
    C_LIBRARY.prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class Session:
    """A display, a window manager and a message bus. To be used as a context manager; what was
    started in it is ended with it, whatever happened."""

    def __init__(self, build, width=800, height=600, depth=24, quality="classic"):
        """`quality` is what the GIF's quality was the last time: Classic, because most tests count
        frames, of which the program's own encoder makes one where they are alike, or stand in for
        the tools. None for a first start."""
        self.build = pathlib.Path(build).resolve()
        self.width, self.height, self.depth = width * SCALE, height * SCALE, depth
        self.quality = quality
        self.pointer = False  # whether recordings show the pointer: `picture` doesn't
        self.display_options = []
        self.with_window_manager = True
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tovarel-"))
        self.home = self.folder / "home"
        self.documents = self.home / "Documents"
        self.frames = self.documents / "Pallomar"
        self.previous = self.documents / "PallomarPrevious"  # what a new recording replaced
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
        self._make_home()
        self.remember("ShowPointer", int(self.pointer))
        self._set_environment(QT_SCALE_FACTOR=str(SCALE))
        self.environment["DISPLAY"] = self.start_display("Xvfb")
        self._start_bus()
        if self.with_window_manager:
            # It forgets a window that asks to be shown while it starts, so neither its process nor
            # its properties on the root window are enough to go by.
            started = self.folder / "window-manager-started"
            self.start("openbox", ["openbox", "--startup", f"touch {started}"])
            wait_for("the window manager", started.exists)
            # With the first key that is sent the server tells of another keyboard, whereupon the
            # window manager lets go of all its keys for a moment: one sent then would be lost.
            self.xdotool("key", "Shift_L")
        self._share_environment()

    # What every kind of session begins with

    def _make_home(self):
        for folder in (self.home, self.documents, self.outputs):
            folder.mkdir()
        self.runtime.mkdir(mode=0o700)
        if self.quality:
            self.remember_quality(self.quality)

    def _set_environment(self, **more):
        """What the session's processes find in theirs."""
        self.environment = {
            "HOME": str(self.home),
            "LC_ALL": os.environ.get("TOVAREL_TEST_LOCALE", "C.UTF-8"),
            "PATH": os.environ["PATH"],
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "TMPDIR": str(self.folder),
            "XDG_RUNTIME_DIR": str(self.runtime),
            **more,
        }
        for name in ("ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "LOCPATH", "TZ"):
            if name in os.environ:
                self.environment[name] = os.environ[name]

    def _start_bus(self):
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self.announce(
            "dbus-daemon", lambda end: ["dbus-daemon", "--session", "--nofork", "--nopidfile"]
            + [f"--print-address={end}"])

    def _share_environment(self):
        """The accessibility library reads the environment of this process."""
        for name in [name for name in os.environ if name.startswith("XDG_") or name == "DISPLAY"]:
            del os.environ[name]
        os.environ.update(self.environment)

    def remember_quality(self, quality):
        """Sets what the next start finds to be the GIF's quality, which every choice changes."""
        self.remember("GIFQuality", quality)

    def remember(self, key, value):
        """Sets what the next start finds in the user's settings."""
        settings = self.home / ".config" / "Tovarel" / "Tovarel.conf"
        settings.parent.mkdir(parents=True, exist_ok=True)
        lines = settings.read_text().splitlines() if settings.exists() else ["[General]"]
        lines = [line for line in lines if not line.startswith(f"{key}=")]
        lines.insert(lines.index("[General]") + 1, f"{key}={value}")
        settings.write_text("\n".join(lines) + "\n")

    def forget_choices(self):
        """Lets the next start begin as a first one does, but for what most tests would be asked."""
        settings = self.home / ".config" / "Tovarel" / "Tovarel.conf"
        if settings.exists():
            kept = ("[", "MAC", "GIFQuality", "LastSaveFolder", "Show")
            lines = [line for line in settings.read_text().splitlines() if line.startswith(kept)]
            settings.write_text("\n".join(lines) + "\n")
        if self.quality:
            self.remember("Rate", 5)  # most tests want few frames

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
