# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Takes every picture of the program anew: screenshots.py BUILD [FOLDER]

FOLDER (docs) gets the window on each of the three tabs, in screenshots/, and demo.gif, which is a
recording of Tovarel by Tovarel. BUILD/sheets gets all tabs and dialogs in all languages, light and
dark, to be looked at. Shown is the real program on a virtual display, worked through its own
interface.
"""

import pathlib
import signal
import subprocess
import sys
import time

# What drives the program in the tests drives it here.
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))

import driver  # noqa: E402  pylint: disable=wrong-import-position

SCREEN = (1600, 900)  # pixels
SIZE = (860, 600)  # of the window, in pixels
RECORDED = 4  # seconds
LOOKED_AT = 1.2  # seconds that a viewer needs to see what has happened
LONGEST = 60  # seconds of the demonstration
STEPS = 12  # of the pointer on its way


class Stage:
    """The program on a screen with something moving on it."""

    def __init__(self, build):
        self.session = driver.Session(build, *SCREEN, quality=None)
        self.session.pointer = True

    def __enter__(self):
        self.session.__enter__()
        self.session.start("scene", [self.session.build / "scripts" / "sheets" / "scene_window"])
        driver.wait_for("the scene", lambda: self.session.xdotool(
            "search", "--onlyvisible", "--name", "^scene$", check=False))
        self.program = driver.Program(self.session)
        number = self.program.window()
        self.session.xdotool("windowsize", number, *SIZE)
        self.session.xdotool("windowmove", number, 360, 130)
        driver.wait_for("the size", lambda: self.program.place()[2:] == SIZE)
        # Under its own name another Tovarel would leave it out of the picture.
        subprocess.run(["xprop", "-id", number, "-f", "WM_CLASS", "8s", "-set", "WM_CLASS", "subject"],
                       check=True, env=self.session.environment)
        return self

    def __exit__(self, *ending):
        return self.session.__exit__(*ending)

    def picture(self, target):
        """The window as the desktop shows it, without its frame."""
        left, top, width, height = self.program.place()
        subprocess.run(
            ["ffmpeg", "-v", "error", "-y", "-f", "x11grab", "-draw_mouse", "0"]
            + ["-video_size", f"{width}x{height}"]
            + ["-i", f"{self.session.environment['DISPLAY']}+{left},{top}", "-frames:v", "1", target],
            check=True, stdin=subprocess.DEVNULL, timeout=driver.PATIENCE)
        print(target, flush=True)

    def glide(self, x, y):
        """Moves the pointer as a hand does."""
        here = dict(part.split(":") for part in self.session.xdotool("getmouselocation").split())
        from_x, from_y = int(here["x"]), int(here["y"])
        for step in range(1, STEPS + 1):
            part = step / STEPS
            self.session.xdotool("mousemove", round(from_x + (x - from_x) * part),
                                 round(from_y + (y - from_y) * part))
            time.sleep(0.5 / STEPS)
        time.sleep(0.2)

    def press(self, item, *modifiers):
        """Goes to a control and clicks it."""
        self.glide(*driver.middle(item))
        for key in modifiers:
            self.session.xdotool("keydown", key)
        self.session.xdotool("click", 1)
        for key in modifiers:
            self.session.xdotool("keyup", key)

    def work(self, see):
        """From Record to the finished GIF; `see` is called with the name of each tab once there is
        something to be seen on it."""
        program = self.program
        time.sleep(LOOKED_AT)
        self.press(program.button("Record"))
        program.recording_for(RECORDED / 2)
        see("record")
        time.sleep(RECORDED / 2)
        self.press(program.button("Stop"))
        program.await_tab("Cut")
        time.sleep(LOOKED_AT)
        self.shorten()
        see("cut")
        self.press(program.await_control("page tab", "GIF"))
        program.await_tab("GIF")
        time.sleep(2 * LOOKED_AT)
        self.press(program.button("Generate GIF"), "shift")
        program.button("Copy")
        time.sleep(2 * LOOKED_AT)
        see("gif")

    def shorten(self):
        """Drags the last handle to the left."""
        handle = self.program.all("slider")[-1]
        x, y = driver.middle(handle)
        self.glide(x, y)
        self.session.xdotool("mousedown", 1)
        self.glide(x - 160, y)
        self.session.xdotool("mouseup", 1)
        time.sleep(LOOKED_AT)


def show(build, pictures, demonstration):
    """Works the program, takes its pictures, and lets another Tovarel record all of it."""
    with Stage(build) as stage:
        left, top, width, height = stage.program.place()
        frame = 24  # pixels, above the window
        recorder = stage.session.start("recorder", [
            stage.session.build / driver.BINARY, "record", "--force", "-o", demonstration,
            "--region", f"{width}x{height + frame}+{left}+{top - frame}", "--rate", "12",
            "--seconds", str(LONGEST), "--quality", "small"])
        stage.work(lambda tab: stage.picture(pictures / f"{tab}.png"))
        recorder.send_signal(signal.SIGINT)
        status = recorder.wait(timeout=2 * driver.PATIENCE)
        assert status == 0, f"the recorder ended with {status}:\n{stage.session.output('recorder')}"
    print(demonstration, flush=True)


def main(build, folder="docs"):
    build, folder = pathlib.Path(build).resolve(), pathlib.Path(folder).resolve()
    pictures = folder / "screenshots"
    pictures.mkdir(parents=True, exist_ok=True)
    subprocess.run(["cmake", "--build", build, "--target", "tovarel", "interface_sheets",
                    "scene_window"], check=True)
    show(build, pictures, folder / "demo.gif")
    subprocess.run([build / "scripts" / "sheets" / "interface_sheets", build / "sheets"], check=True)


if __name__ == "__main__":
    main(*sys.argv[1:])
