#!/usr/bin/python3
"""Erasing a history of 500,000 visits, against BleachBit."""

import os
import pathlib
import tempfile

import big_history
import section
import turns


MOST_MEMORY = 40  # MiB


class OfHome(turns.Command):
    """A whole process that cleans the home which is its work. Cold, the home's files have to come
    from the disk. `left` is how many addresses were still to be found in it, bookmarks' apart."""

    def __init__(self, name, command, history, cold, goals=()):
        super().__init__(name, lambda home: command, goals)
        self.left = None
        self._history = history
        self._cold = cold

    def environment(self, work):
        return {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(work)}

    def measure(self, work):
        if self._cold:
            forget(work)
        times = super().measure(work)
        if self.left is None:
            self.left = self._history.left_in(work)
        return times


def forget(folder):
    """Tells the system that nobody will need these files soon, so that it keeps none in memory."""
    for path in pathlib.Path(folder).rglob("*"):
        if path.is_file():
            with open(path, "rb") as file:
                os.fsync(file.fileno())
                os.posix_fadvise(file.fileno(), 0, 0, os.POSIX_FADV_DONTNEED)


def contestants(options, history, cleaner, limit, cold):
    peer = OfHome("BleachBit", ["bleachbit", "--clean", cleaner], history, cold)
    return [peer, OfHome("Zelvane", [str(options.build / "erase_history")], history, cold,
                         [(peer, limit)])]


def memory(contestant, history):
    """In MiB."""
    home = history.make()
    most = contestant.memory(home) / 2**20
    if contestant.goals:  # whose goal it is must reach it without harm
        history.refuse_harm(home)
    history.end(home)
    return most


def found(both, history):
    most = [memory(each, history) for each in both]
    verdict = "met" if most[1] < MOST_MEMORY else "**not met**"
    held = ", ".join(f"{each.name} {megabytes:.0f} MiB" for each, megabytes in zip(both, most))
    left = ", ".join(f"{each.name} {each.left:,}" for each in both)
    return (f"Addresses left in the files: {left}. The most memory (PSS): {held}; goal under "
            f"{MOST_MEMORY} MiB: {verdict}.")


def main():
    options = section.read_options(__doc__)
    page = section.Section("Erasing a history of 500,000 visits to 200,000 pages", options.rounds)
    for name, fill, cleaner, limit in (
            ("Firefox", big_history.firefox, "firefox.url_history", 0.1),
            ("Chromium", big_history.chromium, "chromium.history", 0.25)):
        for place in options.places:
            # What lies in memory is never cold.
            for cold in (False, True) if place.file_system != "tmpfs" else (False,):
                with tempfile.TemporaryDirectory(dir=place.folder) as folder:
                    history = big_history.BigHistory(pathlib.Path(folder), fill)
                    both = contestants(options, history, cleaner, limit, cold)
                    turns.take_turns(both, options.rounds, history.make, history.end)
                    page.add(turns.table(both), heading=f"{name}, on {place.file_system}, "
                                                        f"{'cold' if cold else 'warm'}")
                    page.add(found(both, history))
    page.add("From the start of the process to its end, each on a copy of the same profile: visits, "
             "pages, icons; 200\nbookmarks stay, with theirs. BleachBit's line is that of its option "
             "for the history alone.")
    page.write(options.build)


main()
