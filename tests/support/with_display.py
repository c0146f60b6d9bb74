# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Runs a command on a virtual display of its own and ends with the command's status. Nothing of the
session around shines through, and whatever ends the script ends all that it started. The command
finds the server's process in TOVAREL_SERVER_PID."""

import argparse
import os
import shlex
import subprocess
import sys

from session import Session
from waiting import wait_for


def is_managed(session):
    """Whether a window manager says that it is there."""
    done = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=session.environment,
                          text=True, check=False, capture_output=True)
    return "window id" in done.stdout


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--screen", default="1280x720x24")
    parser.add_argument("--server", default="", help="further options of the X server")
    parser.add_argument("--window-manager", action="store_true")
    parser.add_argument("--compositor", default="", help="a compositing manager to start first")
    parser.add_argument("--desktop", default="", help="a desktop's window manager to start first")
    parser.add_argument("--composed", action="store_true",
                        help="wait until it composes the screen, too")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    asked = parser.parse_args()
    session = Session(".", *map(int, asked.screen.split("x")))
    session.display_options = shlex.split(asked.server)
    session.with_window_manager = asked.window_manager
    with session:
        if asked.desktop:
            session.start("desktop", shlex.split(asked.desktop), {"LIBGL_ALWAYS_SOFTWARE": "1"})
            wait_for("the window manager", lambda: is_managed(session)
                     and (session.composited() or not asked.composed))
        if asked.compositor:
            session.start("compositor", shlex.split(asked.compositor))
            wait_for("the compositing manager", session.composited)
        surroundings = {**os.environ, "TOVAREL_SERVER_PID": str(session.children[0].pid)}
        surroundings.pop("WAYLAND_DISPLAY", None)
        return subprocess.run(asked.command, env=surroundings, check=False).returncode


if __name__ == "__main__":
    status = main()
    # A command that a signal ended has a negative one.
    sys.exit(status if status >= 0 else 128 - status)
