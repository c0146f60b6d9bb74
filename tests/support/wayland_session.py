# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""A Wayland session without a screen: a compositor that draws in memory, PipeWire, and the desktop's
own portal, whose dialogs are answered by portal_backend.py as a test wants it."""

import json
import os
import pathlib
import shutil
import signal
import socket
import subprocess

from session import Session
from waiting import PATIENCE, wait_for

HERE = pathlib.Path(__file__).parent
PORTAL = "org.freedesktop.portal.Desktop"
BACKEND = "org.freedesktop.impl.portal.desktop.tovareltest"
# A machine may have the portal in either place.
PORTAL_BINARIES = ("/usr/libexec/xdg-desktop-portal", "/usr/lib/xdg-desktop-portal")
NEEDED = ("pipewire", "wireplumber", "mutter", "dbus-daemon")


def missing():
    """What this machine lacks for such a session, in words; empty when it lacks nothing."""
    lacking = [name for name in NEEDED if not shutil.which(name)]
    if not any(map(os.path.exists, PORTAL_BINARIES)):
        lacking.append("xdg-desktop-portal")
    return ", ".join(lacking)


class WaylandSession(Session):
    """See the module. `monitors` are sizes like "1280x720", the first one the portal's choice."""

    def __init__(self, build, width=1280, height=720, monitors=None, **options):
        super().__init__(build, width, height, **options)
        self.monitors = monitors or [f"{width}x{height}"]
        self.portal = True
        self.pipewire = True
        self.script = self.folder / "portal.json"
        self.requests = self.folder / "requests"

    def _start(self):
        self._make_home()
        portals = self.folder / "portals"
        portals.mkdir()
        (portals / "test.portal").write_text(
            f"[portal]\nDBusName={BACKEND}\n"
            "Interfaces=org.freedesktop.impl.portal.ScreenCast;"
            "org.freedesktop.impl.portal.GlobalShortcuts;\nUseIn=test\n")
        # By which newer portals know a program that hands them its name.
        launchers = self.home / ".local/share/applications"
        launchers.mkdir(parents=True)
        (launchers / "org.tovarel.Tovarel.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Tovarel\nExec=true\n")
        self._set_environment(
            GSETTINGS_BACKEND="keyfile", LIBGL_ALWAYS_SOFTWARE="1", XDG_CURRENT_DESKTOP="test",
            XDG_DESKTOP_PORTAL_DIR=str(portals), XDG_SESSION_TYPE="wayland")
        known = pathlib.Path(__file__).with_name("known_leaks.txt")
        self.environment["LSAN_OPTIONS"] = ":".join(filter(None, (
            self.environment.get("LSAN_OPTIONS"), f"suppressions={known}",
            "print_suppressions=0")))
        self._start_bus()
        self.answer_with()
        if self.pipewire:
            self._start_pipewire()
        self._start_compositor()
        if self.portal:
            self.start_portal()
        self._share_environment()

    def _start_pipewire(self):
        # Without a system's login manager this part of it ends the whole (WirePlumber 0.4).
        off = self.home / ".config" / "wireplumber" / "bluetooth.lua.d"
        off.mkdir(parents=True)
        (off / "51-off.lua").write_text("bluez_monitor.enabled = false\n")
        self.start("pipewire", ["pipewire"])
        wait_for("PipeWire", (self.runtime / "pipewire-0").exists)
        self.start("wireplumber", ["wireplumber"])

    def _start_compositor(self):
        # Without it a scale is a whole number.
        settings = self.home / ".config/glib-2.0/settings"
        settings.mkdir(parents=True)
        (settings / "keyfile").write_text(
            "[org/gnome/mutter]\nexperimental-features=['scale-monitor-framebuffer']\n")
        sizes = [word for size in self.monitors for word in ("--virtual-monitor", size)]
        self.start("mutter", ["mutter", "--headless", "--wayland", "--no-x11", *sizes]
                   + ["--wayland-display", "wayland-test"])
        self.environment["WAYLAND_DISPLAY"] = "wayland-test"
        wait_for("the compositor", self._compositor_answers)

    def _compositor_answers(self):
        try:
            with socket.socket(socket.AF_UNIX) as end:
                end.connect(str(self.runtime / "wayland-test"))
        except OSError:
            return False
        return not self.pipewire or self.owned("org.gnome.Mutter.ScreenCast")

    def start_portal(self):
        self.start("backend", ["/usr/bin/python3", "-B", str(HERE / "portal_backend.py")]
                   + [str(self.script), str(self.requests)])
        wait_for("the portal's back end", lambda: self.owned(BACKEND))
        binary = next(filter(os.path.exists, PORTAL_BINARIES))
        self.start("portal", [binary, "-r"])
        wait_for("the portal", lambda: self.owned(PORTAL))

    def owned(self, name):
        """Whether somebody has this name on the bus."""
        done = subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/"]
            + ["org.freedesktop.DBus.NameHasOwner", f"string:{name}"], env=self.environment,
            check=False, stdin=subprocess.DEVNULL, capture_output=True, timeout=PATIENCE)
        return b"boolean true" in done.stdout

    def scale(self, wanted):
        """Gives all monitors the scale that is nearest to this one, of those they can have."""
        import dbus  # pylint: disable=import-outside-toplevel; of few tests
        name = "org.gnome.Mutter.DisplayConfig"
        display = dbus.Interface(
            dbus.SessionBus().get_object(name, "/" + name.replace(".", "/")), name)
        serial, monitors, _logical, _properties = display.GetCurrentState()
        places, x = [], 0
        for monitor, modes, _ in monitors:
            mode, width, scales = modes[0][0], modes[0][1], modes[0][5]
            scale = min(scales, key=lambda each: abs(each - wanted))
            places.append((dbus.Int32(x), dbus.Int32(0), dbus.Double(scale), dbus.UInt32(0), x == 0,
                           [(monitor[0], mode, dbus.Dictionary({}, signature="sv"))]))
            x += round(width / scale)
        display.ApplyMonitorsConfig(
            serial, dbus.UInt32(1), dbus.Array(places, signature="(iiduba(ssa{sv}))"),
            dbus.Dictionary({}, signature="sv"))

    # The dialog ------------------------------------------------------------------------------

    def answer_with(self, **answer):
        """How the dialogs to come are answered; see portal_backend.py for the words."""
        self.script.write_text(json.dumps(answer))

    def asked(self):
        """What the portal was asked so far: pairs of a method and its options."""
        if not self.requests.exists():
            return []
        return [json.loads(line) for line in self.requests.read_text().splitlines()]

    def end_casts(self):
        """The desktop ends all screen casts, as its own button for that does."""
        self._tell_backend(signal.SIGUSR1)

    def press_key(self, name, **answer):
        """The user presses a key that the desktop has granted."""
        self.answer_with(press=name, **answer)
        self._tell_backend(signal.SIGUSR2)

    def _tell_backend(self, what):
        for number in self.processes():
            command = pathlib.Path(f"/proc/{number}/cmdline").read_bytes()
            if b"portal_backend.py" in command:
                os.kill(number, what)
