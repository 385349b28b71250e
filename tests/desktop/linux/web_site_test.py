#!/usr/bin/python3
"""The maker's web site, opened by the labels that show its address."""

import os

from support import checks

from desktop.waiting import wait_until

ADDRESS = "https://www.zelvane.example/"
ENTRY = """[Desktop Entry]
Type=Application
Name=A browser
MimeType=text/html;
Exec="{program}" --page %u
"""
BROWSER = """#!/bin/sh
printf '%s\\n' "$@" > '{ear}.part'
mv '{ear}.part' '{ear}'
"""


class Browser:
    """One that only writes down what it was started with, and that the user likes best."""

    def __init__(self, home):
        self._ear = home.home / "said"
        program = home.home / "a browser"
        program.write_text(BROWSER.format(ear=self._ear), "utf-8")
        program.chmod(0o700)
        entries = home.data / "applications"
        entries.mkdir()
        (entries / "a-browser.desktop").write_text(ENTRY.format(program=program), "utf-8")
        (home.config / "mimeapps.list").write_text(
            "[Default Applications]\ntext/html=a-browser.desktop\n", "utf-8")

    def arguments(self):
        wait_until(self._ear.exists, "the browser is started")
        arguments = self._ear.read_text("utf-8").splitlines()
        self._ear.unlink()
        return arguments


def each_label_opens_the_address_that_it_shows(bed):
    browser = Browser(bed.home)
    with bed.start() as program:
        window = program.window()
        for page in ("Main", "Popup Killer"):
            window.turn_to(page)
            window.press(ADDRESS)

            assert browser.arguments() == ["--page", ADDRESS]

        wait_until(lambda: "temphtm.htm" not in os.listdir(bed.home.temporary),
                   "the page that was made for the question is gone")
        assert program.is_running


def without_a_browser_it_says_so(bed):
    nothing = bed.home.home / "nothing"
    nothing.mkdir()
    with bed.start(environment={"XDG_DATA_DIRS": str(nothing),
                                "XDG_CONFIG_DIRS": str(nothing)}) as program:
        program.window().press(ADDRESS)
        message = program.message()

        assert message.title == "Browser Not Found"
        assert message.text == "Could not find associated application"
        message.press("OK")
        wait_until(lambda: "temphtm.htm" not in os.listdir(bed.home.temporary),
                   "the page that was made for the question is gone")


checks.run(
    each_label_opens_the_address_that_it_shows,
    without_a_browser_it_says_so,
)
