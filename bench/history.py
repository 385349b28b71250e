#!/usr/bin/python3
"""Erasing a history of 500,000 visits, against BleachBit."""

import os
import pathlib
import tempfile

import big_history
import section
import turns


class OfHome(turns.Contestant):
    """A whole process that cleans the home which is its work."""

    def __init__(self, name, command, goals=()):
        super().__init__(name, goals)
        self._command = command

    def measure(self, work):
        environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": str(work)}
        return turns.Command(self.name, lambda home: self._command,
                             environment=environment).measure(work)


def contestants(options, cleaner, limit):
    peer = OfHome("BleachBit", ["bleachbit", "--clean", cleaner])
    return [peer, OfHome("Zelvane", [str(options.build / "erase_history")], goals=[(peer, limit)])]


def main():
    options = section.read_options(__doc__)
    page = section.Section("Erasing a history of 500,000 visits to 200,000 pages", options.rounds)
    place = options.places[-1]
    for name, fill, cleaner, limit in (
            ("Firefox", big_history.firefox, "firefox.url_history", 0.1),
            ("Chromium", big_history.chromium, "chromium.history", 0.25)):
        with tempfile.TemporaryDirectory(dir=place.folder) as folder:
            history = big_history.BigHistory(pathlib.Path(folder), fill)
            both = contestants(options, cleaner, limit)
            turns.take_turns(both, options.rounds, history.make, history.end)
        page.add(turns.table(both), heading=f"{name}, on {place.file_system}")
    page.add("From the start of the process to its end, each on a copy of the same profile: visits, "
             "pages, icons; 200\nbookmarks stay, with theirs. BleachBit's line is that of its option "
             "for the history alone.")
    page.write(options.build)


main()
