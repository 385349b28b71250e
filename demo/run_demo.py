#!/usr/bin/python3
"""Shows Zelvane at work on a desktop, in a home made for the occasion, and checks the outcome.

    run_demo.py --program PATH [--browsers | --no-browsers] [--keep] [--screenshot FILE]

Nothing of the machine's user is read or written. The exit status is 0 if everything held.
"""

import argparse
import os
import pathlib
import sys
import tempfile

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "support"))

import browsers
import resident
from desktop import hive, private_mounts
from desktop.virtual_desktop import Missing, VirtualDesktop
from report import BLACK, BLUE, GREEN, Report, lines_of, role_of
from sample_home import SampleHome

RECYCLE_BIN = "Clear Recycle Bin"
IMPOSED_PAGE = "about:blank"


def main():
    options = read_options()
    report = Report()
    try:
        with VirtualDesktop(keep=options.keep) as desktop:
            show(desktop, options, report)
            resident.show(desktop, options.program, report)
            if wants_browsers(options, report):
                browsers.show(desktop, options.program, report)
            if options.keep:
                report.say(f"Kept: {desktop.place}")
    except Missing as reason:
        sys.exit(f"The demonstration cannot start. {reason}")
    except (AssertionError, LookupError) as reason:
        report.check("The demonstration runs to its end", False, reason)
    return 0 if report.end() else 1


def read_options():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", required=True, type=pathlib.Path, help="the built zelvane")
    parser.add_argument("--keep", action="store_true", help="leave the made-up home behind")
    parser.add_argument("--screenshot", type=pathlib.Path, metavar="FILE",
                        help="where the picture of the window goes (a PNG)")
    parser.add_argument("--browsers", action=argparse.BooleanOptionalAction,
                        help="with real browsers, too; without a word on it, if they are installed")
    options = parser.parse_args()
    if not os.access(options.program, os.X_OK):
        parser.error(f"there is no program {options.program}")
    options.program = options.program.resolve()
    if options.screenshot is None:
        handle, name = tempfile.mkstemp(prefix="demo-screenshot-", suffix=".png")
        os.close(handle)
        options.screenshot = pathlib.Path(name)
    options.screenshot = options.screenshot.resolve()
    return options


def wants_browsers(options, report):
    lacking = browsers.missing()
    if options.browsers and lacking:
        report.check("The browsers and their libraries are installed", False, " ".join(lacking))
    elif options.browsers is None and lacking:
        report.say("Without browsers, as not installed: " + " ".join(lacking))
    return options.browsers is not False and not lacking


def show(desktop, options, report):
    home, volume = desktop.new_home(), make_second_volume(desktop, report)
    outside = desktop.place / "outside"
    report.say(f"A made-up home, on a display of its own: {home.home}")
    sample = SampleHome(home, outside, volume)
    try:
        if not desktop.hides_foreign_trash:
            leave_the_trash_alone(sample, report)
        clean(desktop, options, report, home, sample)
    finally:
        sample.close()


def make_second_volume(desktop, report):
    if not desktop.has_private_mounts:
        report.say("This system allows no mounts of one's own, so there is one volume only.")
        return None
    volume = desktop.place / "second volume"
    volume.mkdir()
    private_mounts.mount_volume(volume)
    return volume


def leave_the_trash_alone(sample, report):
    report.say(f"There is trash of yours on another volume and no way to put it out of reach, so "
               f"\"{RECYCLE_BIN}\" stays unticked.")
    sample.traces = [trace for trace in sample.traces if trace.option != RECYCLE_BIN]


def clean(desktop, options, report, home, sample):
    # Not before it is known that the bindings which these need are installed.
    from desktop.program import Program
    from desktop.window import CLEAN

    sample.look_before()
    with Program(options.program, desktop, home) as program:
        window = program.window()
        check_start(report, home, window)
        tick_boxes(report, sample, window)
        report.heading(f"Pressing \"{CLEAN}\"")
        window.clean()
        show_log(report, window, sample)
        sample.look_after()
        desktop.screenshot(options.screenshot, window.number)
        show_outcome(report, sample)
        report.say(f"\nA picture of the window: {options.screenshot}\n")
        leave(report, home, program, window)


def check_start(report, home, window):
    report.heading("The window is there")
    report.check("The window is called \"Zelvane v1.0\"", window.title == "Zelvane v1.0",
                 window.title)
    page = hive.texts(home, hive.BROWSER)["Start Page"]
    report.check("The start page that slipped in has given way to the chosen one",
                 page == IMPOSED_PAGE, page)


def tick_boxes(report, sample, window):
    report.heading("Ticking what to erase")
    wanted = sorted({(trace.page, trace.option) for trace in sample.traces})
    for page, option in wanted:
        window.turn_to(page)
        window.tick(option)
        report.say(f"  {page}: {option}")
    if not any(option == RECYCLE_BIN for _, option in wanted):
        window.turn_to("Clean Computer")
        window.tick(RECYCLE_BIN, ticked=False)
    window.turn_to("Main")


def show_log(report, window, sample):
    pieces = [(text, role_of(colour)) for text, colour in window.log.coloured_text()]
    report.log(pieces)
    report.say()
    lines = lines_of(pieces)
    starts = {BLUE: ("Path: ", "Erasing "), GREEN: ("Finished ",), BLACK: ("Done",)}
    wrong = [f"{colour}: {text}" for text, colour in lines
             if not text.startswith(starts.get(colour, "none of these"))]
    report.check("The log is blue where work begins, green where it is finished, black at its end",
                 lines and not wrong, "\n".join(wrong))
    report.check("The log shows its end", window.log.shows_its_end())
    paths = [text.removeprefix("Path: ") for text, _ in lines]
    for place in (sample.documents, sample.temporary):
        report.check(f"The log names {place}", str(place) in (path.rstrip("/") for path in paths),
                     paths)


def show_outcome(report, sample):
    report.heading("What was there, and what is there now")
    report.table(sample.traces, sample.kept)
    report.say()
    for trace in sample.traces:
        report.check(f"Erased: {trace.title}", trace.held,
                     f"before: {trace.before}, after: {trace.after}")
    for thing in sample.kept:
        report.check(f"Kept: {thing.title}", thing.held,
                     f"before:\n{thing.before}\nafter:\n{thing.after}")


def leave(report, home, program, window):
    window.press("Exit")
    status = program.end_status()
    report.check("\"Exit\" ends the program with status 0", status == 0, status)
    mode = home.mode(home.settings) if home.settings.exists() else None
    report.check("The settings are stored, for their user alone", mode == 0o600, mode)


if __name__ == "__main__":
    sys.exit(main())
