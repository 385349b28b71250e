#!/usr/bin/python3
"""A minute in the notification area, with the schedule armed, against KeePassXC."""

import json

import residents
import section
from desktop.tray_host import TrayHost
from desktop.virtual_desktop import VirtualDesktop
from desktop.waiting import wait_until


def arm(home):
    home.settings.parent.mkdir(mode=0o700)
    home.settings.touch(mode=0o600)
    home.settings.write_text(json.dumps(
        {"format": 1, "applications": {"Zelvane": {"Schedule": residents.SCHEDULE}}}), "ascii")


def start(name, program, desktop, home):
    return residents.Window(name, [program], desktop.environment(home), home.home)


def main():
    options = section.read_options(__doc__, rounds=1)
    page = section.Section("A minute in the notification area", options.rounds)
    # What screen readers need is loaded when one runs, and then by everybody.
    with VirtualDesktop(accessibility=False) as desktop, TrayHost() as panel:
        home = desktop.new_home("zelvane")
        arm(home)
        zelvane = start("Zelvane", options.build / "zelvane", desktop, home)
        wait_until(panel.tips, "the panel shows the icon")
        zelvane.hide()
        peer = start("KeePassXC", "keepassxc", desktop, desktop.new_home("keepassxc"))
        residents.leave_alone(zelvane, peer)
    page.add(residents.table(zelvane, peer))
    page.add(residents.goals(zelvane, peer))
    page.add("Zelvane's window was closed to its icon, with a daily run ahead; KeePassXC's is open, "
             "with nothing in it. Memory\nthat several programs share is divided among them.")
    page.write(options.build)


main()
