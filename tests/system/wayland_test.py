# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""The real program in a real Wayland session: a compositor, PipeWire and the desktop's portal, whose
dialog is answered as each test wants it."""

import contextlib
import functools
import os
import pty
import signal
import subprocess
import sys
import time

import case
import counter
import wayland_session
from driver import Program, act, wait_for

RATE = 10  # steps of the counter a second
# What nothing else on the screen is painted in.
OURS = (0xFF, 0x00, 0xFE)
STYLE = "* { background: #ff00fe; color: #ff00fe }"
CHOOSE = "Choose What to Record…"
HOW_TO = "MACBrenmoor_Lumsey_b_Show_Select_Region_How_To"
HIDDEN, EMBEDDED = "1", "2"  # cursor modes of the portal
TOKEN = "ScreenCastToken"


class Wayland(case.Case):
    screen = (1280, 720)
    # Two monitors of one size: their places tell them apart.
    session_type = functools.partial(wayland_session.WaylandSession, monitors=["1280x720"] * 2)

    def setUp(self):
        self.session.answer_with()
        self.settings.unlink()
        self.session.remember_quality("classic")
        self.known = len(self.session.asked())
        self.counters = 0

    def tearDown(self):
        super().tearDown()
        for child in self.session.children:
            if "wayland_counter" in str(child.args[0]) and child.poll() is None:
                child.kill()
                child.wait()

    @property
    def settings(self):
        return self.session.home / ".config" / "Tovarel" / "Tovarel.conf"

    # What a user does ------------------------------------------------------------------------

    def show_counter(self, *options):
        """The process of a counter that is on the screen."""
        self.counters += 1
        name = f"counter-{self.id()}-{self.counters}"
        child = self.session.start(
            name, [self.session.build / "tests/support/wayland_counter", "--rate", str(RATE)]
            + [*options], stdin=-1)
        wait_for("the counter's window", lambda: "shown" in self.session.output(name))
        return child

    def start_program(self):
        sheet = self.session.folder / "ours.qss"
        sheet.write_text(STYLE)
        return Program(self.session, command=[
            "sh", "-c", f'exec "$0" -stylesheet {sheet}'], remembering=True)

    def choose(self, program, what="Monitor"):
        program.press(CHOOSE)
        program.await_label(what)

    def asked(self, method):
        """The options of the portal's questions of this test."""
        return [options for name, options in self.session.asked()[self.known:] if name == method]

    def away(self, program):
        """Waits until a recording runs whose window has gone."""
        program.wait_for("the recording", lambda: program.frame().get_name().startswith("Rec"))

    def bring_back(self, program):
        """As a click in the dock does: the program is started once more."""
        Program(self.session, wait=False, remembering=True).status()
        program.wait_for("the pause", lambda: program.frame().get_name().startswith("Paused"))

    def frames(self):
        return counter.decode(str(self.session.frames / "frame%08d.png"), pattern=True)

    def check_frames(self, frames, fewest):
        """Each holds a whole counter, in order, and nothing of our window."""
        self.assertGreaterEqual(len(frames), fewest)
        numbers = [counter.read(frame, 0, 0, *self.screen) for frame in frames]
        self.assertNotIn(None, numbers)
        self.assertEqual(numbers, sorted(numbers))
        return numbers

    def edges_from(self, left):
        """Where the cells of a counter that fills the screen begin, counted from there."""
        return {self.screen[0] * cell // counter.CELLS - left for cell in range(counter.CELLS)}

    def edges_in(self, picture):
        """Where the colour changes along a row that is in the counter's cells."""
        return {x for x in range(1, picture.width)
                if picture.pixel(x, 150) != picture.pixel(x - 1, 150)}

    def await_words(self, terminal, words):
        said = ""

        def has_them():
            nonlocal said
            with contextlib.suppress(BlockingIOError):
                said += os.read(terminal, 4096).decode()
            return words in said
        wait_for(words, has_them)

    # Tests -----------------------------------------------------------------------------------

    def test_from_the_dialog_to_a_gif_without_our_window(self):
        self.show_counter()
        program = self.start_program()
        # Record asks by itself when nothing was chosen.
        program.press("Record")
        program.answer("gets out of the way", "Cancel")
        self.assertEqual(program.frame().get_name(), "Tovarel")
        program.press("Record")
        program.answer("gets out of the way", "OK")
        self.away(program)
        time.sleep(1.5)
        self.bring_back(program)
        time.sleep(0.5)  # Our window is in every picture now, and must not be in any frame.
        program.press("Record")  # which explains nothing any more
        self.away(program)
        time.sleep(1)
        self.bring_back(program)
        program.press("Stop")
        program.await_tab("Cut")
        self.assertEqual(len(self.asked("Start")), 1)
        frames = self.frames()
        self.check_frames(frames, 6)
        for number, frame in enumerate(frames):
            for y in range(0, frame.height, 40):
                row = frame.data[y * frame.width * 3 : (y + 1) * frame.width * 3]
                self.assertNotIn(bytes(OURS), row, f"our window in frame {number}")

        program.enter("GIF")
        target = self.session.folder / "wayland.gif"
        pictures = self.check_gif(program, target)
        self.check_frames(pictures, 6)

        # The stream was given back with the tab, and is taken again without a question.
        program.enter("Record")
        program.await_label("Monitor")
        self.assertIn("restore_data", self.asked("SelectSources")[-1])
        program.end()
        self.assertIn(TOKEN, self.settings.read_text())
        # A later start remembers, though it asks for nothing by itself.
        count = len(self.asked("Start"))
        program = self.start_program()
        program.await_label("Your desktop asks")
        self.assertEqual(len(self.asked("Start")), count)
        self.choose(program)
        self.assertIn("restore_data", self.asked("SelectSources")[-1])
        program.end()
        # The portal may give the same one again, but it has to be the last one given.
        self.assertIn(TOKEN, self.settings.read_text())

    def test_a_refusal_is_no_error_and_nonsense_is_one_that_is_told(self):
        program = self.start_program()
        for answer, words in (("refuse", "Nothing was chosen"), ("odd", "no pictures")):
            self.session.answer_with(answer=answer)
            for button in (CHOOSE, "Record"):
                program.press(button)
                program.await_label(words)
                self.assertIsNone(program.find("alert"))
                self.assertEqual(program.frame().get_name(), "Tovarel")
        self.session.answer_with(
            keys={"record": "Press <Control><Super>r", "pause": "Press <Control><Super>p"})
        self.choose(program)
        program.await_label("in any window, with Ctrl+Super: R Record · P Pause")
        # The compositor draws the pointer, or not, as the switch says.
        self.assertEqual(self.asked("SelectSources")[-1]["cursor_mode"], EMBEDDED)
        act(program.await_control("check box", "Pointer"))
        wait_for("a session without it", lambda: self.asked("SelectSources")[-1]["cursor_mode"] == HIDDEN)
        program.await_label("Monitor")

    def test_keys_of_the_desktop_record_and_stop(self):
        keys = {"record": "Super+Ctrl+R", "stop": "F9"}
        self.session.answer_with(keys=keys)
        self.show_counter()
        self.settings.write_text(self.settings.read_text() + "SteppingAsideExplained=1\n")
        program = self.start_program()
        self.assertEqual(self.asked("BindShortcuts"), [])
        self.choose(program)
        program.await_label("Shortcuts in any window: Super+Ctrl+R Record · F9 Stop")
        self.assertEqual(self.asked("BindShortcuts"), [
            {"record": "LOGO+CTRL+r", "pause": "LOGO+CTRL+p", "stop": "LOGO+CTRL+s"}])
        self.session.press_key("record", keys=keys)
        self.away(program)
        time.sleep(1)
        self.session.press_key("stop", keys=keys)
        program.await_tab("Cut")
        program.end()
        # What was granted once is asked for in time for a recording that begins by itself.
        program = self.start_program()
        program.press("Record")
        wait_for("the question", lambda: len(self.asked("BindShortcuts")) == 2)
        self.away(program)
        time.sleep(1)
        self.session.press_key("stop", keys=keys)
        program.await_tab("Cut")

    def region_frames(self, place):
        """Frames of this region, (x, y, width, height), of the monitor that was chosen."""
        with open(self.settings, "a", encoding="utf-8") as settings:
            # What explains them is another test's, and the pointer may stand anywhere.
            settings.write(f"{HOW_TO}=0\nSteppingAsideExplained=1\nShowPointer=0\n")
        program = self.start_program()
        program.press("Region")
        program.await_control("dialog", "Select a Region")
        for name, value in zip(("X", "Y", "Width", "Height"), place):
            program.await_control("spin button", name).set_current_value(value)
        program.await_label("Region {2} × {3} at {0},\xa0{1}".format(*place))
        program.press("Use Region")
        program.wait_for("the end of it", lambda: not program.find("dialog", "Select a Region"))
        program.press("Record")
        self.away(program)
        time.sleep(1)
        self.bring_back(program)
        program.press("Stop")
        program.await_tab("Cut")
        frames = self.frames()
        self.assertEqual({(frame.width, frame.height) for frame in frames}, {place[2:]})
        return frames

    def test_a_dialog_stands_over_a_window_of_the_x_server(self):
        display = {"DISPLAY": self.session.start_display("Xvfb"), "QT_QPA_PLATFORM": "xcb"}
        program = Program(self.session, display, remembering=True)
        self.choose(program)
        kind, number = self.asked("Start")[-1]["parent"].split(":")
        named = subprocess.run(["xprop", "-id", f"0x{number}", "WM_CLASS"], check=True, text=True,
                               env={**self.session.environment, **display}, capture_output=True)
        self.assertEqual(kind, "x11")
        self.assertIn("Tovarel", named.stdout)

    def test_a_region_is_chosen_on_a_still_and_recorded_to_the_pixel(self):
        # As a monitor at the scale 1.25 is told: pixels of the picture count, and the monitor is
        # known by its place.
        self.session.answer_with(connector="Meta-1", size=[1024, 576])
        self.show_counter("--screen", "1")
        place = (100, 300, 300, 200)
        seen = set()
        for frame in self.region_frames(place):
            self.assertEqual(frame.pixel(20, 59), (0x20, 0x20, 0x20))
            self.assertIn(frame.pixel(20, 60), counter.COLOURS)
            seen |= self.edges_in(frame)
        self.assertTrue(seen)
        self.assertLessEqual(seen, self.edges_from(place[0]))

    def test_at_a_broken_scale_a_region_is_where_it_was_framed(self):
        # The toolkit draws everything at the scale 2, and the compositor makes 1.5 of it.
        self.session.scale(1.5)
        try:
            self.show_counter()
            for frame in self.region_frames((100, 300, 300, 200)):
                seen = [x for x in range(1, 300)
                        if max(map(abs, map(int.__sub__, frame.pixel(x, 150),
                                            frame.pixel(x - 1, 150)))) > 60]
                for cell in range(1, 3):
                    edge = self.screen[0] * cell // counter.CELLS - 100
                    self.assertTrue(all(abs(x - edge) <= 2 for x in seen if abs(x - edge) < 70), seen)
                self.assertEqual(frame.pixel(20, 56), (0x20, 0x20, 0x20))
                self.assertIn(frame.pixel(20, 64), counter.COLOURS)
        finally:
            self.session.scale(1)

    def test_what_the_desktop_ends_is_kept(self):
        program = self.start_program()
        self.session.answer_with(answer="hang")
        program.press(CHOOSE)
        program.await_label("in the desktop’s dialog")
        wait_for("the question", lambda: self.asked("Start"))
        self.session.end_casts()
        program.await_label("stopped sharing")
        self.session.answer_with()
        self.choose(program)
        self.session.end_casts()
        program.await_label("stopped sharing")

        self.show_counter()
        self.choose(program)
        program.press("Record")
        program.answer("gets out of the way", "OK")
        self.away(program)
        time.sleep(1)
        self.session.end_casts()
        program.await_tab("Cut")
        self.check_frames(self.frames(), 3)
        program.enter("Record")
        program.await_label("stopped sharing")

    def test_a_window_is_recorded_where_it_is_and_in_its_first_size(self):
        self.session.answer_with(kind="window")
        program = self.start_program()
        window = self.show_counter("--size", "400x300")  # which has the focus, and so is chosen
        self.choose(program, "Window 400 × 300")
        program.press("Record")
        program.recording_for(1)
        window.stdin.write(b"600x300\n")
        window.stdin.flush()
        program.await_label("Size changed")
        time.sleep(1)
        program.press("Stop")
        program.await_tab("Cut")
        frames = self.frames()
        self.assertEqual({(frame.width, frame.height) for frame in frames}, {(400, 300)})
        self.assertIsNotNone(counter.read(frames[0], 0, 0, 400, 300))
        # As wide as before, and less high: black above and below.
        last = frames[-1]
        self.assertIsNotNone(counter.read(last, 0, 50, 400, 200))
        self.assertEqual({last.pixel(200, 10), last.pixel(200, 290)}, {(0, 0, 0)})

    def test_a_script_records_a_monitor_that_the_desktop_asks_for(self):
        # As a monitor at the scale 2 is told, whose picture the window would halve. A window that
        # was chosen the last time is none.
        self.session.answer_with(kind="window", size=[640, 360])
        self.show_counter()
        program = self.start_program()
        self.choose(program, "Window")
        program.end()
        target = self.session.folder / "script.gif"
        asked = ("record", "--seconds", 1, "--rate", 10, "-o", target)
        self.assertEqual(self.run_it(*asked, "--screen")[:2], (0, f"{target}\n"))
        self.check_frames(counter.decode(str(target)), 5)
        self.assertGreaterEqual(sum(counter.durations(str(target))), 0.95)
        self.assertIn("restore_data", self.asked("SelectSources")[-2])
        self.assertNotIn("restore_data", self.asked("SelectSources")[-1])

        # What the script was granted is what the next one begins with. The desktop ends this one.
        self.session.answer_with(size=[640, 360])
        cut = (16, 360, 400, 300)
        x, y, width, height = cut
        terminal, its_end = pty.openpty()
        os.set_blocking(terminal, False)
        with self.running("record", "--region", f"{width}x{height}+{x}+{y}", "--seconds", 600,
                          "--rate", 10, "-o", target, "--force", stderr=its_end) as process:
            os.close(its_end)
            self.await_words(terminal, "Frames: 10")
            self.session.end_casts()
            self.await_words(terminal, "stopped sharing")
            said, _ = process.communicate(timeout=case.driver.PATIENCE)
        os.close(terminal)
        self.assertEqual((process.returncode, said), (0, f"{target}\n"))
        self.assertIn("restore_data", self.asked("SelectSources")[-1])
        for picture in counter.decode(str(target)):
            self.assertEqual((picture.width, picture.height), (width, height))
            self.assertLessEqual(self.edges_in(picture), self.edges_from(x))
        self.assertEqual([], list(self.session.folder.glob("Tovarel-*")), "nothing is left behind")

    def test_a_script_is_told_what_cannot_be_recorded(self):
        whole = ("record", "--screen", "--seconds", 1, "-o", "none.gif")
        for answer, arguments, words in (
                ("refuse", whole, "Nothing was chosen"),
                ("odd", whole, "no pictures"),
                # WirePlumber says from 0.5 on that there is no such node, and only ended before.
                ("no node", whole, "stopped sharing|no pictures .* not found"),
                ("grant", ("record", "--region", "1280x720+1+0", "--seconds", 1), "1280 × 720"),
                ("grant", ("record", "--screen", 1, "--seconds", 1), "dialog"),
                ("grant", ("record", "--window", "counter", "--seconds", 1), "dialog")):
            self.session.answer_with(answer=answer)
            status, said, complained = self.run_it(*arguments)
            self.assertEqual((status, said), (3, ""), arguments)
            self.assertRegex(complained, words)
        # The question stands for as long as it takes; an interrupt ends it.
        self.session.answer_with(answer="hang")
        count = len(self.asked("Start"))
        with self.running(*whole) as process:
            wait_for("the question", lambda: len(self.asked("Start")) > count)
            process.send_signal(signal.SIGINT)
            self.assertEqual(process.wait(case.driver.PATIENCE), 130)

    def test_without_pipewire_the_reason_is_told(self):
        # Last of all, since it does not come back.
        program = self.start_program()
        self.choose(program)
        for name in ("wireplumber", "pipewire"):
            for number in self.session.processes(name):
                os.kill(number, signal.SIGKILL)
        program.await_label("no pictures")
        program.press(CHOOSE)
        program.await_label("no pictures")


class WithoutAPart(case.Case):
    """Sessions that lack something from the beginning."""

    @classmethod
    def setUpClass(cls):
        pass

    def tearDown(self):
        pass

    def test_what_is_missing_is_told(self):
        for part, words in (("pipewire", "no pictures"), ("portal", "has no portal")):
            session = wayland_session.WaylandSession(os.environ["TOVAREL_BUILD"], *self.screen)
            setattr(session, part, False)
            with session:
                self.session = session
                status, said, complained = self.run_it("record", "--screen", "--seconds", 1)
            self.assertEqual((status, said), (3, ""))
            self.assertIn(words, complained)


if __name__ == "__main__":
    LACKING = wayland_session.missing()
    if LACKING:
        print(f"no Wayland session here: {LACKING} is not installed")
        sys.exit(77)
    case.main()
