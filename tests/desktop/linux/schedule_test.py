#!/usr/bin/python3
"""The page "Schedule", and a cleaning that starts by itself."""

import datetime

from support import checks

from desktop import settings
from desktop.schedule_page import SchedulePage, apply_a_time_to_come
from desktop.waiting import PATIENCE, wait_until

KEYS = ("Date", "Time", "RunAfter", "LastRunTime", "RunOn")
WEEKDAYS = ("Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday")
NEVER_RUN = "##:##:##"


def start_with_nothing_to_clean(bed):
    settings.tick_only(bed.home, bed.path)
    return bed.start()


def a_cleaning_starts_by_itself_at_its_second(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        time = apply_a_time_to_come(page)

        page.window.end_of_run(seconds=PATIENCE + 40)

        wait_until(lambda: page.stored("LastRunTime") == time, "the time of the run is stored")
        page.window.turn_to("Schedule")
        assert page.last_run == time, page.last_run
        assert (page.stored("RunOn"), page.stored("Time")) == ("7", time)


def a_cleaning_starts_by_itself_while_the_window_is_minimised(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        time = apply_a_time_to_come(page, left=3)
        page.window.close()

        wait_until(lambda: page.stored("LastRunTime") == time, "the time of the run is stored",
                   seconds=PATIENCE + 40)

        wait_until(lambda: page.window.is_on_screen, "the run brings the window back")


def what_is_applied_is_there_at_the_next_start(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        page.choose("Date & Time")
        page.window.tick("Date:")
        page.set_time(datetime.time(8, 30, 15))
        page.press("Apply")
        assert page.stored("Date") == datetime.date.today().isoformat()
        assert [page.stored(key) for key in KEYS[1:]] == ["08:30:15", "2", NEVER_RUN, "9"]

    with bed.start() as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())

        assert page.kind == "Date & Time"
        assert page.holds("Date:") and page.holds("Time:")
        assert page.time == "08:30:15"
        assert not page.holds_edits


def cancel_brings_back_what_was_applied(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        page.set_time(datetime.time(8, 30, 15))
        page.press("Apply")
        page.choose("Never!")
        assert not page.holds("Time:")

        page.press("Cancel")

        assert page.kind == "Daily"
        assert page.holds("Time:")
        assert page.time == "08:30:15"
        assert page.stored("RunOn") == "7"


def a_date_and_time_without_a_time_is_not_applied(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        page.choose("Date & Time")
        page.window.tick("Date:")

        page.window.press("Apply")

        message = program.message()
        assert message.text == "Define Time"
        message.press("OK")
        wait_until(lambda: page.window.is_on_screen and page.holds_edits, "the edits stay")
        assert page.stored("RunOn") is None


def a_weekday_that_never_ran_is_told_and_leaves_the_page_to_its_user(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = SchedulePage(bed.desktop, bed.home, program.window())
        page.choose(WEEKDAYS[datetime.date.today().weekday()])
        message = program.message()
        assert message.text == "Error: 13 - Type mismatch"
        message.press("OK")

        page.choose("Never!")
        page.press("Apply")

        assert page.stored("RunOn") == "10"


checks.run(
    a_cleaning_starts_by_itself_at_its_second,
    a_cleaning_starts_by_itself_while_the_window_is_minimised,
    what_is_applied_is_there_at_the_next_start,
    cancel_brings_back_what_was_applied,
    a_date_and_time_without_a_time_is_not_applied,
    a_weekday_that_never_ran_is_told_and_leaves_the_page_to_its_user,
)
