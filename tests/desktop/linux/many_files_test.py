#!/usr/bin/python3
"""More files than fit into a look at them, in one folder. How the window bears them is shown by a
million of them, in big_tree_long_test.py."""

import getpass
import os

from support import checks

from desktop import many_files, settings
from desktop.memory import MemoryWatch
from desktop.window import CLEAN

FILES = 100_000
MOST_MEMORY = 200_000_000  # bytes


def fill(bed):
    settings.tick_only(bed.home, bed.path, settings.TEMPORARY_FILES)
    many_files.make_folders(bed.home.temporary, 1, FILES)


def a_hundred_thousand_files_in_one_folder_are_erased_with_little_memory(bed):
    fill(bed)
    with bed.start() as program:
        window = program.window()
        with MemoryWatch(program.pid) as memory:
            window.clean()

    # Without a run-time folder of the session the toolkit makes one there, which a cleaning leaves.
    left = set(os.listdir(bed.home.temporary))
    assert left <= {f"runtime-{getpass.getuser()}"}, left
    assert memory.most < MOST_MEMORY, memory.most


def exit_ends_the_program_in_the_middle_of_a_run(bed):
    fill(bed)
    with bed.start() as program:
        # Both are pressed before the first has begun to work, as a press takes a tenth of a second;
        # so the second one comes when the run has hardly started.
        program.window().press_at_once(CLEAN, "Exit")

        assert program.end_status() == 0
        assert os.listdir(bed.home.temporary)


checks.run(
    a_hundred_thousand_files_in_one_folder_are_erased_with_little_memory,
    exit_ends_the_program_in_the_middle_of_a_run,
    folder=many_files.IN_MEMORY,
)
