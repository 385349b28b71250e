#!/usr/bin/python3
"""How the program goes: what it stores, whether the session will start it, with which status."""

import os
import shutil
import signal
import subprocess

from support import checks

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

from desktop import accessible, many_files, settings
from desktop.accessible import wait_for
from desktop.program import Program
from desktop.waiting import PATIENCE
from desktop.window import CLEAN, TITLE

STARTUP = "Run on Startup"
FILES = 100_000
ODD_NAMES = ("with blanks", 'two "quotes" and \'two\'', "back\\slash", "$HOME `id`", "100%u %%f",
             "ş ö €", "line\nbreak", "semi;colon & more", "k=v", "~tilde*?[x]")


def entry(home):
    return home.config / "autostart" / "zelvane.desktop"


def state(home):
    """What is stored for the next start, and whether the session will make it."""
    return settings.stored(home, "Options", "StartUp"), entry(home).exists()


def choose(home, text):
    """Stores the choice for a program that is not running."""
    home.settings.parent.mkdir(mode=0o700, exist_ok=True)
    home.settings.touch(mode=0o600)
    home.settings.write_text('{"format": 1, "applications": {"Zelvane": {"Options": {"StartUp": "'
                             + text + '"}}}}', "utf-8")


def let_the_session_start_it(bed, path=None):
    """Runs the program once, with the box ticked."""
    with Program(path or bed.path, bed.desktop, bed.home) as program:
        window = program.window()
        window.tick(STARTUP)
        window.press("Exit")
        assert program.end_status() == 0


def ends_by(bed, number):
    """Ticked, the signal stores the choice and writes the entry; unticked, it deletes it again."""
    with bed.start() as program:
        program.window().tick(STARTUP)
        assert state(bed.home) == (None, False), state(bed.home)
        os.kill(program.pid, number)
        assert program.end_status() == 0
    assert state(bed.home) == ("1", True), state(bed.home)

    with bed.start() as program:
        program.window().tick(STARTUP, False)
        os.kill(program.pid, number)
        assert program.end_status() == 0
    assert state(bed.home) == ("0", False), state(bed.home)


def the_exit_button_stores_the_choice_and_writes_or_deletes_the_entry(bed):
    let_the_session_start_it(bed)
    assert state(bed.home) == ("1", True), state(bed.home)

    with bed.start() as program:
        window = program.window()
        assert window.is_ticked(STARTUP)
        window.tick(STARTUP, False)
        assert state(bed.home) == ("1", True), state(bed.home)
        window.press("Exit")
        assert program.end_status() == 0
    assert state(bed.home) == ("0", False), state(bed.home)


def sigterm_ends_it_like_the_end_of_the_session(bed):
    ends_by(bed, signal.SIGTERM)


def sigint_ends_it_like_the_end_of_the_session(bed):
    ends_by(bed, signal.SIGINT)


def sighup_ends_it_like_the_end_of_the_session(bed):
    ends_by(bed, signal.SIGHUP)


def a_window_that_was_closed_to_the_side_ends_in_full(bed):
    with bed.start() as program:
        window = program.window()
        window.tick(STARTUP)
        window.close()
        program.tell_to_quit()
        assert program.end_status() == 0

    assert state(bed.home) == ("1", True), state(bed.home)


def killed_it_writes_no_entry_and_keeps_the_former_choice(bed):
    choose(bed.home, "0")
    with bed.start() as program:
        program.window().tick(STARTUP)
        program.kill()

    assert state(bed.home) == ("0", False), state(bed.home)


def a_stored_choice_writes_no_entry_until_the_exit(bed):
    choose(bed.home, "1")
    with bed.start() as program:
        assert program.window().is_ticked(STARTUP)
        assert state(bed.home) == ("1", False), state(bed.home)
        program.tell_to_quit()
        assert program.end_status() == 0

    assert state(bed.home) == ("1", True), state(bed.home)


def it_ends_in_full_while_a_message_is_open(bed):
    choose(bed.home, "no number")
    with bed.start() as program:
        assert program.message().text == "Error: 13 - Type mismatch"
        program.tell_to_quit()
        assert program.end_status() == 0

    assert state(bed.home) == ("0", False), state(bed.home)


def before_its_window_is_loaded_it_ends_and_stores_nothing(bed):
    let_the_session_start_it(bed)
    bed.home.settings.write_text("damaged", "utf-8")
    with bed.start() as program:
        program.message()
        program.tell_to_quit()
        assert program.end_status() == 0

    assert state(bed.home) == (None, True), state(bed.home)


def a_second_start_that_is_told_to_go_changes_nothing(bed):
    let_the_session_start_it(bed)
    with bed.start() as first:
        window = first.window()
        before = bed.home.content()
        with bed.start() as second:
            second.message()
            second.tell_to_quit()
            assert second.end_status() == 0

        assert bed.home.content() == before
        assert window.is_ticked(STARTUP)


def it_ends_in_full_in_the_middle_of_a_run(bed):
    settings.tick_only(bed.home, bed.path, settings.TEMPORARY_FILES)
    many_files.make_folders(bed.home.temporary, 1, FILES)
    with bed.start() as program:
        window = program.window()
        window.tick(STARTUP)
        window.press(CLEAN)
        program.tell_to_quit()
        assert program.end_status() == 0

    assert os.listdir(bed.home.temporary)
    assert state(bed.home) == ("1", True), state(bed.home)


def the_entry_is_valid_and_starts_the_program_from_any_folder(bed):
    for number, name in enumerate(ODD_NAMES):
        folder = bed.home.home / str(number) / name
        folder.mkdir(parents=True)
        path = folder / "zelvane"
        shutil.copy2(bed.path, path)
        let_the_session_start_it(bed, path)

        judged = subprocess.run(["desktop-file-validate", entry(bed.home)], text=True,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=PATIENCE)
        assert judged.returncode == 0 and not judged.stdout, (name, judged.stdout)
        started = start_like_a_session(bed)
        assert os.readlink(f"/proc/{started}/exe") == str(path), name
        os.kill(started, signal.SIGTERM)
        assert os.waitpid(started, 0)[1] == 0, name


def start_like_a_session(bed):
    """The process that the entry starts, once it shows its window."""
    context = Gio.AppLaunchContext()
    for variable, value in bed.desktop.environment(bed.home).items():
        context.setenv(variable, value)
    application = Gio.DesktopAppInfo.new_from_filename(str(entry(bed.home)))
    started = []
    application.launch_uris_as_manager([], context, GLib.SpawnFlags.DO_NOT_REAP_CHILD, None, None,
                                       lambda _, pid, __: started.append(pid), None)

    def shown():
        return any(part.name == TITLE and part.is_showing
                   for part in accessible.application(started[0]).children())
    wait_for(shown, "the session's program shows its window")
    return started[0]


def somebody_elses_entry_of_that_name_is_left_alone(bed):
    entry(bed.home).parent.mkdir()
    entry(bed.home).write_text("[Desktop Entry]\nType=Application\nName=Zelvane\nExec=mine\n")
    before = entry(bed.home).read_bytes()

    let_the_session_start_it(bed)
    assert entry(bed.home).read_bytes() == before

    with bed.start() as program:
        window = program.window()
        window.tick(STARTUP, False)
        window.press("Exit")
        assert program.end_status() == 0
    assert entry(bed.home).read_bytes() == before


def what_lies_outside_is_in_the_ledger(bed):
    ledger = bed.home.config / "zelvane" / "ledger.txt"
    let_the_session_start_it(bed)

    assert ledger.read_text("utf-8") == f"Zelvane ledger 1\nfile {entry(bed.home)}\n"

    with bed.start() as program:
        program.window().tick(STARTUP, False)
        program.tell_to_quit()
        assert program.end_status() == 0
    assert ledger.read_text("utf-8") == "Zelvane ledger 1\n"


checks.run(
    the_exit_button_stores_the_choice_and_writes_or_deletes_the_entry,
    sigterm_ends_it_like_the_end_of_the_session,
    sigint_ends_it_like_the_end_of_the_session,
    sighup_ends_it_like_the_end_of_the_session,
    a_window_that_was_closed_to_the_side_ends_in_full,
    killed_it_writes_no_entry_and_keeps_the_former_choice,
    a_stored_choice_writes_no_entry_until_the_exit,
    it_ends_in_full_while_a_message_is_open,
    before_its_window_is_loaded_it_ends_and_stores_nothing,
    a_second_start_that_is_told_to_go_changes_nothing,
    it_ends_in_full_in_the_middle_of_a_run,
    the_entry_is_valid_and_starts_the_program_from_any_folder,
    somebody_elses_entry_of_that_name_is_left_alone,
    what_lies_outside_is_in_the_ledger,
    folder=many_files.IN_MEMORY,
)
