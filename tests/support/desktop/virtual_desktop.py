"""A display, a window manager and a session bus of their own, gone at the end whatever happens."""

import contextlib
import os
import pathlib
import secrets
import select
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import urllib.parse

from desktop import private_mounts, processes
from desktop.throw_away_home import ThrowAwayHome
from desktop.waiting import PATIENCE, TookTooLong, wait_until

NEEDED = {
    "Xvfb": "xvfb", "openbox": "openbox", "dbus-daemon": "dbus", "xdotool": "xdotool",
    "xclip": "xclip", "import": "imagemagick",
}
ACCESSIBILITY_SERVICE = "/usr/share/dbus-1/services/org.a11y.Bus.service"


class Missing(Exception):
    """Something that a desktop needs is not installed."""


def missing():
    """What is not installed, by the names of Debian's packages."""
    names = [package for command, package in NEEDED.items() if shutil.which(command) is None]
    if not os.path.exists(ACCESSIBILITY_SERVICE):
        names.append("at-spi2-core")
    try:
        import gi
        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        names += ["python3-gi", "gir1.2-atspi-2.0"]
    return names


class VirtualDesktop:
    """One a process, because a process has one environment and one accessibility bus. Everything
    that is started here finds its files below `place`, a folder that goes with the desktop; it is
    made in `folder`, or where temporary files go."""

    def __init__(self, keep=False, folder=None, window_manager=True, accessibility=True):
        self._keep = keep
        self._folder = folder
        self._wants_window_manager = window_manager
        self._wants_accessibility = accessibility
        self._rest = contextlib.ExitStack()
        self.place = None
        self.has_private_mounts = False
        # Only then may a program on this desktop empty the trash of every volume.
        self.hides_foreign_trash = False
        self._environment = {}

    def __enter__(self):
        if lacking := missing():
            raise Missing("Please install: " + " ".join(lacking))
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            signal.signal(number, lambda number, frame: sys.exit(128 + number))
        processes.adopt_orphans()
        with contextlib.ExitStack() as rest:
            self._enter_private_mounts()
            self.place = pathlib.Path(tempfile.mkdtemp(prefix="zelvane-",
                                                       dir=self._folder)).resolve()
            rest.callback(self._remove_place)
            rest.callback(processes.end_all)
            self._start(rest.enter_context(open(self.place / "desktop.log", "wb")))
            self._rest = rest.pop_all()
        return self

    def __exit__(self, *reason):
        self._rest.close()

    def new_home(self, name="user"):
        """A home for one more user of this desktop."""
        return ThrowAwayHome(self.place / name)

    def environment(self, home):
        """All variables of a program that `home`'s user starts on this desktop."""
        return {**home.environment(), **self._environment}

    def screenshot(self, file, window):
        """Writes a picture of the window, its frame left out. `window` is X's number."""
        subprocess.run(["import", "-window", str(window), f"png:{file}"], check=True,
                       timeout=PATIENCE)

    def key(self, *keys):
        """Presses keys, as xdotool names them, on the window that has the focus."""
        subprocess.run(["xdotool", "key", *keys], check=True, timeout=PATIENCE)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "1", text], check=True, timeout=PATIENCE)

    def _enter_private_mounts(self):
        self.has_private_mounts = private_mounts.enter()
        if self.has_private_mounts:
            with contextlib.suppress(OSError):
                private_mounts.cover_foreign_trash()
        self.hides_foreign_trash = not private_mounts.foreign_trash_folders()

    def _start(self, log):
        # Its services run in a home of their own, so that no user of the desktop sees their files.
        home = self.new_home("desktop")
        authority = self.place / "authority"
        _write_authority(authority)
        self._environment = {"XAUTHORITY": str(authority), "QT_QPA_PLATFORM": "xcb",
                             "NO_AT_BRIDGE": "1"}
        if self._wants_accessibility:
            self._environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        # Without "-noreset" it starts over when its last client leaves, and takes along whoever
        # comes just then.
        number = self._answer_of(
            lambda out: ["Xvfb", "-displayfd", str(out), "-screen", "0", "1280x1024x24",
                         "-nolisten", "tcp", "-noreset", "-auth", str(authority)], home, log)
        self._environment["DISPLAY"] = f":{number}"
        self._environment["DBUS_SESSION_BUS_ADDRESS"] = self._answer_of(
            lambda out: ["dbus-daemon", "--session", "--nofork", f"--print-address={out}",
                         f"--address=unix:path={urllib.parse.quote(str(home.runtime))}/bus"], home, log)
        # From here on this process lives on the desktop too, not in the caller's home.
        environment = self.environment(home)
        os.environ.clear()
        os.environ.update(environment)
        if self._wants_window_manager:
            processes.start(["openbox"], stdin=subprocess.DEVNULL, stdout=log, stderr=log)
            wait_until(_has_window_manager, "the window manager is there")

    def _answer_of(self, command, home, log):
        """Starts a server and returns the line that it writes once it is ready."""
        ours, theirs = os.pipe()
        with os.fdopen(ours) as answer:
            processes.start(command(theirs), env=self.environment(home), pass_fds=[theirs],
                            stdin=subprocess.DEVNULL, stdout=log, stderr=log)
            os.close(theirs)
            if not select.select([answer], [], [], PATIENCE)[0]:
                raise TookTooLong(f"{command(0)[0]} did not start")
            if line := answer.readline().strip():
                return line
        log_text = (self.place / "desktop.log").read_text("utf-8", "replace")
        raise Missing(f"{command(0)[0]} ended at once:\n{log_text}")

    def _remove_place(self):
        if self._keep:
            return
        if self.has_private_mounts:
            private_mounts.unmount_below(self.place)
        for folder, _, _ in os.walk(self.place):
            with contextlib.suppress(OSError):
                os.chmod(folder, 0o700)
        shutil.rmtree(self.place, ignore_errors=True)


def _write_authority(path):
    """A key without which no other user of the machine can look at the display. The record, all
    numbers two bytes with the high one first:

        FF FF  any host | 0  its name | 0  display number: any | length, name | length, key
    """
    name, key = b"MIT-MAGIC-COOKIE-1", secrets.token_bytes(16)
    record = struct.pack(f">HHHH{len(name)}sH{len(key)}s", 0xFFFF, 0, 0, len(name), name, len(key),
                         key)
    path.touch(mode=0o600)
    path.write_bytes(record)


def _has_window_manager():
    # One that is there has told how many desktops it has.
    return subprocess.run(["xdotool", "get_num_desktops"], stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, timeout=PATIENCE).returncode == 0
