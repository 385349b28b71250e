#!/usr/bin/python3
"""The home page that the user chooses."""

from support import checks

from desktop import hive, settings
from desktop.waiting import wait_until

CHOSEN = "https://example.org/start"


def choose(bed, window, address):
    """Types an address over the one that is there, and presses the button."""
    window.come_forward()
    window.home_page.focus()
    wait_until(lambda: window.home_page.is_focused, "the box has the focus")
    bed.desktop.key("ctrl+a", "Delete")
    bed.desktop.type(address)
    wait_until(lambda: window.home_page.text() == address, "the address is typed")
    window.press("Set Home Page")
    wait_until(lambda: imposed(bed) == address, "the browser has the address")
    wait_until(lambda: settings.stored(bed.home, "HomePage", "StartPage") == address,
               "the address is stored")


def imposed(bed):
    return hive.texts(bed.home, hive.BROWSER)["Start Page"]


def the_chosen_page_is_there_again_at_the_next_start(bed):
    with bed.start() as program:
        choose(bed, program.window(), CHOSEN)
        program.kill()

    with bed.start() as program:
        assert program.window().home_page.text() == CHOSEN


def a_page_that_slipped_in_between_two_starts_is_replaced(bed):
    with bed.start() as program:
        choose(bed, program.window(), CHOSEN)
        program.kill()
    hive.write(bed.home, {hive.BROWSER: {"Start Page": "https://slipped-in.example/"}})

    with bed.start() as program:
        program.window()

        assert imposed(bed) == CHOSEN


def an_empty_page_stays_empty(bed):
    with bed.start() as program:
        choose(bed, program.window(), "")
        program.kill()

    with bed.start() as program:
        assert program.window().home_page.text() == ""
        assert imposed(bed) == ""


checks.run(
    the_chosen_page_is_there_again_at_the_next_start,
    a_page_that_slipped_in_between_two_starts_is_replaced,
    an_empty_page_stays_empty,
)
