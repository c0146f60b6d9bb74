# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Who works by keyboard or by ear gets everything: every control has a role and a name, and Tab
leads through all that can be used, in the order in which it stands."""

import case
from driver import Program, act, atspi, content, has_state, role_of

# What a user can do something with, as assistive technology knows it; the text of an alert can be
# selected.
ROLES = {"check box", "combo box", "image", "label", "list", "list item", "page tab", "page tab list",
         "panel", "push button", "radio button", "slider", "text"}
# These show which of several has the focus, or hold what has it.
AROUND = ("page tab list", "panel")
BAR = "page tab"


def name(item):
    """The control's name; a list's own is its value, and the label beside it names it."""
    if role_of(item) != "combo box":
        return item.get_name()
    labels = [relation.get_target(0).get_name() for relation in item.get_relation_set()
              if relation.get_relation_type() == atspi().RelationType.LABELLED_BY]
    return labels[0] if labels else ""


class Accessibility(case.Case):
    def setUp(self):
        self.program = Program(self.session)
        self.activate()

    def activate(self):
        self.session.xdotool("windowactivate", "--sync", self.program.window())

    def await_keys(self):
        """The window manager gives the keys back to the window some time after a sheet is gone."""
        self.program.wait_for("the window to have the keys", lambda: self.session.xdotool(
            "getwindowfocus", check=False) == self.program.window())

    def check_named(self):
        """Everything on the screen that takes the focus has a role and a name."""
        for item in self.program.walk(None):
            role = role_of(item)
            if has_state(item, "FOCUSABLE"):
                self.assertIn(role, ROLES, item.get_name())
                if role != "list":  # within the combo box that is named
                    self.assertTrue(name(item), role)

    def focus(self):
        """Role and name of what has the focus. The tab that is shown claims it too."""
        items = [item for item in self.program.walk(None) if has_state(item, "FOCUSED")]
        found = [(role_of(item), name(item)) for item in items
                 if role_of(item) not in AROUND]
        return max(found, key=lambda each: each[0] != BAR, default=None)

    def check_order(self, *expected):
        """Tab leads from the first to the last and back to the first."""
        self.check_named()
        where = self.focus()
        for _ in expected:
            if where == expected[0]:
                break
            where = self.next_focus(where)
        went = [where]
        for _ in expected:
            where = self.next_focus(where)
            went.append(where)
        self.assertEqual(went, [*expected, expected[0]])

    def next_focus(self, where):
        self.session.xdotool("key", "Tab")
        return self.program.wait_for(
            f"Tab to lead on from {where}", lambda: self.focus() not in (where, None) and self.focus())

    def buttons(self, *names):
        return [("push button", each) for each in names]

    def test_the_record_tab_and_its_dialogs(self):
        self.program.await_control("image", "Live preview")
        self.check_order((BAR, "Record"),
                         *self.buttons("Full Screen", "Region", "Frames per Second"),
                         *(("check box", each) for each in ("Pointer", "Clicks", "Keys")),
                         *self.buttons("Record", "Countdown"))
        self.session.xdotool("key", "ctrl+f")
        self.program.button("Cancel")
        self.check_order(("combo box", "Frames per Second"), *self.buttons("Cancel", "OK"))
        self.session.xdotool("key", "Escape")
        self.program.wait_for("the dialog to close", lambda: not self.program.find("dialog"))
        self.session.xdotool("key", "ctrl+shift+r")
        self.program.button("OK")
        self.check_order(("check box", "Don’t show this again"), *self.buttons("OK"))

    def test_the_other_tabs_and_an_alert(self):
        self.program.record(1)
        self.await_keys()
        self.check_order((BAR, "Cut"), ("slider", "First frame"), ("slider", "Playhead"),
                         ("slider", "Last frame"),
                         *self.buttons("Shorten Still Time", "Play"))
        self.program.enter("GIF")
        self.program.choose_quality("Balanced")  # the other encoder knows no limit
        sizes, rates = (("radio button", f"Same {what} as the recording")
                        for what in ("size", "frame rate"))
        shares = self.buttons("75%", "50%")
        rest = (("combo box", "Quality"), ("combo box", "Max. file size"), ("combo box", "Speed"),
                ("combo box", "Repeat"), ("combo box", "Hold last frame"),
                *self.buttons("Generate GIF", "Saving Options", "Generate WebP", "Generate MP4"))
        self.check_order((BAR, "GIF"), sizes, *shares, rates, *rest)
        # One Tab for the whole of a choice, the arrows within it; what it enables comes next.
        for choice in (sizes, rates):
            while self.focus() != choice:
                self.next_focus(self.focus())
            self.session.xdotool("key", "Down")
        size = [("radio button", "Custom size"), ("text", "Width"), ("text", "Height"),
                ("check box", "Keep aspect ratio")]
        rate = [("radio button", "Custom frame rate"), ("combo box", "Frames per Second")]
        self.check_order((BAR, "GIF"), *size[:3], *shares, *size[3:], *rate, *rest)

        self.program.await_control("text", "Width").set_text_contents("0")
        # An editable list would take the key for the end of the line.
        while self.focus() != ("combo box", "Max. file size"):
            self.next_focus(self.focus())
        self.session.xdotool("key", "ctrl+e")
        self.program.alert()
        self.check_named()
        self.assertEqual(self.focus(), ("push button", "Close"))

    def test_about_the_overlay_and_the_progress_sheet(self):
        self.program.end()
        # Time to look at the sheet, while the events turn.
        self.session.remember_quality("classic")
        slow = self.stand_in('real "$@"; case "$*" in *paletteuse*) sleep 5;; esac')
        self.program = Program(self.session, slow)
        self.program.choose("Tovarel", "About Tovarel")
        self.program.await_control("alert", "About Tovarel")
        self.check_named()
        self.program.press("Close")
        self.program.wait_for("About to close", lambda: not self.program.find("alert"))
        self.program.press("Region")
        self.program.press("OK")
        overlay = self.program.await_control("dialog", "Select a Region")
        self.program.wait_for("the corner in hand", overlay.get_description)
        first = overlay.get_description()
        self.session.xdotool("key", "Tab")
        self.program.wait_for("another corner", lambda: overlay.get_description() != first)
        self.session.xdotool("key", "Escape")
        self.program.wait_for("the overlay to close",
                              lambda: not self.program.find("dialog", "Select a Region"))
        self.program.record(1)
        self.program.enter("GIF")
        # Switched without a click, too.
        act(self.program.await_control("radio button", "Custom size"))
        # A text that nobody typed is an edit, too: the other field follows.
        self.program.await_control("text", "Width").set_text_contents("400")
        self.program.press("Generate GIF")
        self.program.await_control("progress bar", "Generating the GIF…")
        self.assertEqual(content(self.program.await_control("text", "Height")), "300")


if __name__ == "__main__":
    case.main()
