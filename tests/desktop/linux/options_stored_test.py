#!/usr/bin/python3
"""The ticks between two starts."""

from support import checks

from desktop.accessible import CHECK_BOX
from desktop.waiting import wait_until
from desktop.window import CLEANING_PAGES

INTERNET_ONLY = {"Clear Site Addresses", "Clear Browser Cookies", "Clear Browser History Logs"}
SHARED = {
    "Frees space on your Hard Drive", "Clear Windows' secret index.dat file",
    "Prevent Sites from improperly changing your Home Page", "Clear Recent Files List",
    "Clear Recycle Bin", "Windows Temp Directories",
}
LASTING = {"Clear Temporary Internet Files", "Clear Browser Favorites ",
           "Clear My Documents Files"}
# Neither of the buttons for the usual ticks reaches these.
FREE = {"Clear Clipboard", 'Delete Windows start menu "run" history', "Disable Script Debugging",
        "Don't Display a Notification About Every Script Error"}
OPTIONS = INTERNET_ONLY | SHARED | LASTING | FREE


def turn_all_round(window):
    """Ticks what is not ticked and the reverse, but for the box that acts at once."""
    for page in ("Main", *CLEANING_PAGES):
        window.turn_to(page)
        window.set_ticks({box.name: not box.is_ticked for box in window.all(CHECK_BOX)
                          if box.name in OPTIONS})


def ticked(window, captions):
    ticks = window.ticks()
    return {caption for caption in captions if ticks[caption]}


def every_tick_is_there_again_after_an_orderly_end(bed):
    with bed.start() as program:
        window = program.window()
        turn_all_round(window)
        before = window.ticks()
        window.turn_to("Main")
        window.press("Exit")
        assert program.end_status() == 0

    with bed.start() as program:
        assert program.window().ticks() == before


def a_tick_is_stored_at_once(bed):
    with bed.start() as program:
        window = program.window()
        window.turn_to("Clean Computer")
        window.tick("Clear Clipboard")
        wait_until(bed.home.settings.exists, "the tick is stored")
        program.kill()

    with bed.start() as program:
        assert program.window().ticks()["Clear Clipboard"]


def default_on_clean_internet_sets_the_ticks_of_all_pages(bed):
    with bed.start() as program:
        window = program.window()
        turn_all_round(window)
        window.turn_to("Clean Internet")

        window.press("Default")

        wait_until(lambda: window.is_ticked("Clear Site Addresses"), "the ticks are set")
        assert ticked(window, INTERNET_ONLY | SHARED | LASTING) == INTERNET_ONLY | SHARED
        assert ticked(window, FREE) == FREE


def default_on_clean_computer_leaves_what_is_of_the_internet_alone(bed):
    with bed.start() as program:
        window = program.window()
        turn_all_round(window)
        window.turn_to("Clean Computer")

        window.press("Default")

        wait_until(lambda: window.is_ticked("Clear Recycle Bin"), "the ticks are set")
        assert ticked(window, SHARED) == SHARED
        assert ticked(window, INTERNET_ONLY | LASTING) == LASTING - {"Clear My Documents Files"}
        assert ticked(window, FREE) == FREE


def what_default_sets_is_stored(bed):
    with bed.start() as program:
        window = program.window()
        turn_all_round(window)
        window.turn_to("Clean Internet")
        window.press("Default")
        wait_until(lambda: window.is_ticked("Clear Site Addresses"), "the ticks are set")
        before = window.ticks()
        program.kill()

    with bed.start() as program:
        assert program.window().ticks() == before


checks.run(
    every_tick_is_there_again_after_an_orderly_end,
    a_tick_is_stored_at_once,
    default_on_clean_internet_sets_the_ticks_of_all_pages,
    default_on_clean_computer_leaves_what_is_of_the_internet_alone,
    what_default_sets_is_stored,
)
