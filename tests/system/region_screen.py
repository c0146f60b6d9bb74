# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
"""What the window with the known pattern shows, and the arithmetic of a region on a screen."""

import math


def colour(x, y, block=1):
    """What pattern_window shows in a pixel."""
    x, y = x // block, y // block
    return (37 * x + 11 * y) & 255, (5 * x + 73 * y) & 255, (x ^ y) & 255


def cut_out(x, y, width, height, block):
    """The bytes of a picture of the pattern, one pixel a block."""
    return bytes(channel for row in range(y, y + height) for column in range(x, x + width)
                 for channel in colour(column * block, row * block, block))


class Screen:
    """Where a display lies on the desktop, in pixels, and the overlay's arithmetic on it."""

    def __init__(self, x, y, width, height, scale):
        self.x, self.y, self.width, self.height, self.scale = x, y, width, height, scale
        self.points = (math.floor(width / scale + 0.5), math.floor(height / scale + 0.5))

    def start(self):
        """The edges of the region that the overlay opens with: left, bottom, right, top, in points
        from the screen's lower left corner."""
        left, bottom = int((self.points[0] - 320) / 2), int((self.points[1] - 240) / 2)
        return left, bottom, left + 320, bottom + 240

    def pixel(self, x, y):
        """The desktop's pixel at a point of this screen."""
        return (self.x + math.floor(x * self.scale + 0.5),
                self.y + math.floor((self.points[1] - y) * self.scale + 0.5))

    def point(self, x, y):
        """The pointer's place in points, at a pixel of the desktop."""
        return (x - self.x) / self.scale, self.points[1] - (y - self.y) / self.scale

    def dragged(self, corner, pixel):
        """Where a corner goes whose square is picked up at the corner and dragged to a pixel that
        is not on the screen's edge: it keeps its distance to the pointer."""
        moves = zip(corner, self.point(*pixel), self.point(*self.pixel(*corner)))
        return tuple(math.floor(place + to - picked + 0.5) for place, to, picked in moves)

    def recorded(self, left, bottom, right, top):
        """The desktop's pixels between these edges: x, y, width, height."""
        x, y = self.pixel(left, top)
        end = self.pixel(right, bottom)
        return x, y, end[0] - x, end[1] - y
