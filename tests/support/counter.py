# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""Reads pictures back: decodes frames and GIFs, and finds the counter in them that
counter_window shows."""

import subprocess

CELLS = 9  # eight digits, the least significant first, and their sum
COLOURS = ((0xE0, 0, 0), (0, 0xC0, 0), (0, 0, 0xE0), (0xE0, 0xE0, 0))
# How far a cell may be from its colour, summed over red, green and blue: a palette of 256 colours
# made from a scaled video misses by some, another window's picture by far more.
TOLERANCE = 150


class Picture:
    """One decoded picture, three bytes a pixel, rows from the top."""

    def __init__(self, width, height, data):
        self.width, self.height, self.data = width, height, data

    def pixel(self, x, y):
        at = (y * self.width + x) * 3
        return tuple(self.data[at : at + 3])

    def mean(self, x, y, half=2):
        """The mean colour of the square around a point: dithering averages out."""
        found = [
            self.pixel(column, row)
            for row in range(y - half, y + half + 1)
            for column in range(x - half, x + half + 1)
        ]
        return tuple(sum(channel) / len(found) for channel in zip(*found))


def decode(path, pattern=False):
    """The pictures of a file (a PNG, a GIF) or of a numbered sequence of files, in order."""
    size = probe(path, "stream=width,height", pattern)[0]
    width, height = (int(text) for text in size.split(","))
    kind = ["-f", "image2"] if pattern else []
    raw = subprocess.run(
        ["ffmpeg", "-v", "error", *kind, "-i", path, "-fps_mode", "passthrough"]
        + ["-f", "rawvideo", "-pix_fmt", "rgb24", "-"],
        check=True, stdin=subprocess.DEVNULL, capture_output=True, timeout=120,
    ).stdout
    step = width * height * 3
    assert len(raw) % step == 0, f"{path}: pictures of several sizes"
    return [Picture(width, height, raw[at : at + step]) for at in range(0, len(raw), step)]


def probe(path, entries, pattern=False):
    """Lines of ffprobe's answer about the first stream."""
    kind = ["-f", "image2"] if pattern else []
    return subprocess.run(
        ["ffprobe", "-v", "error", "-select_streams", "v:0", *kind, "-i", path]
        + ["-show_entries", entries, "-of", "csv=print_section=0"],
        check=True, stdin=subprocess.DEVNULL, capture_output=True, timeout=60, text=True,
    ).stdout.split()


def durations(path):
    """How long each picture of a GIF is shown, in seconds."""
    return [float(text.strip(",")) for text in probe(path, "packet=duration_time")]


def read(picture, x, y, width, height):
    """The number shown by a counter window whose inside lies there, or None when that place does
    not hold one that is whole: covered, cut, or a picture of something else."""
    values = []
    for cell in range(CELLS):
        left, right = width * cell // CELLS, width * (cell + 1) // CELLS
        # Three places in each cell: a window that covers a part of it is noticed.
        seen = {
            nearest(picture.mean(x + (left + right) // 2, y + height * place // 16))
            for place in (9, 12, 15)
        }
        if len(seen) != 1 or None in seen:
            return None
        values.append(seen.pop())
    if sum(values[:-1]) % 4 != values[-1]:
        return None
    return sum(value << (2 * index) for index, value in enumerate(values[:-1]))


def nearest(colour):
    """The digit that a colour stands for, or None when it is none of ours."""
    misses = [sum(abs(a - b) for a, b in zip(colour, wanted)) for wanted in COLOURS]
    best = min(misses)
    return misses.index(best) if best <= TOLERANCE else None
