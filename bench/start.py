#!/usr/bin/python3
"""From the start of a program to its first painted window, against a bare window and KeePassXC."""

import pathlib
import shutil
import subprocess

import section
import turns
from desktop.virtual_desktop import VirtualDesktop


class Start(turns.Contestant):
    """Each start has a session bus of its own, and the home of the starts before."""

    def __init__(self, name, command, options, desktop, goals=()):
        super().__init__(name, goals)
        home = desktop.new_home(command.name)
        self._command = ["dbus-run-session", "--", str(options.build / "first_paint"), str(command)]
        self._environment = desktop.environment(home)
        self._home = home.home

    def measure(self, work):
        answer = subprocess.run(self._command, env=self._environment, cwd=self._home, check=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True)
        wall, processor = answer.stdout.split()
        return float(wall), float(processor)


def contestants(options, desktop):
    bare = Start("a bare window", options.build / "bare_window", options, desktop)
    keepassxc = Start("KeePassXC", pathlib.Path(shutil.which("keepassxc")), options, desktop)
    zelvane = Start("Zelvane", options.build / "zelvane", options, desktop,
                    goals=[(bare, 1.5), (keepassxc, 1.0)])
    return [bare, zelvane, keepassxc]


def main():
    options = section.read_options(__doc__, rounds=21)
    page = section.Section("From the start to the first painted window", options.rounds)
    with VirtualDesktop(window_manager=False, accessibility=False) as desktop:
        all_of_them = contestants(options, desktop)
        for each in all_of_them:
            each.measure(None)  # The first start in a home has more to do, and cold caches.
        turns.take_turns(all_of_them, options.rounds)
    page.add(turns.table(all_of_them))
    page.add("From just before the process is made until the display has drawn a quarter of its "
             "window (of at least\n100 x 60 points); no window manager, warm caches, the second "
             "start in a home. The bare window is\nthe toolkit's (Qt 6) with one label.")
    page.write(options.build)


main()
