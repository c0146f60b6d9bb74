# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Controls as assistive technology sees them: the accessibility library, loaded once the session's
environment stands, and what is asked of a control."""

import collections
import os

from waiting import PATIENCE

# Pixels a point, in the tests that this can be told for: the screen grows by as much.
SCALE = int(os.environ.get("TOVAREL_TEST_SCALE", "1"))

Box = collections.namedtuple("Box", "x y width height")


def atspi():
    import gi  # pylint: disable=import-outside-toplevel

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi  # pylint: disable=import-outside-toplevel

    return Atspi


def bus_errors():
    from gi.repository import GLib  # pylint: disable=import-outside-toplevel

    return GLib.Error


_desktop = []


def desktop():
    if not _desktop:
        atspi().init()
        atspi().set_timeout(5000, PATIENCE * 1000)  # milliseconds: a call, a start
        _desktop.append(atspi().get_desktop(0))
        # Nothing is remembered: its events would have to be waited for.
        _desktop[0].set_cache_mask(atspi().Cache.NONE)
    return _desktop[0]


# Roles that newer accessibility libraries and toolkits call by another name.
RENAMED_ROLES = {"button": "push button", "push button menu": "push button"}


def role_of(item):
    role = item.get_role_name()
    return RENAMED_ROLES.get(role, role)


def has_state(item, state):
    return item.get_state_set().contains(getattr(atspi().StateType, state))


def is_enabled(item):
    return has_state(item, "ENABLED")


def act(item):
    """The control's first action: press a button, select a tab, trigger a menu item."""
    if not item.get_action_iface() or not item.do_action(0):
        raise AssertionError(f"no action on {role_of(item)} {item.get_name()}")


def content(item):
    if item.get_text_iface():
        return atspi().Text.get_text(item, 0, -1)
    return item.get_name()


def search(top, role, name=None, showing=True):
    """What lies below a control, see Program.walk."""
    waiting = [top]
    while waiting:
        item = waiting.pop(0)
        try:
            if item is not top:
                if showing and not has_state(item, "SHOWING"):
                    continue
                if role in (None, role_of(item)) and name in (None, item.get_name()):
                    yield item
            waiting += filter(None, map(item.get_child_at_index, range(item.get_child_count())))
        except bus_errors():
            continue  # Gone while we looked.


def extents(item):
    """Where a control lies on the screen, in pixels; it is told in points."""
    box = item.get_extents(atspi().CoordType.SCREEN)
    return Box(box.x * SCALE, box.y * SCALE, box.width * SCALE, box.height * SCALE)


def in_picture(place):
    """What lies there on the screen, in a recorded picture: one pixel a point."""
    return tuple(length // SCALE for length in place)


def middle(item):
    box = extents(item)
    return box.x + box.width // 2, box.y + box.height // 2
