#!/usr/bin/python3
"""The page "Schedule", and a cleaning that starts by itself."""

import datetime

from support import checks

from desktop import settings
from desktop.accessible import BUTTON, CHECK_BOX, COMBO_BOX, LABEL, LIST_ITEM, SPIN_BUTTON, \
    wait_for
from desktop.waiting import PATIENCE, wait_until

KEYS = ("Date", "Time", "RunAfter", "LastRunTime", "RunOn")
WEEKDAYS = ("Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday")
NEVER_RUN = "##:##:##"


class Page:
    """The page "Schedule", used as its user would use it."""

    def __init__(self, bed, program):
        self._home = bed.home
        self._desktop = bed.desktop
        self.window = program.window()
        self.window.turn_to("Schedule")

    @property
    def kind(self):
        return self._kinds().name

    def choose(self, kind):
        self._kinds().press()
        wait_for(lambda: any(part.name == kind for part in self._kinds().parts()),
                 "the list of kinds is open")
        order = [part.name for part in self._kinds().parts() if part.role == LIST_ITEM]
        self._desktop.key("Home", *["Down"] * order.index(kind), "Return")
        wait_for(lambda: self.kind == kind, f"the kind is {kind}")

    def holds(self, field):
        """Whether that picker holds a value."""
        return self.window.is_ticked(field)

    def is_enabled(self, role, name):
        return self.window.find(role, name).is_enabled

    @property
    def time(self):
        return self.window.find(SPIN_BUTTON, "Time:").text()

    def set_time(self, time):
        self.window.come_forward()
        self.window.tick("Time:")
        field = wait_for(lambda: self._enabled(SPIN_BUTTON, "Time:"), "the time can be set")
        # Typing begins at the hours when the field gets the keys anew.
        self.window.find(CHECK_BOX, "Time:").focus()
        field.focus()
        wait_for(lambda: self.window.focused().role == SPIN_BUTTON, "the time has the keys")
        self._desktop.type(time.strftime("%H%M%S"))
        wait_for(lambda: self.time == time.strftime("%H:%M:%S"), f"the time is {time}")

    @property
    def holds_edits(self):
        return self.is_enabled(BUTTON, "Apply") or self.is_enabled(BUTTON, "Cancel")

    def press(self, caption):
        """Apply or Cancel, to its end."""
        self.window.press(caption)
        wait_until(lambda: not self.holds_edits, f"{caption} ends the edits")

    @property
    def last_run(self):
        """What stands beside "Last Run  Time:"."""
        labels = [label.name for label in self.window.all(LABEL)]
        return next(name for name in labels if name.count(":") == 2 and len(name) == 8)

    def stored(self, key):
        return settings.stored(self._home, "Schedule", key)

    def _kinds(self):
        return wait_for(lambda: self.window.all(COMBO_BOX)[0], "the list of kinds is showing")

    def _enabled(self, role, name):
        part = self.window.find(role, name)
        return part if part.is_enabled else None


def start_with_nothing_to_clean(bed):
    settings.tick_only(bed.home, bed.path)
    return bed.start()


def apply_a_time_to_come(page, left=0):
    """Applies a time of day that is to come when that is done, in `left` seconds or more, and
    returns its text. How long setting it takes is not known beforehand."""
    for ahead in (2, 5, 15, 40):
        time = datetime.datetime.now() + datetime.timedelta(seconds=left + ahead)
        text = time.strftime("%H:%M:%S")
        page.window.turn_to("Schedule")
        page.set_time(time)
        page.window.press("Apply")
        wait_until(lambda: page.stored("Time") == text, "the time is stored")
        time = time.replace(microsecond=0)  # when its second begins
        if datetime.datetime.now() < time - datetime.timedelta(seconds=left):
            return text
        over = time + datetime.timedelta(seconds=2)
        wait_until(lambda: datetime.datetime.now() > over, "a run that may have started is over")
    raise AssertionError("Setting a time takes too long on this machine.")


def a_cleaning_starts_by_itself_at_its_second(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = Page(bed, program)
        time = apply_a_time_to_come(page)

        page.window.end_of_run(seconds=PATIENCE + 40)

        wait_until(lambda: page.stored("LastRunTime") == time, "the time of the run is stored")
        page.window.turn_to("Schedule")
        assert page.last_run == time, page.last_run
        assert (page.stored("RunOn"), page.stored("Time")) == ("7", time)


def a_cleaning_starts_by_itself_while_the_window_is_minimised(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = Page(bed, program)
        time = apply_a_time_to_come(page, left=3)
        page.window.close()

        wait_until(lambda: page.stored("LastRunTime") == time, "the time of the run is stored",
                   seconds=PATIENCE + 40)

        wait_until(lambda: page.window.is_on_screen, "the run brings the window back")


def what_is_applied_is_there_at_the_next_start(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = Page(bed, program)
        page.choose("Date & Time")
        page.window.tick("Date:")
        page.set_time(datetime.time(8, 30, 15))
        page.press("Apply")
        assert page.stored("Date") == datetime.date.today().isoformat()
        assert [page.stored(key) for key in KEYS[1:]] == ["08:30:15", "2", NEVER_RUN, "9"]

    with bed.start() as program:
        page = Page(bed, program)

        assert page.kind == "Date & Time"
        assert page.holds("Date:") and page.holds("Time:")
        assert page.time == "08:30:15"
        assert not page.holds_edits


def cancel_brings_back_what_was_applied(bed):
    with start_with_nothing_to_clean(bed) as program:
        page = Page(bed, program)
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
        page = Page(bed, program)
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
        page = Page(bed, program)
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
