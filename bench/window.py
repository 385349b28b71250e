#!/usr/bin/python3
"""Erasing a tree by the button of the program's window, against `rm -rf`."""

import ctypes
import itertools
import subprocess
import time

import section
import trees
import turns
from desktop import settings
from desktop.accessible import BUTTON, wait_for
from desktop.program import Program
from desktop.removals import Removals
from desktop.virtual_desktop import VirtualDesktop
from desktop.window import CLEAN


class Button(turns.Contestant):
    """Each time the program is started anew, in a home of its own whose folder for temporary files
    is the tree. What is timed begins when the pressed button is let go, and ends when the system
    tells that the last folder is gone."""

    def __init__(self, options, desktop, goals):
        super().__init__("Zelvane, its button pressed", goals)
        self._program = options.build / "zelvane"
        self._folders = options.folders
        self._desktop = desktop
        self._homes = (desktop.new_home(f"user {number}") for number in itertools.count())

    def measure(self, work):
        home = next(self._homes)
        home.temporary = work
        settings.tick_only(home, self._program, settings.TEMPORARY_FILES)
        with Program(self._program, self._desktop, home) as program, Removals(work) as removals:
            window = program.window()
            x, y = window.find(BUTTON, CLEAN).centre()
            pointer("mousemove", x, y, "mousedown", 1)
            processor = processor_time(program.pid)
            start = time.monotonic()
            pointer("mouseup", 1)
            removals.wait_for(self._folders)
            wall = time.monotonic() - start
            processor = processor_time(program.pid) - processor
            wait_for(lambda: window.log.text().endswith("\nDone"), "the log ends with \"Done\"")
        return wall, processor


def pointer(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True)


def processor_time(pid):
    """Of a running process, with its threads, in seconds."""
    clock = ctypes.c_int()
    if ctypes.CDLL(None).clock_getcpuclockid(pid, ctypes.byref(clock)) != 0:
        raise SystemExit("The program ended too early.")
    return time.clock_gettime(clock.value)


def main():
    options = section.read_options(__doc__)
    page = section.Section(f"By the window's button: erasing {trees.size(options)}", options.rounds)
    with VirtualDesktop() as desktop:
        for place in options.places:
            tree = trees.Trees(place, options)
            peer = turns.Command("`rm -rf`", lambda root: ["rm", "-rf", str(root)])
            both = [peer, Button(options, desktop, goals=[(peer, 1.2)])]
            turns.take_turns(both, options.rounds, tree.make, tree.must_be_empty)
            page.add(turns.table(both), heading=f"On {place.file_system}")
    page.add("The real program with its window open, from the button being let go until the last "
             "folder is gone. Its\nstart is not in it; the start of `rm` is.")
    page.write(options.build)


main()
