# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The tab rules hold against every way in: pointer, wheel, keys, menus, assistive technology."""

import case
from driver import Program, content, is_enabled, middle, wait_for


class Tabs(case.Case):
    def setUp(self):
        self.program = Program(self.session)
        self.program.window()

    def ways_to(self, name):
        """Every way to ask for the tab: a name and what to do."""
        program, key = self.program, self.session.xdotool
        digit = {"Record": 1, "Cut": 2, "GIF": 3}[name]
        return {
            "pointer": lambda: program.click(program.await_control("page tab", name)),
            "shortcut": lambda: key("key", f"ctrl+{digit}"),
            "menu": lambda: program.choose("Tab", name),
            "assistive technology": lambda: program.ask_for_tab(name),
        }

    def ways_onward(self):
        """Ways to ask for the next tab from the tab bar, which has the focus afterwards."""
        key, bar = self.session.xdotool, self.program.await_control("page tab", "Record")
        return {
            "wheel": lambda: key("mousemove", *middle(bar), "click", 5),
            "Ctrl+Tab": lambda: key("key", "ctrl+Tab"),
            "Ctrl+Page Down": lambda: key("key", "ctrl+Next"),
            "arrow key on the bar": lambda: (bar.grab_focus(), key("key", "Right")),
        }

    def check_all_refused(self, asked, shortcut, wanted):
        for way, ask in asked.items():
            with self.subTest(way):
                ask()
                self.assertEqual(self.program.shown_tab(), "Record")
        # This key arrives after all the clicks and keys before it: once it has had its effect, none
        # of those can be still to come.
        self.session.xdotool("key", shortcut)
        wait_for(f"the effect of {shortcut}", wanted)
        self.assertEqual(self.program.shown_tab(), "Record")
        # The tab bar must not claim otherwise either.
        self.assertEqual(self.program.find("page tab list").get_name(), "Record")

    def test_no_way_leads_out_of_the_record_tab_while_recording_or_paused(self):
        program = self.program
        self.session.xdotool("key", "ctrl+r")
        wait_for("the recording", lambda: program.enabled("Stop"))
        asked = {f"{name}, {way}": ask for name in ("Cut", "GIF")
                 for way, ask in self.ways_to(name).items()} | self.ways_onward()
        self.check_all_refused(asked, "ctrl+p", lambda: not program.enabled("Pause"))
        self.check_all_refused(asked, "ctrl+r", lambda: program.enabled("Pause"))

    def test_every_way_leads_to_a_tab_when_nothing_forbids_it(self):
        for name in ("Cut", "GIF", "Record"):
            for way, ask in self.ways_to(name).items():
                with self.subTest(f"{name}, {way}"):
                    self.program.enter("Record" if name != "Record" else "Cut")
                    ask()
                    self.program.await_tab(name)
        self.program.enter("Record")
        self.ways_onward()["wheel"]()
        self.program.await_tab("Cut")

    def test_without_a_recording_nothing_can_be_played_or_exported(self):
        program = self.program
        program.enter("Cut")
        self.assertFalse(any(map(program.enabled, ("Play", "Pause", "Stop"))))
        program.enter("GIF")
        self.assertFalse(program.enabled("Generate GIF"))
        for role in ("text", "combo box", "check box", "radio button"):
            items = program.all(role)
            self.assertTrue(items, role)
            for item in items:
                self.assertFalse(is_enabled(item), content(item))
        enabled = {item.get_name() for item in program.all("menu item", showing=False)
                   if is_enabled(item)}
        self.assertNotIn("Generate GIF", enabled)


if __name__ == "__main__":
    case.main()
