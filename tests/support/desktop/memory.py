"""How much memory a program takes at the most."""

import pathlib
import threading

INTERVAL = 0.02  # seconds between two looks


class MemoryWatch:
    """Looks at the process again and again as long as the `with` block lasts. `most` is in bytes:
    what the process has for itself, and its share of what it has together with others."""

    def __init__(self, pid):
        self._pid = pid
        self._over = threading.Event()
        self._thread = threading.Thread(target=self._watch)
        self.most = 0

    def __enter__(self):
        self._look()
        self._thread.start()
        return self

    def __exit__(self, *reason):
        self._over.set()
        self._thread.join()

    def _watch(self):
        while not self._over.wait(INTERVAL):
            try:
                self._look()
            except (FileNotFoundError, ProcessLookupError):
                return  # The process has ended.

    def _look(self):
        self.most = max(self.most, share_of(self._pid))


def share_of(pid):
    """What the process has now, in bytes, reckoned likewise."""
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text("ascii").splitlines()
    return next(int(line.split()[1]) * 1024 for line in lines if line.startswith("Pss:"))
