# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Stands in for a desktop's dialogs: portal_backend.py SCRIPT REQUESTS

The real xdg-desktop-portal asks it as it asks a desktop. What it answers stands in the file SCRIPT,
read anew for each question, as a JSON object:

    answer     "grant" (the usual one), "refuse", "hang", or nonsense: "odd" or "no node"
    kind       "monitor" (the usual one) or "window", if windows are asked for or it was chosen before
    connector  of the monitor; "Meta-0" is the first one
    size       the monitor's size in points, [width, height], if it is not to be told as it is
    position   likewise
    keys       what is granted of the keys that are asked for: an object of their names and what to
               press for them; "answer" has no say in it
    press      the name of a key, for SIGUSR2

The streams are a headless mutter's. Each question is a line of the file REQUESTS: a JSON list of the
method and its options. SIGUSR1 ends all casts, SIGUSR2 presses a key.
"""

import contextlib
import json
import pathlib
import signal
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.impl.portal.desktop.tovareltest"
SCREEN_CAST = "org.freedesktop.impl.portal.ScreenCast"
SHORTCUTS = "org.freedesktop.impl.portal.GlobalShortcuts"
SHORTCUTS_PROPERTIES = {"version": dbus.UInt32(1)}
MUTTER = "org.gnome.Mutter.ScreenCast"
PROPERTIES = {"AvailableSourceTypes": dbus.UInt32(3), "AvailableCursorModes": dbus.UInt32(7),
              "version": dbus.UInt32(4)}
MONITOR, WINDOW = 1, 2
# The portal's cursor modes are bits, the compositor's are numbers.
CURSOR_MODES = {1: 0, 2: 1, 4: 2}
TOKEN = "tovareltest"


class CastSession(dbus.service.Object):
    """One session, which the portal closes, or the desktop."""

    def __init__(self, bus, path):
        super().__init__(bus, path)
        self.options = {}
        self.cast = None

    @dbus.service.method("org.freedesktop.impl.portal.Session")
    def Close(self):  # pylint: disable=invalid-name
        self.end()

    @dbus.service.signal("org.freedesktop.impl.portal.Session")
    def Closed(self):  # pylint: disable=invalid-name
        """Tells the portal that the desktop has ended it."""

    def end(self):
        if self.cast:
            # The window that it showed may have closed, and ended it.
            with contextlib.suppress(dbus.DBusException):
                self.cast.Stop()
        self.cast = None
        if list(self.locations):
            self.remove_from_connection()


class Keys(dbus.service.Object):
    """What the portal asks about keys. A class of its own, since methods of two interfaces have the
    same name."""

    # pylint: disable=invalid-name, too-many-arguments

    def __init__(self, bus, script, requests):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.bus, self.script, self.requests = bus, script, requests
        self.session = None

    def note(self, method, options):
        plain = {str(key): str(value) for key, value in options.items()}
        with open(self.requests, "a", encoding="utf-8") as file:
            file.write(json.dumps([method, plain]) + "\n")

    def answer(self):
        return json.loads(self.script.read_text(encoding="utf-8"))

    @dbus.service.method(SHORTCUTS, "oosa{sv}", "ua{sv}")
    def CreateSession(self, _handle, session, _app, _options):
        CastSession(self.bus, session)
        self.session = session
        return 0, {}

    @dbus.service.method(SHORTCUTS, "ooa(sa{sv})sa{sv}", "ua{sv}")
    def BindShortcuts(self, _handle, _session, shortcuts, _parent, _options):
        self.note("BindShortcuts", {name: how["preferred_trigger"] for name, how in shortcuts})
        # As a desktop does whose word is not to be believed.
        return 2, {}

    @dbus.service.method(SHORTCUTS, "oo", "ua{sv}")
    def ListShortcuts(self, _handle, _session):
        granted = [(name, {"trigger_description": what})
                   for name, what in self.answer().get("keys", {}).items()]
        return 0, {"shortcuts": dbus.Array(granted, signature="(sa{sv})")}

    @dbus.service.signal(SHORTCUTS, "osta{sv}")
    def Activated(self, session, name, time, options):
        """Tells the portal that a key was pressed."""

    def press(self):
        self.Activated(self.session, self.answer()["press"],
                       dbus.UInt64(1), dbus.Dictionary({}, signature="sv"))
        return GLib.SOURCE_CONTINUE


class Backend(Keys):
    """What the portal asks."""

    # pylint: disable=invalid-name, too-many-arguments

    def __init__(self, bus, script, requests):
        super().__init__(bus, script, requests)
        self.sessions = {}
        self.tokens = 0

    @dbus.service.method("org.freedesktop.DBus.Properties", "ss", "v")
    def Get(self, _interface, name):
        return {**SHORTCUTS_PROPERTIES, **PROPERTIES}[name]

    @dbus.service.method("org.freedesktop.DBus.Properties", "s", "a{sv}")
    def GetAll(self, interface):
        return {SCREEN_CAST: PROPERTIES, SHORTCUTS: SHORTCUTS_PROPERTIES}.get(interface, {})

    @dbus.service.method(SCREEN_CAST, "oosa{sv}", "ua{sv}")
    def CreateSession(self, _handle, session, _app, _options):
        self.sessions[session] = CastSession(self.bus, session)
        return 0, {}

    @dbus.service.method(SCREEN_CAST, "oosa{sv}", "ua{sv}")
    def SelectSources(self, _handle, session, _app, options):
        self.note("SelectSources", options)
        self.sessions[session].options = options
        return 0, {}

    @dbus.service.method(SCREEN_CAST, "oossa{sv}", "ua{sv}", async_callbacks=("ok", "error"))
    def Start(self, _handle, session, _app, parent, options, ok, error):
        self.note("Start", {**options, "parent": parent})
        script = self.answer()
        wanted = script.get("answer", "grant")
        if wanted == "hang":
            return
        if wanted == "refuse":
            ok(dbus.UInt32(1), {})
            return
        if wanted == "odd":
            ok(dbus.UInt32(0), {"streams": dbus.Array([dbus.String("?")], signature="s")})
            return
        if wanted == "no node":
            ok(dbus.UInt32(0), {"streams": dbus.Array([(dbus.UInt32(999999), {})],
                                                      signature="(ua{sv})")})
            return
        try:
            self.cast(self.sessions[session], script, ok)
        except dbus.DBusException as reason:
            error(reason)

    def cast(self, session, script, ok):
        """Begins the stream of what the script says and answers when it is there."""
        mutter = dbus.Interface(self.bus.get_object(MUTTER, "/org/gnome/Mutter/ScreenCast"), MUTTER)
        path = mutter.CreateSession({}, signature="a{sv}")
        session.cast = dbus.Interface(self.bus.get_object(MUTTER, path), MUTTER + ".Session")
        mode = CURSOR_MODES[int(session.options.get("cursor_mode", 1))]
        how = dbus.Dictionary({"cursor-mode": dbus.UInt32(mode)}, signature="sv")
        offered = int(session.options.get("types", MONITOR)) & WINDOW
        window = script.get("kind") == "window" and (
            offered or "restore_data" in session.options)
        stream = (session.cast.RecordWindow(how) if window else
                  session.cast.RecordMonitor(script.get("connector", "Meta-0"), how))
        told = dbus.Dictionary(
            {"source_type": dbus.UInt32(WINDOW if window else MONITOR)}, signature="sv")
        is_so = self.bus.get_object(MUTTER, stream).Get(
            MUTTER + ".Stream", "Parameters", dbus_interface=dbus.PROPERTIES_IFACE)
        for what in ("size", "position"):
            if what in script or what in is_so:
                told[what] = dbus.Struct(
                    map(dbus.Int32, script.get(what) or is_so[what]), signature="ii")

        def added(node):
            results = {"streams": dbus.Array([(dbus.UInt32(node), told)], signature="(ua{sv})")}
            if int(session.options.get("persist_mode", 0)):
                # What the portal itself keeps and gives a name of its own.
                self.tokens += 1
                results["restore_data"] = dbus.Struct(
                    (TOKEN, dbus.UInt32(1), dbus.UInt32(self.tokens, variant_level=1)))
                results["persist_mode"] = dbus.UInt32(2)
            ok(dbus.UInt32(0), results)

        self.bus.get_object(MUTTER, stream).connect_to_signal(
            "PipeWireStreamAdded", added, MUTTER + ".Stream")
        session.cast.Start()

    def end_casts(self):
        for session in self.sessions.values():
            if list(session.locations):
                session.Closed()
            session.end()
        self.sessions.clear()
        return GLib.SOURCE_CONTINUE


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    # Kept as long as the process runs.
    name = dbus.service.BusName(NAME, bus)
    backend = Backend(bus, pathlib.Path(sys.argv[1]), sys.argv[2])
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR1, backend.end_casts)
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR2, backend.press)
    GLib.MainLoop().run()
    del name


if __name__ == "__main__":
    main()
