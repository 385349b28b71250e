"""The page "Schedule", used as its user would use it."""

import datetime

from desktop import settings
from desktop.accessible import BUTTON, CHECK_BOX, COMBO_BOX, LABEL, LIST_ITEM, SPIN_BUTTON, \
    wait_for
from desktop.waiting import wait_until


class SchedulePage:
    """Of a window that is there."""

    def __init__(self, desktop, home, window):
        self._home = home
        self._desktop = desktop
        self.window = window
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
