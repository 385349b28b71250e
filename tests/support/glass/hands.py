"""Hands on a browser's window: real keys and real clicks, so that the browser takes what happens for
its user's doing. Two pairs of hands share one keyboard: whoever types has it for as long."""

import subprocess
import threading

from desktop.waiting import PATIENCE, wait_until

_keyboard = threading.RLock()


class Hands:
    """`title` is what the browser calls its windows at the end, as in " - Chromium"."""

    def __init__(self, title):
        self._title = title
        self._window = None

    def wait_for_window(self):
        def shown():
            found = _xdotool("search", "--onlyvisible", "--name", self._title, check=False).split()
            return found and found[-1]
        self._window = wait_until(shown, f"a window \"{self._title}\" is there", 60)

    def forget_window(self):
        self._window = None

    @property
    def keyboard(self):
        """To be held in a `with` block by whoever does several things that belong together."""
        return _keyboard

    def press(self, *keys):
        with _keyboard:
            self._take_the_keys()
            _xdotool("key", "--delay", "20", *keys)

    def type(self, text):
        with _keyboard:
            self._take_the_keys()
            _xdotool("type", "--delay", "4", text)

    def go_to(self, address):
        """Types it where addresses are typed."""
        with _keyboard:
            self.press("ctrl+l")
            self.type(address)
            self.press("Return")

    def click_page(self):
        """Clicks in the lower half of the window, far from all bars."""
        with _keyboard:
            self._take_the_keys()
            _xdotool("mousemove", "--window", self._window, "400", "500", "click", "1")

    def _take_the_keys(self):
        _xdotool("windowactivate", "--sync", self._window)


def _xdotool(*arguments, check=True):
    return subprocess.run(["xdotool", *arguments], check=check, capture_output=True, text=True,
                          timeout=PATIENCE).stdout
