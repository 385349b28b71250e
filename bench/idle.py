#!/usr/bin/python3
"""A minute in the notification area, with the schedule armed, against KeePassXC."""

import json
import pathlib
import subprocess
import time

import section
from desktop import processes
from desktop.memory import share_of
from desktop.tray_host import TrayHost
from desktop.virtual_desktop import VirtualDesktop
from desktop.waiting import wait_until

SECONDS = 60
MOST_OF_A_CORE = 0.001
MOST_WAKINGS = 5  # a second
SCHEDULE = {"RunOn": "7", "Date": "Null", "Time": "04:00:00", "RunAfter": "2",
            "LastRunTime": "##:##:##"}


class Resident:
    """A program that was started and left alone. What it did since `begin` is in `processor`, in
    seconds, and `wakings`; what it holds of the memory in `memory`, in bytes."""

    def __init__(self, name, command, desktop, home):
        self.name = name
        self._process = processes.start([str(command)], env=desktop.environment(home),
                                        cwd=home.home, stdin=subprocess.DEVNULL,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._window = wait_until(self._find, f"the window of {name} is there")

    def hide(self):
        """By its close box."""
        subprocess.run(["xdotool", "windowactivate", "--sync", self._window, "key", "alt+F4"],
                       check=True)
        wait_until(lambda: not self._find(), f"the window of {self.name} is hidden")

    def begin(self):
        self._before = self._used()

    def end(self):
        self.processor, self.wakings = (after - before for after, before
                                        in zip(self._used(), self._before))
        self.memory = share_of(self._process.pid)

    def _find(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid",
                                str(self._process.pid), "--name", "."], stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, text=True).stdout.split()
        return found[0] if found else None

    def _used(self):
        """Nanoseconds on a processor of all threads, and how often one was put there after a wait."""
        nanoseconds = wakings = 0
        for thread in pathlib.Path(f"/proc/{self._process.pid}/task").iterdir():
            nanoseconds += int((thread / "schedstat").read_text().split()[0])
            status = (thread / "status").read_text()
            wakings += int(status.split("voluntary_ctxt_switches:")[1].split()[0])
        return nanoseconds / 1e9, wakings


def arm(home):
    home.settings.parent.mkdir(mode=0o700)
    home.settings.touch(mode=0o600)
    home.settings.write_text(json.dumps(
        {"format": 1, "applications": {"Zelvane": {"Schedule": SCHEDULE}}}), "ascii")


def verdict(held):
    return "met" if held else "**not met**"


def main():
    options = section.read_options(__doc__, rounds=1)
    page = section.Section("A minute in the notification area", options.rounds)
    # What screen readers need is loaded when one runs, and then by everybody.
    with VirtualDesktop(accessibility=False) as desktop, TrayHost() as panel:
        home = desktop.new_home("zelvane")
        arm(home)
        zelvane = Resident("Zelvane", options.build / "zelvane", desktop, home)
        wait_until(panel.tips, "the panel shows the icon")
        zelvane.hide()
        peer = Resident("KeePassXC", "keepassxc", desktop, desktop.new_home("keepassxc"))
        for each in (zelvane, peer):
            each.begin()
        time.sleep(SECONDS)
        for each in (zelvane, peer):
            each.end()
    lines = ["| | of one core | wakings a second | memory, MiB (PSS) |", "|---|---|---|---|"]
    lines += [f"| {each.name} | {each.processor / SECONDS:.3%} | {each.wakings / SECONDS:.1f} "
              f"| {each.memory / 2**20:.0f} |" for each in (zelvane, peer)]
    page.add("\n".join(lines))
    page.add(f"Goals: at most {MOST_OF_A_CORE:.1%} of a core, "
             f"{verdict(zelvane.processor / SECONDS <= MOST_OF_A_CORE)}; at most {MOST_WAKINGS} "
             f"wakings a second, {verdict(zelvane.wakings / SECONDS <= MOST_WAKINGS)}; no more memory "
             f"than KeePassXC, {verdict(zelvane.memory <= peer.memory)}.")
    page.add("Zelvane's window was closed to its icon, with a daily run ahead; KeePassXC's is open, "
             "with nothing in it. Memory\nthat several programs share is divided among them.")
    page.write(options.build)


main()
