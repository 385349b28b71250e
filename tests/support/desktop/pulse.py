"""The pulse of a program's user interface: whether it answers while it works.

A library that is loaded into the program writes down when it was free to answer, each 10 ms. The format
of its file is drawn in tests/support/pulse/pulse.cpp.
"""

import array
import itertools
import time

from desktop.waiting import wait_until


class Pulse:
    """Of a program that is started with `environment` added to its own."""

    def __init__(self, home, program):
        """`program` is its file; the library was built beside it, with the tests."""
        library = program.parent / "tests" / "pulse.so"
        if not library.exists():
            raise FileNotFoundError(f"There is no {library}.")
        self._file = home.runtime / "pulse"
        self.environment = {"LD_PRELOAD": str(library), "ZELVANE_PULSE": str(self._file)}

    def gaps(self, since):
        """Seconds between two deliveries, of all that reach from the time `since` (of Python's
        monotonic clock) to the next delivery from now on: a program that still hangs is waited for."""
        now = time.monotonic()
        wait_until(lambda: self._beats()[-1] > now, "the program answers again")
        beats = self._beats()
        return [after - before for before, after in itertools.pairwise(beats) if after > since]

    def _beats(self):
        data = self._file.read_bytes()
        numbers = array.array("q", data[:len(data) // 8 * 8])
        return [number / 1e9 for number in numbers]
