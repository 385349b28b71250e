"""Tests that say in lines what held: "ok - ...", "not ok - ...", "skip - ...: reason"."""

import os
import pathlib
import sys
import traceback

from desktop.program import Program
from desktop.virtual_desktop import Missing, VirtualDesktop


class Skip(Exception):
    """This machine cannot show it; the text says why."""


class Bed:
    """What a test gets: a desktop, a home that no test has used, and the program to start in it."""

    def __init__(self, desktop, home, path):
        self.desktop = desktop
        self.home = home
        self.path = path

    def start(self, home=None, arguments=(), environment=None):
        return Program(self.path, self.desktop, home or self.home, arguments, environment)


def run(*tests, folder=None):
    """Runs the tests, each a function that is given a bed and whose name is a sentence that can be
    false. Their homes are made in `folder`, or where temporary files go. Ends the script: status 0
    if nothing failed."""
    path = program_path()
    try:
        with VirtualDesktop(folder=folder) as desktop:
            failures = sum(not _holds(test, desktop, path) for test in tests)
    except Missing as reason:
        for test in tests:
            print(f"skip - {_sentence(test)}: {reason}")
        failures = 0
    sys.exit(1 if failures else 0)


def program_path():
    """From the command line, or ZELVANE_PROGRAM."""
    path = sys.argv[1] if len(sys.argv) > 1 else os.environ.get("ZELVANE_PROGRAM", "")
    if not os.access(path, os.X_OK):
        sys.exit(f"No program \"{path}\". Name it as the argument or in ZELVANE_PROGRAM.")
    return pathlib.Path(path).absolute()


def _holds(test, desktop, path):
    home = desktop.new_home(test.__name__)
    try:
        test(Bed(desktop, home, path))
    except Skip as reason:
        print(f"skip - {_sentence(test)}: {reason}", flush=True)
    except Exception:
        print(f"not ok - {_sentence(test)}")
        print(_as_comment(_where(test)))
        print(_as_comment(_told_by_the_program(home)), flush=True)
        return False
    else:
        print(f"ok - {_sentence(test)}", flush=True)
    return True


def _sentence(test):
    text = test.__name__.replace("_", " ")
    return text[0].upper() + text[1:]


def _where(test):
    """The line of the test that failed, and why."""
    kind, error, trace = sys.exc_info()
    frames = [frame for frame in traceback.extract_tb(trace)
              if frame.filename == test.__code__.co_filename]
    lines = traceback.format_list(frames) + traceback.format_exception_only(kind, error)
    return "".join(lines)


def _told_by_the_program(home):
    log = home.runtime / "program.log"
    return log.read_text("utf-8", "replace") if log.exists() else ""


def _as_comment(text):
    return "\n".join("# " + line for line in text.splitlines())
