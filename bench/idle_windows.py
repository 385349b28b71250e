#!/usr/bin/python3
"""A minute of the Windows program in the notification area, under Wine, against a bare dialog."""

import re
import tempfile

import residents
import section
from desktop.virtual_desktop import VirtualDesktop
from desktop.waiting import wait_until
from wine import Windows, is_on_screen


def stored(name):
    """As the program writes a name into the registry, where great and small letters are the same."""
    return re.sub("([A-Z])", r"^\1", name)


def arm(windows):
    key = "\\".join([r"Software\Zelvane\Settings", stored("Zelvane"), stored("Schedule")])
    windows.store(key, {stored(name): text for name, text in residents.SCHEDULE.items()})


def main():
    options = section.read_options(__doc__, rounds=1)
    page = section.Section("The same minute of the Windows program, under Wine", options.rounds)
    with VirtualDesktop(accessibility=False) as desktop, \
            tempfile.TemporaryDirectory(prefix="windows-", dir=options.build) as folder:
        windows = Windows(options, desktop, folder)
        with windows.running() as dialog:
            arm(windows)
            zelvane = residents.Window("Zelvane", ["wine", windows.program("Zelvane.exe")],
                                       windows.environment, folder)
            wait_until(lambda: is_on_screen("^Wine System Tray"), "the panel shows the icon")
            zelvane.hide()
            home = desktop.new_home("keepassxc")
            peer = residents.Window("KeePassXC, of Linux", ["keepassxc"], desktop.environment(home),
                                    home.home)
            bare = residents.Resident("a bare dialog", dialog.pid)
            server = residents.Resident("Wine's server", windows.server())
            residents.leave_alone(zelvane, bare, server, peer)
    page.add(residents.table(zelvane, bare, server, peer))
    page.add(residents.goals(zelvane, peer))
    page.add("Zelvane's window was closed to its icon, with a daily run ahead; the dialog is open and "
             "does nothing. Wine's\nown libraries are in the memory of both, divided among them. A "
             "question to Wine's server counts as a waking\nof who asks, which it would not be on "
             "Windows; the server works for all of a user's programs, idle or not.")
    page.write(options.build)


main()
