# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Waiting for a condition, never for a time."""

import time

PATIENCE = 30  # seconds; longer than any step takes on a slow machine with sanitizers


class Late(AssertionError):
    """What was waited for did not happen in time."""


def wait_for(what, condition, patience=PATIENCE, between=0.02):
    """The first true result of `condition`, which is asked again and again."""
    end = time.monotonic() + patience
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise Late(f"waited {patience} s in vain for {what}")
        time.sleep(between)
