#!/usr/bin/python3
"""The program's first start in a home that has never seen it."""

import getpass

from support import checks

from desktop import hive
from desktop.window import TITLE

TICKED = {
    "Clear Site Addresses", "Clear Browser Cookies", "Clear Browser History Logs",
    "Frees space on your Hard Drive", "Clear Windows' secret index.dat file",
    "Prevent Sites from improperly changing your Home Page", "Clear Recent Files List",
    "Clear Recycle Bin", "Windows Temp Directories",
    # No browser has been asked to suggest addresses.
    "Clear Auto Complete Web Addresses",
}
UNTICKED = {
    "Clear Temporary Internet Files", "Clear Browser Favorites ", "Clear My Documents Files",
    "Clear Clipboard", 'Delete Windows start menu "run" history', "Disable Script Debugging",
    "Don't Display a Notification About Every Script Error", "Run on Startup",
}
OWN_FILES = {
    ".config/zelvane/.lock", ".config/zelvane/registry.json", ".config/zelvane/settings.json",
    ".config/zelvane/win.ini", ".local/share/zelvane/ding.wav",
    ".local/share/zelvane/wavpath.txt",
    ".cache/zelvane/instance.lock",  # where there is no run-time folder for it
}


def the_window_is_called_by_name_and_version(bed):
    with bed.start() as program:
        assert program.window().title == TITLE


def the_first_page_is_in_front_and_the_status_line_says_ready(bed):
    with bed.start() as program:
        window = program.window()

        assert window.page == "Main"
        assert window.says("Ready")


def the_usual_options_are_ticked_and_no_other(bed):
    with bed.start() as program:
        ticks = program.window().ticks()

        assert {caption for caption, ticked in ticks.items() if ticked} == TICKED
        assert {caption for caption, ticked in ticks.items() if not ticked} == UNTICKED


def the_home_page_is_blank_and_imposed_on_the_browser(bed):
    with bed.start() as program:
        assert program.window().home_page.text() == "about:blank"
        assert hive.texts(bed.home, hive.BROWSER)["Start Page"] == "about:blank"


def no_argument_is_ever_read(bed):
    container = bed.home.home / "letter.dvk"
    container.write_text("not to be opened")
    # The last two would be the toolkit's own to understand.
    with bed.start(arguments=[str(container), "--help", "-platform", "offscreen"]) as program:
        assert program.window().says("Ready")

    assert container.read_text() == "not to be opened"


def the_log_is_empty(bed):
    with bed.start() as program:
        assert program.window().log.text() == ""


def what_is_stored_is_private_to_its_user(bed):
    with bed.start() as program:
        program.window().press("Exit")
        assert program.end_status() == 0

    assert bed.home.mode(bed.home.settings.parent) == 0o700
    assert {bed.home.mode(file) for file in bed.home.settings.parent.iterdir()} == {0o600}


def nothing_is_written_but_the_files_of_its_own(bed):
    with bed.start() as program:
        program.window().press("Exit")
        assert program.end_status() == 0

    # A system that was never started before has no cache of its fonts; their library makes one.
    files = {file for file in bed.home.files() if not file.startswith(".cache/fontconfig/")}
    assert files <= OWN_FILES, files
    # Without a run-time folder the toolkit makes one of its own.
    left = {path.name for path in bed.home.temporary.iterdir()}
    assert left <= {f"runtime-{getpass.getuser()}"}, left


checks.run(
    the_window_is_called_by_name_and_version,
    the_first_page_is_in_front_and_the_status_line_says_ready,
    the_usual_options_are_ticked_and_no_other,
    the_home_page_is_blank_and_imposed_on_the_browser,
    no_argument_is_ever_read,
    the_log_is_empty,
    what_is_stored_is_private_to_its_user,
    nothing_is_written_but_the_files_of_its_own,
)
