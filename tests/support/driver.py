# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Drives the real program as a user would: the accessibility bus to find and press controls, the
pointer and the keys. A Program is one start of Tovarel in a Session. Nothing here waits for a fixed
time: every wait is for a condition and has a limit."""

import re
import subprocess
import time

from accessibility import (  # pylint: disable=unused-import; the tests find all of it here
    act, atspi, bus_errors, content, desktop, extents, has_state, in_picture, is_enabled,
    middle, role_of, search)
from session import Session  # pylint: disable=unused-import; likewise
from waiting import PATIENCE, Late, wait_for

BINARY = "tovarel"
NOTE = "recording.txt"  # what lies beside the frames of a saved recording
# A button on each tab's page that no other page has.
PAGES = {"Record": "Region", "Cut": "Play", "GIF": "Generate GIF"}


class Program:
    """One start of the program. A control is found by its role and its accessible name, among what
    is on the screen: what a user sees of it."""

    _count = 0

    def __init__(self, session, environment=None, wait=True, command=(), recover=False,
                 remembering=False):
        self.session = session
        if not remembering:
            session.forget_choices()
        if not recover:
            # A recording or a file that an earlier start left would be offered before anything else.
            for note in (session.frames / NOTE, session.previous / NOTE,
                         *(session.documents / "PallomarExport").glob("output.*.txt")):
                if note.is_file():
                    note.unlink()
        Program._count += 1
        self.log = f"tovarel-{Program._count}"
        self.process = session.start(
            self.log, [*command, session.build / BINARY], environment)
        if wait:
            wait_for("the main window", lambda: self.ended() or self.frame())
            assert not self.ended(), f"ended at start with {self.process.poll()}:\n{self.output()}"

    # The process -----------------------------------------------------------------------------

    def output(self):
        return self.session.output(self.log)

    def ended(self):
        return self.process.poll() is not None

    def status(self):
        """The exit status, once the program has ended by itself."""
        return wait_for("the end of the program", lambda: self.ended() and [self.process.poll()])[0]

    def end(self):
        if not self.ended():
            self.process.terminate()
        return self.status()

    # Finding ---------------------------------------------------------------------------------

    def root(self):
        """The program on the accessibility bus, or None before it is there."""
        for index in range(desktop().get_child_count()):
            try:
                child = desktop().get_child_at_index(index)
                if child and child.get_process_id() == self.process.pid:
                    return child
            except bus_errors():
                continue
        return None

    def walk(self, role, name=None, showing=True):
        """The controls with this role and name, where given, nearest to the root first. What is not
        on the screen is passed over with everything in it, unless `showing` is false."""
        root = self.root()
        return search(root, role, name, showing) if root else iter(())

    def all(self, role, name=None, showing=True):
        return list(self.walk(role, name, showing))

    def find(self, role, name=None):
        return next(self.walk(role, name), None)

    def await_control(self, role, name=None, patience=PATIENCE):
        return self.wait_for(f"{role} {name or ''}", lambda: self.find(role, name), patience)

    def wait_for(self, what, condition, patience=PATIENCE):
        """The same, and what is on the screen if it does not happen."""
        try:
            return wait_for(what, condition, patience)
        except Late as late:
            raise Late(f"{late}; on the screen: {self.describe()}") from None

    def describe(self):
        """Role and name of everything that is on the screen."""
        seen = [f"{role_of(item)} {item.get_name()!r}" for item in self.walk(None)
                if item.get_name()]
        return ", ".join(seen) or "nothing"

    def button(self, name):
        return self.await_control("push button", name)

    # Doing -----------------------------------------------------------------------------------

    def press(self, name, patience=PATIENCE):
        """Presses a button as assistive technology does, once it may be pressed."""
        item = self.wait_for(
            f"button {name} to be pressable",
            lambda: next(filter(is_enabled, self.walk("push button", name)), None), patience)
        act(item)

    def choose(self, *path):
        """Chooses from the menu bar with the pointer: the titles of the menus, then the item's."""
        item = self.await_control("menu bar")
        for title in path:
            item = self.wait_for(
                f"menu item {title}",
                lambda title=title, above=item: next(search(above, "menu item", title), None))
            self.click(item)

    def ask_for_tab(self, name):
        """Asks for a tab as assistive technology does; it may be refused."""
        act(self.await_control("page tab", name))

    def shown_tab(self):
        """The tab whose page is on the screen."""
        return next((tab for tab, button in PAGES.items() if self.find("push button", button)), None)

    def await_tab(self, name, patience=PATIENCE):
        self.wait_for(f"tab {name}", lambda: self.shown_tab() == name, patience)

    def enter(self, name):
        self.ask_for_tab(name)
        self.await_tab(name)

    def enabled(self, name):
        """Whether the button that is shown under this name may be pressed."""
        return is_enabled(self.button(name))

    def labels(self):
        """Everything that stands as text in the window."""
        return [content(item) for item in self.all("label")]

    def says(self, words):
        """Whether these words stand somewhere in the window."""
        return any(words in text for text in self.labels())

    def await_label(self, words):
        self.wait_for(f"the words {words!r}", lambda: self.says(words))

    def click(self, item, button=1):
        """Clicks the middle of a control with the pointer."""
        x, y = middle(item)
        self.session.xdotool("mousemove", "--sync", x, y, "click", button)

    def frame(self):
        """The main window, whose title ends with the program's name and begins with what it is
        doing; None before it is there."""
        return next((item for item in self.walk("frame") if item.get_name().endswith("Tovarel")), None)

    def window(self):
        """The main window's number on the display."""
        return wait_for("the main window on the screen", lambda: self.session.xdotool(
            "search", "--onlyvisible", "--all", "--pid", self.process.pid, "--name", "(^|– )Tovarel$",
            check=False)).split()[0]

    def in_task_bar(self):
        """What a task bar can show of the window: its title and its icon's pixels."""
        title = self.session.xdotool("getwindowname", self.window())
        icon = subprocess.run(
            ["xprop", "-id", self.window(), "-notype", "32c", "_NET_WM_ICON"], check=True,
            env=self.session.environment, stdin=subprocess.DEVNULL, capture_output=True,
            timeout=PATIENCE).stdout
        return title, icon

    def place(self):
        """Where the main window lies on the screen, without its frame."""
        return extents(wait_for("the main window", self.frame))

    def recording_for(self, seconds):
        """Lets a recording that was just asked for grow: its length is what takes the time."""
        self.wait_for("the recording to run", lambda: self.enabled("Stop") and self.enabled("Pause"))
        time.sleep(seconds)

    def activate(self):
        """Gives the main window the keys."""
        self.session.xdotool("windowactivate", "--sync", self.window())

    def list_of(self, wanted):
        """The list whose present entry is as wanted: a list goes by that, not by a name."""
        return self.wait_for("the list", lambda: next(
            (box for box in self.walk("combo box") if wanted(box.get_name())), None))

    def choose_in(self, box, text, first):
        """Opens a list and finds the entry that is typed; `first` is the list's first one."""
        if box.get_name() == text:
            return
        self.click(box)
        wait_for("the open list", lambda: next(search(box, "list item"), None))
        # The search begins behind the present entry: "5" would find 50 from 10 on.
        self.session.xdotool("key", "Home")
        if text != first:
            self.session.xdotool("type", text.rstrip("×"))
        self.session.xdotool("key", "Return")
        self.wait_for(f"{text} in the list", lambda: box.get_name() == text)

    def choose_quality(self, name):
        """Chooses the GIF's quality on the GIF tab."""
        names = ("Best", "Balanced", "Small", "Classic")
        self.activate()
        self.choose_in(self.list_of(lambda text: text in names), name, names[0])

    def choose_rate(self, rate):
        """Sets the rate of the recordings to come, in the frame-rate dialog."""
        self.press("Frames per Second")
        dialog = self.await_control("dialog", "Frames per Second")
        self.choose_in(wait_for("the list of rates",
                                lambda: next(search(dialog, "combo box"), None)), str(rate), "1")
        self.press("OK")
        self.wait_for("the dialog to close", lambda: not self.find("dialog"))

    def record(self, seconds):
        """Record, Stop, and the frames saved: ends on the Cut tab."""
        self.press("Record")
        self.recording_for(seconds)
        self.press("Stop")
        self.await_tab("Cut")

    def alert(self, patience=PATIENCE):
        """The texts of the alert that is up, once there is one, in one string."""
        item = self.await_control("alert", patience=patience)
        return "\n".join([item.get_name(), *(content(label) for label in search(item, "label"))])

    def dismiss_alert(self, wanted):
        """Closes the alert, which has to say what is wanted: its texts."""
        said = self.alert()
        assert wanted in said, f"expected {wanted!r}, the alert says {said!r}"
        self.press("Close")
        self.wait_for("the alert to close", lambda: not self.find("alert"))
        return said

    def cancel_panel(self, kind="GIF"):
        """Cancels the save panel once it is there."""
        panel_title = f"Select a folder to save the {kind} image"
        panel = self.await_control("dialog", panel_title)
        act(wait_for("the panel's Cancel", lambda: next(search(panel, "push button", "Cancel"), None)))
        self.wait_for("the panel to close", lambda: not self.find("dialog", panel_title))

    def answer(self, wanted, button):
        """Answers the question that is up, which has to say what is wanted."""
        said = self.alert()
        assert wanted in said, f"expected {wanted!r}, the question says {said!r}"
        # The window behind it may have a button of the same name.
        act(wait_for(f"the answer {button}", lambda: next(
            search(self.find("alert"), "push button", button), None)))
        # What it leads to may be another alert.
        self.wait_for("the question to go", lambda: wanted not in self.alert_now())
        return said

    def alert_now(self):
        """The texts of the alert that is up; empty without one."""
        try:
            return self.alert(patience=0) if self.find("alert") else ""
        except (Late, bus_errors()):
            return ""  # it went away while it was read

    def save_panel(self, path, replace=False, patience=PATIENCE, kind="GIF"):
        """Types the path into the save panel and confirms it, once more if a file is replaced."""
        panel_title = f"Select a folder to save the {kind} image"
        panel = self.await_control("dialog", panel_title, patience)
        field = wait_for("the panel's name field", lambda: next(search(panel, "text"), None))
        wait_for("a preset name", lambda: re.fullmatch(
            rf"Tovarel \d{{4}}-\d\d-\d\d \d\d\.\d\d\.\d\d( \(\d+\))?\.{kind.lower()}", content(field)))

        def is_typed():
            # Again where it was lost: the panel fills the field in while it reads the folder.
            field.set_text_contents(str(path))
            return content(field) == str(path)

        wait_for("the path in the field", is_typed, between=0.2)
        self.press("Save")
        if replace:
            self.press("Yes")
        self.wait_for("the panel to close", lambda: not self.find("dialog", panel_title))
