"""What the demo looks at before and after the cleaning: things that go, and things that stay."""

import dataclasses
import hashlib
import os
import pathlib
import stat
import typing
import xml.etree.ElementTree


@dataclasses.dataclass
class Trace:
    """Something that a cleaning erases. `left` counts what of it is still there."""

    title: str
    page: str     # of the window, with
    option: str   # the box that asks for it
    left: typing.Callable[[], int]
    before: int = 0
    after: int = 0

    def look_before(self):
        self.before = self.left()

    def look_after(self):
        self.after = self.left()

    @property
    def held(self):
        return self.before > 0 and self.after == 0


@dataclasses.dataclass
class Kept:
    """Something that no cleaning may touch: every name, byte, permission and time stays."""

    title: str
    places: list
    before: str = ""
    after: str = ""

    def look_before(self):
        self.before = self._state()

    def look_after(self):
        self.after = self._state()

    @property
    def held(self):
        return self.before == self.after != ""

    def _state(self):
        lines = [line for place in self.places for line in _described(pathlib.Path(place))]
        return "\n".join(lines)


@dataclasses.dataclass
class KeptFolder(Kept):
    """A folder that itself stays whatever becomes of its content."""

    def _state(self):
        return "\n".join(f"{place} {os.lstat(place).st_ino}" for place in self.places
                         if os.path.isdir(place))


def _described(place):
    """One line for each thing at the place and below it."""
    if not os.path.lexists(place):
        return
    status = os.lstat(place)
    line = f"{place} {stat.filemode(status.st_mode)}"
    if place.is_symlink():
        yield f"{line} -> {os.readlink(place)}"
    elif place.is_dir():
        yield line
        for child in sorted(place.iterdir()):
            yield from _described(child)
    else:
        yield f"{line} {status.st_mtime_ns} {hashlib.sha256(place.read_bytes()).hexdigest()}"


def paths_left(paths):
    """How many of the paths are there, links that lead nowhere too."""
    return sum(os.path.lexists(path) for path in paths)


def recent_entries(list_file, folder):
    """Those of the desktop's list and of KDE's folder."""
    entries = 0
    if list_file.exists():
        entries += len(xml.etree.ElementTree.parse(list_file).getroot().findall("bookmark"))
    if folder.is_dir():
        entries += len(list(folder.glob("*.desktop")))
    return entries
