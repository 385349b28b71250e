"""What is seen on the screen, whoever has drawn it."""

import re
import subprocess

from desktop.waiting import PATIENCE


class Picture:
    """A part of the screen as it looked at one moment."""

    def __init__(self, left, top, width, height):
        self.left, self.top, self.width, self.height = left, top, width, height
        self._bytes = subprocess.run(
            ["import", "-silent", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}",
             "-depth", "8", "rgb:-"], check=True, capture_output=True, timeout=PATIENCE).stdout
        assert len(self._bytes) == 3 * width * height, "it is all on the screen"

    def row(self, y):
        """The colours of a line, each as red, green, blue."""
        return [self._at(x, y) for x in range(self.width)]

    def column(self, x):
        return [self._at(x, y) for y in range(self.height)]

    def _at(self, x, y):
        start = 3 * (y * self.width + x)
        return tuple(self._bytes[start:start + 3])


def runs(flags):
    """Where one true flag follows the other: pairs of the first and the last."""
    found, start = [], None
    for at, flag in enumerate([*flags, False]):
        if flag and start is None:
            start = at
        elif not flag and start is not None:
            found.append((start, at - 1))
            start = None
    return found


def windows_named(name):
    """Where those windows are that are shown: left, top, width and height of each. A place may be
    beyond the edges of the screen."""
    told = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{re.escape(name)}$",
                           "getwindowgeometry", "--shell", "%@"],
                          capture_output=True, text=True, timeout=PATIENCE).stdout
    return [tuple(map(int, place)) for place in
            re.findall(r"^X=(-?\d+)\nY=(-?\d+)\nWIDTH=(\d+)\nHEIGHT=(\d+)$", told, re.MULTILINE)]
