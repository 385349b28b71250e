#!/usr/bin/python3
"""The window without a pointer."""

from support import checks

from desktop.accessible import AREA, CHECK_BOX, FRAME, TAB, TEXT
from desktop.waiting import wait_until

PAGE_STRIP = "page tab list"

MAIN = [
    "Clean Computer and Internet", "the log", "the home page", "Set Home Page",
    "Prevent Sites from improperly changing your Home Page", "Run on Startup", "Exit",
]
CLEAN_INTERNET = [
    "Clear Browser Favorites ", "Clear Site Addresses", "Clear Recent Files List",
    "Clear Temporary Internet Files", "Clear Browser Cookies", "Clear Browser History Logs",
    "Clear Auto Complete Web Addresses", "Don't Display a Notification About Every Script Error",
    "Disable Script Debugging",
]
CLEAN_COMPUTER = [
    "Clear Windows' secret index.dat file", "Clear Recycle Bin", "Frees space on your Hard Drive",
    "Windows Temp Directories", "Clear My Documents Files", "Clear Clipboard",
    'Delete Windows start menu "run" history',
]


def visited(bed, window, page):
    """The names of what the tab key visits on the page, from the strip of pages once round."""
    window.turn_to(page)
    window.come_forward()
    names = [name_of(wait_until(window.focused, "something has the focus"))]
    while names[-1] not in names[:-1]:
        names.append(press_and_see(bed, window, "Tab"))
    circle = names[names.index(names[-1]):-1]
    start = circle.index(PAGE_STRIP)
    return circle[start + 1:] + circle[:start]


def press_and_see(bed, window, key):
    """Presses a key that moves the focus, and returns the name of where it went."""
    before = str(window.focused())
    bed.desktop.key(key)

    def moved():
        part = window.focused()
        return part if part and str(part) != before else None
    return name_of(wait_until(moved, f"{key} moves the focus on from {before}"))


def name_of(part):
    if part.role == PAGE_STRIP:
        return PAGE_STRIP
    if part.role == TEXT:
        return "the log" if part.is_multi_line else "the home page"
    return part.name or f"a nameless {part.role}"


def the_tab_key_visits_the_first_page_in_reading_order(bed):
    with bed.start() as program:
        order = visited(bed, program.window(), "Main")

        # The maker's address among them is a link.
        assert [name for name in order if name in MAIN] == MAIN, order


def the_tab_key_visits_clean_internet_in_reading_order(bed):
    with bed.start() as program:
        order = visited(bed, program.window(), "Clean Internet")

        assert order[:len(CLEAN_INTERNET)] == CLEAN_INTERNET, order
        assert order[len(CLEAN_INTERNET):] == ["Default", "Clean Internet"], order


def the_tab_key_visits_clean_computer_in_reading_order(bed):
    with bed.start() as program:
        order = visited(bed, program.window(), "Clean Computer")

        assert order[:len(CLEAN_COMPUTER)] == CLEAN_COMPUTER, order
        assert order[len(CLEAN_COMPUTER):] == ["Default", "Clean Computer"], order


def whatever_takes_the_focus_is_visited(bed):
    with bed.start() as program:
        window = program.window()
        for page in ("Main", "Clean Internet", "Clean Computer"):
            order = visited(bed, window, page)
            takers = {name_of(part) for part in window.parts()
                      if part.can_be_focused and part.role not in (TAB, AREA)}

            assert takers - {PAGE_STRIP} <= set(order), takers - set(order)


def whatever_takes_the_focus_has_a_name_to_be_said(bed):
    with bed.start() as program:
        window = program.window()
        for page in ("Main", "Clean Internet", "Clean Computer"):
            window.turn_to(page)
            nameless = [f"{part} at {part.centre()}" for part in window.parts()
                        if part.can_be_focused and not part.name]

            assert not nameless, nameless


def the_window_says_of_itself_that_it_is_a_window(bed):
    with bed.start() as program:
        assert program.window().role == FRAME


def the_blank_key_ticks_a_box(bed):
    with bed.start() as program:
        window = program.window()
        window.turn_to("Clean Computer")
        window.come_forward()
        window.find(CHECK_BOX, "Clear Clipboard").focus()
        wait_until(lambda: window.focused().name == "Clear Clipboard", "the box has the focus")

        bed.desktop.key("space")

        wait_until(lambda: window.is_ticked("Clear Clipboard"), "the box is ticked")


def alt_a_turns_the_box_for_web_addresses(bed):
    with bed.start() as program:
        window = program.window()
        window.turn_to("Clean Internet")
        window.come_forward()
        before = window.is_ticked("Clear Auto Complete Web Addresses")

        bed.desktop.key("alt+a")

        wait_until(lambda: window.is_ticked("Clear Auto Complete Web Addresses") != before,
                   "the box turns")


def alt_d_sets_the_usual_ticks(bed):
    with bed.start() as program:
        window = program.window()
        for page, option in (("Clean Internet", "Clear Site Addresses"),
                             ("Clean Computer", "Clear Recycle Bin")):
            window.turn_to(page)
            window.tick(option, False)
            window.come_forward()

            bed.desktop.key("alt+d")

            wait_until(lambda: window.is_ticked(option), "the usual ticks are set")


def alt_x_ends_the_program(bed):
    with bed.start() as program:
        program.window().come_forward()

        bed.desktop.key("alt+x")

        assert program.end_status() == 0


def control_and_tab_turn_the_pages(bed):
    with bed.start() as program:
        window = program.window()
        window.come_forward()

        bed.desktop.key("ctrl+Tab")

        wait_until(lambda: window.page == "Clean Internet", "the second page is in front")


checks.run(
    the_tab_key_visits_the_first_page_in_reading_order,
    the_tab_key_visits_clean_internet_in_reading_order,
    the_tab_key_visits_clean_computer_in_reading_order,
    whatever_takes_the_focus_is_visited,
    whatever_takes_the_focus_has_a_name_to_be_said,
    the_window_says_of_itself_that_it_is_a_window,
    the_blank_key_ticks_a_box,
    alt_a_turns_the_box_for_web_addresses,
    alt_d_sets_the_usual_ticks,
    alt_x_ends_the_program,
    control_and_tab_turn_the_pages,
)
