# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Runs a command in a Wayland session of its own: with_wayland.py [--size WxH] COMMAND...

Its exit status is the command's, or 77 where the machine lacks what such a session needs, as it then
says. TOVAREL_SOURCE, "monitor" or "window", is what the portal's dialog is answered with.
"""

import argparse
import os
import subprocess
import sys

import wayland_session


def main():
    lacking = wayland_session.missing()
    if lacking:
        print(f"no Wayland session here: {lacking} is not installed")
        return 77
    asked = argparse.ArgumentParser()
    asked.add_argument("--size", default="640x400", help="of the monitor, in pixels")
    asked.add_argument("command", nargs=argparse.REMAINDER)
    wanted = asked.parse_args()
    width, height = map(int, wanted.size.split("x"))
    build = os.environ["TOVAREL_BUILD"]
    with wayland_session.WaylandSession(build, width, height) as session:
        session.answer_with(kind=os.environ.get("TOVAREL_SOURCE", "monitor"))
        done = subprocess.run(
            wanted.command, env={**os.environ, **session.environment}, check=False)
        return done.returncode


if __name__ == "__main__":
    status = main()
    # A command that a signal ended has a negative one.
    sys.exit(status if status >= 0 else 128 - status)
