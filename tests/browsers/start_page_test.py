#!/usr/bin/python3
"""The home page that the user chose in the window is the page that the real browsers start with."""

import functools
import itertools
import json
import shutil

from support import checks

from desktop import settings
from desktop.program import Program
from desktop.waiting import wait_until
from glass.browsers import Chromium, UsualFirefox
from glass.server import Answer, Server
from glass.tokens import Manifest

HOST = "127.0.0.1"
LONG = 120  # seconds, for a browser to start and to show a page
_numbers = itertools.count(1)


class House:
    """A home in which each browser was used once, and a web that tells which pages they open."""

    def __init__(self, bed, server):
        self.bed = bed
        self.server = server
        self.home, self.browsers = _home_with_browsers(bed.desktop, server)
        shutil.copytree(_used_home(bed.desktop).home, self.home.home, symlinks=True,
                        dirs_exist_ok=True)
        for browser in self.browsers:
            browser.list_profiles(self.home)

    def page(self, name):
        return _page(self.server, name)

    def use(self, browser, shows):
        """Starts it as from a menu, until it shows that page."""
        _use(self.server, browser, shows)

    def program(self):
        return Program(self.bed.path, self.bed.desktop, self.home)

    def choose(self, address):
        with self.program() as program:
            window = program.window()
            window.come_forward()
            window.home_page.focus()
            wait_until(lambda: window.home_page.is_focused, "the box has the focus")
            self.bed.desktop.key("ctrl+a", "Delete")
            self.bed.desktop.type(address)
            wait_until(lambda: window.home_page.text() == address, "the address is typed")
            window.press("Set Home Page")
            # Stored last, when the browsers have it.
            wait_until(lambda: settings.stored(self.home, "HomePage", "StartPage") == address,
                       "the address is stored")

    def start_program(self):
        with self.program() as program:
            program.window()


def _home_with_browsers(desktop, server):
    # Chromium puts a socket into the home's temporary folder, whose path may not be long.
    home = desktop.new_home(f"page{next(_numbers)}")
    return home, [kind(desktop, home, server, Manifest()) for kind in (UsualFirefox, Chromium)]


@functools.cache
def _used_home(desktop):
    """Where each browser was started once and has written its settings. To be copied."""
    with Server() as server:
        home, browsers = _home_with_browsers(desktop, server)
        for browser in browsers:
            _use(server, browser, "first", _page(server, "first"))
    return home


def _page(server, name):
    """The address of a page that tells when it is shown, and by whom."""
    return server.serve(HOST, f"/{name}", Answer(f"""<title>{name}</title>{name}<script>
        const browser = navigator.userAgent.includes("Firefox") ? "firefox" : "chromium"
        onload = () => requestAnimationFrame(() => fetch("/told/{name}-" + browser))
        </script>"""))


def _use(server, browser, shows, address=None):
    browser.start(address)
    try:
        server.wait_for(f"{shows}-{browser.name}", LONG)
        browser.close()
    except AssertionError:
        browser.kill()  # its window would be in the way of the next test
        raise


def each_browser_opens_the_page_that_was_set(bed):
    with Server() as server:
        house = House(bed, server)
        house.choose(house.page("mine"))

        for browser in house.browsers:
            house.use(browser, "mine")


def an_address_without_its_protocol_is_opened_too(bed):
    with Server() as server:
        house = House(bed, server)
        house.choose(house.page("short").removeprefix("http://"))

        for browser in house.browsers:
            house.use(browser, "short")


def a_page_that_slipped_in_is_gone_at_the_next_start_of_both(bed):
    with Server() as server:
        house = House(bed, server)
        mine, theirs = house.page("mine"), house.page("theirs")
        house.choose(mine)
        firefox, chromium = house.browsers
        prefs = firefox.folder / "prefs.js"
        prefs.write_text(prefs.read_text("utf-8").replace(mine, theirs), "utf-8")
        preferences = chromium.folder / "Preferences"
        preferences.write_text(preferences.read_text("utf-8").replace(mine, theirs), "utf-8")

        house.start_program()

        for browser in house.browsers:
            house.use(browser, "mine")
            assert theirs not in server.visited, f"{browser.name} opened {theirs}"


def what_they_started_with_before_is_noted(bed):
    with Server() as server:
        house = House(bed, server)

        house.start_program()

        file = house.home.data / "zelvane" / "start-pages.json"
        noted = json.loads(file.read_text("utf-8"))["profiles"]
        assert sorted(noted) == sorted(str(browser.folder) for browser in house.browsers), noted


checks.run(each_browser_opens_the_page_that_was_set,
           an_address_without_its_protocol_is_opened_too,
           a_page_that_slipped_in_is_gone_at_the_next_start_of_both,
           what_they_started_with_before_is_noted)
