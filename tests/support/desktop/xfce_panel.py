"""The real panel of a desktop that many use: the Xfce one, with nothing on it but the icons of
programs.

The panel draws them and their menus itself, in a process of its own that screen readers are told
nothing of; so what is there is looked for on the screen, and used with the pointer."""

import os
import pathlib
import subprocess

from desktop import processes
from desktop.screen import Picture, runs, windows_named
from desktop.waiting import PATIENCE, wait_until

LEFT, RIGHT = "1", "3"
PANEL, ICONS = "xfce4-panel", "wrapper-2.0"  # what its windows are named
WATCHER = "org.kde.StatusNotifierWatcher"
CONFIGURATION = """<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=6;x=0;y=0"/>
      <property name="length" type="uint" value="10"/>
      <property name="size" type="uint" value="28"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
"""


class XfcePanel:
    """One panel, in the upper left corner."""

    def __init__(self):
        self._process = None

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *reason):
        processes.end(self._process)

    def start(self):
        """Comes to the desktop; from its return on programs find it."""
        _configure()
        # Where the pointer rests, a tip would come up.
        subprocess.run(["xdotool", "mousemove", "1279", "1023"], check=True, timeout=PATIENCE)
        self._process = processes.start(["xfce4-panel"], stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(_shows_icons, "the panel takes icons")

    def kill(self):
        """Ends it as a crash would, and waits until the bus knows."""
        self._process.kill()
        self._process.wait()
        wait_until(lambda: not _shows_icons(), "the panel is gone")

    def kill_icons(self):
        """Ends the panel's part that shows the icons. The panel starts it again by itself."""
        (pid,) = self._parts()
        os.kill(pid, 9)
        wait_until(lambda: pid not in self._parts(), "the panel's part is gone")
        wait_until(_shows_icons, "the panel takes icons again")

    def icons(self):
        """The places on the screen where the program's icon is seen."""
        places = []
        for place in windows_named(PANEL):
            picture = Picture(*place)
            coloured = [any(map(_is_of_the_icon, picture.column(x))) for x in range(picture.width)]
            places += [(picture.left + (first + last) // 2, picture.top + picture.height // 2)
                       for first, last in runs(coloured)]
        return places

    def click(self, button=LEFT, times=1):
        """On the one icon, with the real pointer."""
        (place,) = self.icons()
        _click(place, button, times)

    def open_menu(self):
        """Returns its lines, once they are seen: places on the screen, None for a separator."""
        self.click(RIGHT)
        return wait_until(_whole_menu, "the menu is open")

    def choose(self, line):
        """Clicks on a line of the menu, counted from 0."""
        _click(self.open_menu()[line])
        wait_until(lambda: not _menu(), "the menu is gone")

    def _parts(self):
        children = pathlib.Path(f"/proc/{self._process.pid}/task/{self._process.pid}/children")
        return [int(pid) for pid in children.read_text().split()]


def _configure():
    """For the service that keeps the settings of the desktop's programs."""
    folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "xfce4/xfconf/xfce-perchannel-xml")
    folder.mkdir(parents=True, exist_ok=True)
    file = folder / "xfce4-panel.xml"
    if not file.exists():
        file.write_text(CONFIGURATION, "utf-8")


def _shows_icons():
    answer = subprocess.run(
        ["dbus-send", "--print-reply=literal", f"--dest={WATCHER}", "/StatusNotifierWatcher",
         "org.freedesktop.DBus.Properties.Get", f"string:{WATCHER}",
         "string:IsStatusNotifierHostRegistered"], capture_output=True, text=True, timeout=PATIENCE)
    return answer.stdout.split() == ["variant", "boolean", "true"]


def _is_of_the_icon(colour):
    """Its shield is of a blueish green; the panel is grey."""
    red, green, _ = colour
    return green > red + 40


def _menu():
    """What is seen of the open menu, line by line; nothing where none is open."""
    for left, top, width, height in windows_named(ICONS):
        if top > 0:  # the icons themselves are at the edge, and what is not shown yet is beyond it
            return _lines(Picture(left, top, width, height))
    return []


def _whole_menu():
    """Only what is seen twice was not just being drawn."""
    lines = _menu()
    return lines if lines == _menu() else []


def _lines(picture):
    """A text has paper between its letters, a separator goes from edge to edge."""
    edge = 2
    rows = [picture.row(y)[edge:-edge] for y in range(edge, picture.height - edge)]
    paper = rows[0][0]
    lines = []
    for first, last in runs(any(colour != paper for colour in row) for row in rows):
        is_separator = all(colour != paper for row in rows[first:last + 1] for colour in row)
        lines.append(None if is_separator else
                     (picture.left + picture.width // 2,
                      picture.top + edge + (first + last) // 2))
    return lines


def _click(place, button=LEFT, times=1):
    subprocess.run(["xdotool", "mousemove", *map(str, place),
                    "click", "--repeat", str(times), "--delay", "20", button],
                   check=True, timeout=PATIENCE)
