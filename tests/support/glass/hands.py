"""Hands on a keyboard, for what a browser takes from its user's keys alone. There is one keyboard: who
types has it until what was typed has come of it."""

import subprocess
import threading

from desktop.waiting import PATIENCE, wait_until

# To be held in a `with` block by whoever does several things that belong together.
keyboard = threading.RLock()


class Hands:
    """On the window of one process."""

    def __init__(self, pid, title):
        self._pid = pid
        self._title = title

    def press(self, *keys):
        with keyboard:
            self._take_the_keys()
            _xdotool("key", "--delay", "20", *keys)

    def go_to(self, address):
        """Types it where addresses are typed."""
        with keyboard:
            self.press("ctrl+l")
            _xdotool("type", "--delay", "4", address)
            _xdotool("key", "Return")

    def _take_the_keys(self):
        def has_them():
            window = self._window()
            _xdotool("windowactivate", window)
            return window and _xdotool("getwindowfocus", check=False).strip() == window
        wait_until(has_them, f"the window \"{self._title}\" has the keys", 60)

    def _window(self):
        found = _xdotool("search", "--onlyvisible", "--all", "--pid", str(self._pid), "--name",
                         self._title, check=False).split()
        if not found:
            raise LookupError(f"no window \"{self._title}\"")
        return found[-1]


def _xdotool(*arguments, check=True):
    done = subprocess.run(["xdotool", *arguments], capture_output=True, text=True, timeout=PATIENCE)
    if check and done.returncode:
        raise LookupError(f"xdotool {' '.join(arguments)}: {done.stderr}")
    return done.stdout
