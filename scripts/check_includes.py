# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Checks that includes between folders only go downwards: check_includes.py [ROOT]

The folders stand in one order, and each knows only itself and those below it. Beyond that, the main
window is known to app/ alone, and the window system's headers to its back end. Says every include
that breaks a rule and ends with status 1 when there is one.
"""

import pathlib
import re
import sys

# From the top down; docs/architecture.md says what each is for.
FOLDERS = ("app", "script", "export", "trim", "record", "region", "shell", "platform")

# What only one folder may include, by the beginning of the included name.
RESERVED = {"ui_MainWindow": "app", "xcb/": "platform/x11", "X11/": "platform/x11"}

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.MULTILINE)


def broken_rule(source, included):
    """Why a source, by its path from the root, may not include this; None when it may."""
    folder = source.split("/")[0]
    target = included.split("/")[0]
    if target in FOLDERS and "/" in included and FOLDERS.index(target) < FOLDERS.index(folder):
        return f"{target}/ is above {folder}/"
    for name, owner in RESERVED.items():
        if included.startswith(name) and not source.startswith(owner + "/"):
            return f"only {owner}/ knows it"
    return None


def main(root):
    """Prints what is wrong beneath this folder; the number of includes that were looked at, and of
    those that break a rule."""
    seen = wrong = 0
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            source = path.relative_to(root).as_posix()
            for included in INCLUDE.findall(path.read_text(encoding="utf-8")):
                seen += 1
                reason = broken_rule(source, included)
                if reason:
                    wrong += 1
                    print(f"{source} includes {included}: {reason}")
    print(f"{seen} includes, {wrong} of them wrong")
    return seen, wrong


if __name__ == "__main__":
    SEEN, WRONG = main(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "."))
    sys.exit(1 if WRONG or not SEEN else 0)
