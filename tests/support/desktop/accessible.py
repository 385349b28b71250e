"""A window as a screen reader sees it: found by role and name, pressed, ticked, read."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from desktop.waiting import PATIENCE, wait_until

# The bus's words for what a control is.
AREA = "filler"
BUTTON = "push button"
CHECK_BOX = "check box"
COMBO_BOX = "combo box"  # its name is what is chosen in it
DIALOG = ("dialog", "alert")
FRAME = "frame"  # which is what it calls a window
LABEL = "label"
LIST_ITEM = "list item"
SCROLL_BAR = "scroll bar"
SPIN_BUTTON = "spin button"
TAB = "page tab"
TEXT = "text"

# What goes away between two questions is no longer there: ask again.
GONE = (LookupError, GLib.Error)


class Part:
    """One thing in a window. It goes stale with the window; the next search finds it anew."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return self._accessible.get_name() or ""

    @property
    def role(self):
        return self._accessible.get_role_name()

    def parts(self):
        """Everything inside that is showing, in the window's order."""
        for part in self.children():
            if part.is_showing:
                yield part
                yield from part.parts()

    def children(self):
        count = self._accessible.get_child_count()
        children = (self._accessible.get_child_at_index(index) for index in range(count))
        return [Part(child) for child in children if child is not None]

    def all(self, role):
        return [part for part in self.parts() if part.role == role]

    def find(self, role, name):
        for part in self.parts():
            if part.role == role and part.name == name:
                return part
        raise LookupError(f"no {role} \"{name}\" is showing")

    def has(self, state):
        return self._accessible.get_state_set().contains(state)

    @property
    def is_showing(self):
        return self.has(Atspi.StateType.SHOWING)

    @property
    def is_enabled(self):
        return self.has(Atspi.StateType.ENABLED)

    @property
    def is_ticked(self):
        return self.has(Atspi.StateType.CHECKED)

    @property
    def is_current(self):
        """Of tabs. Qt 6.4 says of the current one that it has the focus, wherever the focus is."""
        return self.has(Atspi.StateType.SELECTED) or self.is_focused

    @property
    def is_active(self):
        """Of windows: whether it is the one that gets the keys."""
        return self.has(Atspi.StateType.ACTIVE)

    @property
    def is_editable(self):
        return self.has(Atspi.StateType.EDITABLE)

    @property
    def is_multi_line(self):
        return self.has(Atspi.StateType.MULTI_LINE)

    @property
    def can_be_focused(self):
        return self.has(Atspi.StateType.FOCUSABLE) and self.is_enabled

    @property
    def is_focused(self):
        return self.has(Atspi.StateType.FOCUSED)

    def press(self):
        """What a click on it does: a button is pressed, a box toggled, a page turned."""
        Atspi.Action.do_action(self._accessible, 0)

    def focus(self):
        Atspi.Component.grab_focus(self._accessible)

    def text(self):
        return Atspi.Text.get_text(self._accessible, 0, -1)

    def coloured_text(self):
        """Its text in pieces of one colour each: pairs of a text and what the bus says of the
        colour, as in "0,0,255" (red, green, blue); an empty text where it says nothing."""
        length, at, pieces = Atspi.Text.get_character_count(self._accessible), 0, []
        while at < length:
            attributes, _, end = Atspi.Text.get_attribute_run(self._accessible, at, True)
            end = max(end, at + 1)
            pieces.append((Atspi.Text.get_text(self._accessible, at, end),
                           attributes.get("fg-color", "")))
            at = end
        return pieces

    def shows_its_end(self):
        """Whether what can be scrolled in it is scrolled. Where a letter is cannot be asked: Qt 6.4
        answers for the letter's line alone."""
        bars = [bar._accessible for bar in self.all(SCROLL_BAR)]
        return all(Atspi.Value.get_current_value(bar) == Atspi.Value.get_maximum_value(bar)
                   for bar in bars)

    def centre(self):
        """Where on the screen a pointer would meet it."""
        area = Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN)
        return area.x + area.width // 2, area.y + area.height // 2

    def __repr__(self):
        return f"{self.role} \"{self.name}\""


def application(pid):
    """What that process shows. LookupError where it shows nothing (yet)."""
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        child = desktop.get_child_at_index(index)
        if child is not None and child.get_process_id() == pid:
            return Part(child)
    raise LookupError(f"process {pid} is not on the accessibility bus")


def wait_for(condition, what, seconds=PATIENCE):
    """Like `wait_until`, for questions about windows that may just be coming or going."""
    return wait_until(condition, what, seconds, refused=GONE)
