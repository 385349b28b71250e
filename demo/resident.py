"""The program as a resident: in the notification area, by the clock, and started with the session."""

from desktop import settings
from desktop.tray_host import TrayHost
from desktop.waiting import wait_until


def show(desktop, program, report):
    """Closes the window to its icon, lets the schedule clean, and leaves by the icon's menu."""
    # Not before it is known that the bindings which these need are installed.
    from desktop.program import Program
    from desktop.schedule_page import SchedulePage, apply_a_time_to_come

    home = desktop.new_home("resident")
    settings.tick_only(home, program)
    entry = home.config / "autostart" / "zelvane.desktop"
    with TrayHost() as panel, Program(program, desktop, home) as running:
        report.heading("In the notification area, with a schedule")
        window = running.window()
        wait_until(lambda: panel.tips() == ["Zelvane v1.0"], "the panel shows the icon")
        window.tick("Run on Startup")
        time = apply_a_time_to_come(SchedulePage(desktop, home, window), left=5)
        window.close()
        report.check("The close box hides the window, and the icon stays",
                     running.is_running and panel.tips() == ["Zelvane v1.0"], panel.tips())
        report.say(f"  Hidden; the schedule is set to {time}.")
        wait_until(lambda: settings.stored(home, "Schedule", "LastRunTime") == time,
                   "the run starts by itself", seconds=90)
        report.check(f"The cleaning started by itself at {time}", True)

        for label, mark in panel.menu():
            report.say(f"  | {'x' if mark else ' '} {label}")
        panel.choose("Activate Popup Killer")
        wait_until(lambda: ("Activate Popup Killer", True) not in panel.menu(), "the mark is gone")
        report.check("The menu's switch turns the popup killer off",
                     settings.stored(home, "PopupKiller", "IsActive") == "0")
        panel.choose("Exit")
        report.check("The menu's \"Exit\" ends the program with status 0", running.end_status() == 0)
    report.check("The session will start it: its entry is written", entry.exists(), entry)
