#!/usr/bin/python3
"""A million files, with the window open: it answers all the time, and takes little memory."""

import contextlib
import os
import subprocess
import time

from support import checks

from desktop import many_files, settings
from desktop.memory import MemoryWatch
from desktop.pulse import Pulse
from desktop.removals import Removals

MILLION = 1_000_000
LONGEST_GAP = 0.100        # seconds
MOST_MEMORY = 200_000_000  # bytes
LONG_PATIENCE = 120        # seconds, for a run
TRASHED = "[Trash Info]\nPath=/gone/file\nDeletionDate=2025-05-05T12:00:00\n"


@contextlib.contextmanager
def emptied_afterwards(folder):
    """The next test needs the room."""
    if os.statvfs(folder).f_favail < 1.2 * MILLION:
        raise checks.Skip(f"there is no room for a million files in {folder}")
    try:
        yield
    finally:
        subprocess.run(["rm", "-rf", folder], check=True)


def prove_that_the_window_answers(bed, option):
    """Erases with this option alone."""
    settings.tick_only(bed.home, bed.path, option)
    pulse = Pulse(bed.home, bed.path)
    with bed.start(environment=pulse.environment) as program:
        window = program.window()
        with MemoryWatch(program.pid) as memory:
            start = time.monotonic()
            window.clean(LONG_PATIENCE)
            gaps = pulse.gaps(since=start)

    print(f"# {time.monotonic() - start:.1f} s; longest gap {max(gaps) * 1000:.0f} ms, "
          f"{sum(gap > LONGEST_GAP for gap in gaps)} too long; {memory.most / 1e6:.0f} MB")
    assert max(gaps) <= LONGEST_GAP, f"{max(gaps)} s"
    assert memory.most < MOST_MEMORY, f"{memory.most} bytes"


@contextlib.contextmanager
def in_the_middle_of_a_run(bed):
    """Gives program, window and the folder's removals, with the run under way and far from done."""
    settings.tick_only(bed.home, bed.path, settings.TEMPORARY_FILES)
    with emptied_afterwards(bed.home.temporary):
        many_files.make_folders(bed.home.temporary, 1000, MILLION // 1000)
        with bed.start() as program, Removals(bed.home.temporary) as removals:
            window = program.window()
            window.begin_to_clean()
            removals.wait_for(1)
            yield program, window, removals


def the_window_answers_while_a_million_files_in_a_thousand_folders_go(bed):
    with emptied_afterwards(bed.home.temporary):
        many_files.make_folders(bed.home.temporary, 1000, MILLION // 1000)

        prove_that_the_window_answers(bed, settings.TEMPORARY_FILES)

        assert not os.listdir(bed.home.temporary)


def the_window_answers_while_a_million_files_in_one_folder_go(bed):
    with emptied_afterwards(bed.home.temporary):
        many_files.make_folders(bed.home.temporary, 1, MILLION)

        prove_that_the_window_answers(bed, settings.TEMPORARY_FILES)

        assert not os.listdir(bed.home.temporary)


def the_window_answers_while_three_hundred_thousand_files_go_from_the_trash(bed):
    if not bed.desktop.hides_foreign_trash:
        raise checks.Skip("there is trash of the user's own within reach")
    trash = bed.home.trash
    trash.mkdir(mode=0o700)
    with emptied_afterwards(trash):
        many_files.make_files(trash / "files" / "folder", MILLION // 5)
        many_files.make_files(trash / "files", MILLION // 10)
        many_files.make_files(trash / "info", MILLION // 10, name="file {}.txt.trashinfo")
        (trash / "info" / "folder.trashinfo").write_text(TRASHED, "utf-8")

        prove_that_the_window_answers(bed, settings.RECYCLE_BIN)

        assert not os.listdir(trash / "files")
        assert not os.listdir(trash / "info")


def exit_ends_the_program_in_the_middle_of_a_run(bed):
    with in_the_middle_of_a_run(bed) as (program, window, _):
        window.press("Exit")

        assert program.end_status() == 0
        assert os.listdir(bed.home.temporary)


def a_program_that_is_told_to_quit_in_the_middle_of_a_run_ends(bed):
    with in_the_middle_of_a_run(bed) as (program, _, _):
        program.tell_to_quit()

        assert program.end_status() == 0
        assert os.listdir(bed.home.temporary)


def the_close_box_minimises_in_the_middle_of_a_run_which_goes_on_to_its_end(bed):
    with in_the_middle_of_a_run(bed) as (program, window, removals):
        window.close()

        assert os.listdir(bed.home.temporary)
        removals.wait_for(1000, LONG_PATIENCE)
        assert program.is_running
        window.come_forward()
        assert window.end_of_run().endswith("\nDone")


checks.run(
    the_window_answers_while_a_million_files_in_a_thousand_folders_go,
    the_window_answers_while_a_million_files_in_one_folder_go,
    the_window_answers_while_three_hundred_thousand_files_go_from_the_trash,
    exit_ends_the_program_in_the_middle_of_a_run,
    a_program_that_is_told_to_quit_in_the_middle_of_a_run_ends,
    the_close_box_minimises_in_the_middle_of_a_run_which_goes_on_to_its_end,
    folder=many_files.IN_MEMORY,
)
