#!/usr/bin/python3
"""What the real browsers keep of a journey, and what of it is left when the window has cleaned."""

import itertools
import sqlite3

from support import checks

from desktop.program import Program
from glass import sqlite_store
from glass.browsers import Chromium, Firefox
from glass.finder import Glass, listing
from glass.server import Server
from glass.tokens import CACHE, COOKIES, FORMS, HISTORY, KEEP, TYPED, Manifest

OPTIONS = {HISTORY: "Clear Browser History Logs", CACHE: "Clear Temporary Internet Files",
           COOKIES: "Clear Browser Cookies", TYPED: "Clear Site Addresses"}
ERASED = (HISTORY, CACHE, COOKIES, TYPED, FORMS)
# The file that the journey downloads is its user's, and the desktop's list of it another option's.
NOT_BROWSERS = ("Downloads/", ".local/share/recently-used.xbel")
BROWSERS = (Firefox, Chromium)
_numbers = itertools.count(1)


class Web:
    """A home whose user has travelled with some browsers."""

    def __init__(self, bed, *kinds, end="close"):
        self.bed = bed
        # Chromium puts a socket into the home's temporary folder, whose path may not be long.
        self.home = bed.desktop.new_home(f"web{next(_numbers)}")
        self.manifest = Manifest()
        self.browsers = []
        with Server() as server:
            for kind in kinds:
                browser = kind(bed.desktop, self.home, server, self.manifest, "default")
                try:
                    browser.travel()
                    getattr(browser, end)()
                except AssertionError:
                    browser.kill()  # its window would be in the way of the next test
                    raise
                self.browsers.append(browser)
            self.manifest.addresses = sorted(server.visited)

    def hits(self, *erased_by):
        """Of the tokens that these take away, as "kind: place" lines."""
        found = Glass(self.manifest).search(self.home.home)
        assert not found.not_read, found.not_read
        wanted = {token.text: token.erased_by for token in self.manifest.tokens}
        return sorted({f"{hit.kind}: {hit.file} {hit.within} {hit.view}" for hit in found.hits
                       if wanted[hit.token] in erased_by and not hit.file.startswith(NOT_BROWSERS)})

    def kinds(self, *erased_by):
        return {line.split(":")[0] for line in self.hits(*erased_by)}

    def clean(self, *options):
        with Program(self.bed.path, self.bed.desktop, self.home) as program:
            window = program.window()
            window.tick_only(*options)
            window.clean()


def the_glass_finds_what_each_browser_keeps(bed):
    web = Web(bed, *BROWSERS)

    kinds = web.kinds(*ERASED, KEEP)

    for kind in ("address", "title", "cookiename", "localstorage", "indexeddb", "image", "typed",
                 "field", "download", "icon", "worker", "cacheapi", "opentab", "bookmarktitle"):
        assert kind in kinds, f"{kind} not in {sorted(kinds)}"


def with_the_four_options_nothing_is_left_and_bookmarks_stay(bed):
    web = Web(bed, *BROWSERS)
    kept = web.kinds(KEEP)

    web.clean(*OPTIONS.values())

    assert web.hits(*ERASED) == [], "\n".join(web.hits(*ERASED))
    assert {"bookmark", "bookmarktitle", "bookmarkhost", "bookmarkicondots"} <= web.kinds(KEEP), kept
    _every_database_is_sound(web.home)


def after_a_kill_nothing_is_left_either(bed):
    web = Web(bed, *BROWSERS, end="kill")

    web.clean(*OPTIONS.values())

    assert web.hits(*ERASED) == [], "\n".join(web.hits(*ERASED))
    _every_database_is_sound(web.home)


def the_browsers_start_again_on_what_is_left(bed):
    web = Web(bed, *BROWSERS)
    web.clean(*OPTIONS.values())

    for browser in web.browsers:
        browser.start()
        browser.close()

    assert {"bookmark", "bookmarktitle"} <= web.kinds(KEEP)
    assert not list(web.home.home.rglob("*.corrupt")), "a browser found a file corrupt"


def each_option_takes_its_own_kinds_alone(bed):
    web = Web(bed, *BROWSERS)
    before = {option: web.kinds(option) for option in (HISTORY, CACHE, COOKIES)}

    web.clean(OPTIONS[CACHE])
    assert not web.hits(CACHE), web.hits(CACHE)
    assert {"cookiename", "localstorage", "indexeddb"} <= web.kinds(COOKIES)

    web.clean(OPTIONS[COOKIES])
    # What a tab has stored is in the session, too, which is history.
    left = [hit for hit in web.hits(COOKIES) if "session" not in hit.lower()]
    assert not left, left
    assert {"address", "title", "download"} <= web.kinds(HISTORY), before


def an_open_browser_is_left_whole(bed):
    web = Web(bed, Chromium)
    folder = web.browsers[0].folder
    holder = sqlite3.connect(folder / "Favicons")  # as a browser has it open
    before = listing(folder)

    web.clean(*OPTIONS.values())

    assert listing(folder) == before
    holder.close()


def _every_database_is_sound(home):
    for path in home.config.rglob("*"):
        if path.is_file() and not path.is_symlink():
            with open(path, "rb") as file:
                head = file.read(16)
            if sqlite_store.is_store(head):
                with sqlite3.connect(f"file:{path}?mode=ro", uri=True) as database:
                    answer = database.execute("PRAGMA integrity_check").fetchone()
                assert answer == ("ok",), f"{path}: {answer}"


checks.run(the_glass_finds_what_each_browser_keeps,
           with_the_four_options_nothing_is_left_and_bookmarks_stay,
           after_a_kill_nothing_is_left_either,
           the_browsers_start_again_on_what_is_left,
           each_option_takes_its_own_kinds_alone,
           an_open_browser_is_left_whole)
