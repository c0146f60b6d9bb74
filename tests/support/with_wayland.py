# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Runs a command in a Wayland session of its own: with_wayland.py COMMAND...

Its exit status is the command's, or 77 where the machine lacks what such a session needs, as it then
says.
"""

import os
import subprocess
import sys

import wayland_session


def main():
    lacking = wayland_session.missing()
    if lacking:
        print(f"no Wayland session here: {lacking} is not installed")
        return 77
    build = os.environ["TOVAREL_BUILD"]
    with wayland_session.WaylandSession(build, 640, 400) as session:
        done = subprocess.run(sys.argv[1:], env={**os.environ, **session.environment}, check=False)
        return done.returncode


if __name__ == "__main__":
    status = main()
    # A command that a signal ended has a negative one.
    sys.exit(status if status >= 0 else 128 - status)
