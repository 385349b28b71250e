#!/usr/bin/python3
"""What the real browsers keep of a journey, and what of it is left when the window has cleaned."""

import contextlib
import functools
import json
import sqlite3

from support import checks

import documented
from desktop.waiting import wait_until
from glass import sqlite_store
from glass.browsers import Chromium, MovedFirefox, SecondChromium, UsualFirefox
from glass.finder import listing
from glass.server import Answer
from glass.tokens import CACHE, COOKIES, FORMS, HISTORY, KEEP, TYPED
from glass.travels import OPTIONS, Travels
from notices import Notices

ERASED = (HISTORY, CACHE, COOKIES, TYPED, FORMS)
KEPT = {"bookmark", "bookmarktitle", "bookmarkhost", "bookmarkicondots", "passwordhost",
        "extensionstorage", "extensiondatabase"}
BUSY = """<!doctype html><title>busy</title><script type=module>
for (let turn = 0; ; ++turn) {
  localStorage.turn = turn;
  document.cookie = 'turn=' + turn + '; Max-Age=604800';
  history.pushState({}, '', '?' + turn);
  await fetch('/turn/%s?' + turn);
  await new Promise(done => setTimeout(done, 100));  // or nobody else gets to do anything
}
</script>"""


@functools.cache
def travels(desktop, path):
    return Travels(desktop, path)


def web(bed, kind):
    return getattr(travels(bed.desktop, bed.path), kind)()


def the_glass_finds_what_each_browser_keeps(bed):
    before = web(bed, "closed")

    look = before.look()

    for browser in before.browsers:
        kinds = look.kinds(*ERASED, KEEP, browser=browser)
        wanted = {"address", "title", "cookiename", "localstorage", "localstoragelong", "indexeddb",
                  "image", "script", "packedbr", "packedgzip", "typed", "field", "download", "icon",
                  "icondots", "worker", "cacheapi", "opentab", "closedtab", *KEPT}
        assert wanted <= kinds, f"{browser.name} {browser.profile}: {wanted - kinds}"
    views = {hit.view for hit in look.found}
    assert {"plain", "utf-16", "backwards", "url_hash"} <= views, views


def with_the_four_options_nothing_is_left(bed):
    after = web(bed, "cleaned")

    _nothing_is_left(after)


def after_a_kill_nothing_is_left_either(bed):
    after = web(bed, "killed")
    before = after.look()
    for browser in after.browsers:
        assert "opentabtitle" in before.kinds(HISTORY, browser=browser)

    after.clean(*OPTIONS.values())

    _nothing_is_left(after)


def bookmarks_passwords_extensions_and_settings_stay(bed):
    before, after = web(bed, "closed"), web(bed, "cleaned")

    _all_is_kept(after)
    for was, browser in zip(before.browsers, after.browsers):
        assert _bookmarks(browser) == _bookmarks(was) != []
        assert _settings(browser) == _settings(was)


def what_is_not_documented_stays_to_the_byte(bed):
    before, after = web(bed, "closed"), web(bed, "cleaned")

    for was, browser in zip(before.browsers, after.browsers):
        old, new = listing(was.folder), listing(browser.folder)
        names = documented.patterns(browser.name, "Clear Browser Favorites")
        altered = [path for path in old.keys() | new.keys()
                   if old.get(path) != new.get(path) and not documented.covers(names, path)]
        # Of a folder its files tell.
        altered = [path for path in altered if not (was.folder / path).is_dir()]
        assert not altered, f"{browser.name} {browser.profile}: {sorted(altered)}"


def the_browsers_start_again_and_have_all_that_was_kept(bed):
    after = web(bed, "cleaned")
    server = travels(bed.desktop, bed.path).server

    for browser in after.browsers:
        server.forget(browser.extension.has_all)
        with in_the_end_killed(browser):
            browser.start()
            server.wait_for(browser.extension.has_all, 60)
            browser.close()

    _all_is_kept(after)
    assert not list(after.home.home.rglob("*.corrupt")), "a browser found a file corrupt"


def each_option_takes_its_own_kinds_alone(bed):
    one = web(bed, "closed")

    one.clean(OPTIONS[CACHE])
    look = one.look()
    assert not look.hits(CACHE), look.hits(CACHE)
    assert {"cookiename", "localstorage", "indexeddb"} <= look.kinds(COOKIES)

    one.clean(OPTIONS[COOKIES])
    look = one.look()
    # What a tab has stored is in the session, too, which is history.
    left = [hit for hit in look.hits(COOKIES) if "session" not in hit.lower()]
    assert not left, left
    assert {"address", "title", "download"} <= look.kinds(HISTORY)
    assert {"typed", "field"} <= look.kinds(TYPED, FORMS)


def open_browsers_go_on_and_are_told_of_once(bed):
    one = web(bed, "closed")
    server = travels(bed.desktop, bed.path).server
    browsers = [one.browser(UsualFirefox), one.browser(Chromium)]
    visits = [_visits(browser) for browser in browsers]

    with in_the_end_killed(*browsers), Notices() as notices:
        for browser in browsers:
            browser.start()
            browser.open(server.serve(f"{browser.name}.busy.test", "/", Answer(BUSY % browser.name)))
            _goes_on(server, browser)
        one.clean(*OPTIONS.values())
        wait_until(lambda: notices.shown, "a message is shown")
        for browser in browsers:
            _goes_on(server, browser)
            browser.go_back_to("typed")
            browser.close()
            browser.start()
            browser.close()

    [(title, text)] = notices.shown
    names = one.profile_names()
    assert title == "Zelvane", title
    assert [line.split(" is open.")[0] for line in text.splitlines()] == [
        names[UsualFirefox], names[Chromium], names[SecondChromium]], text
    for browser, before in zip(browsers, visits):
        assert before <= _visits(browser), before - _visits(browser)
    _every_database_is_sound(one.home)
    closed = one.browser(MovedFirefox)
    assert one.look().hits(*ERASED, browser=closed) == [], "a closed one was not cleaned"


def open_browsers_are_left_to_the_byte(bed):
    """They stand still for as long, so that nobody but the program could alter anything."""
    one = web(bed, "closed")
    browsers = [one.browser(MovedFirefox), one.browser(SecondChromium)]

    with in_the_end_killed(*browsers):
        for browser in browsers:
            browser.start()
            browser.freeze()
        before = [listing(browser.folder) for browser in browsers]
        one.clean(*OPTIONS.values())
        after = [listing(browser.folder) for browser in browsers]
        for browser in browsers:
            browser.thaw()
            browser.close()

    assert after == before


@contextlib.contextmanager
def in_the_end_killed(*browsers):
    """Those that are still there, so that they are not in the way of the next test."""
    try:
        yield
    finally:
        for browser in browsers:
            browser.kill()


def _goes_on(server, browser):
    turns = server.turns(browser.name)
    assert server.wait_until(lambda: server.turns(browser.name) > turns + 5, 120), (
        f"{browser.name} does not answer")


def _nothing_is_left(web):
    left = web.look().hits(*ERASED)
    assert left == [], "\n".join(left)
    _every_database_is_sound(web.home)


def _all_is_kept(web):
    look = web.look()
    for browser in web.browsers:
        kinds = look.kinds(KEEP, browser=browser)
        assert KEPT <= kinds, f"{browser.name} {browser.profile}: {KEPT - kinds}"


def _visits(browser):
    """The addresses that its history knows as visited."""
    store, column = {"firefox": ("places.sqlite", "moz_places.url"),
                     "chromium": ("History", "urls.url")}[browser.name]
    path = str(browser.folder / store)
    return {cell for name, cells in sqlite_store.columns(path) if name == column for cell in cells}


def _bookmarks(browser):
    if browser.name == "chromium":
        return json.loads((browser.folder / "Bookmarks").read_text("utf-8"))["roots"]
    with sqlite3.connect(f"file:{browser.folder}/places.sqlite?mode=ro", uri=True) as places:
        return places.execute(
            "SELECT b.id, b.type, b.parent, b.position, b.title, b.guid, p.url FROM moz_bookmarks b"
            " LEFT JOIN moz_places p ON p.id = b.fk ORDER BY b.id").fetchall()


def _settings(browser):
    """All of them but what sites were allowed, and what was suggested for typed addresses."""
    if browser.name == "firefox":
        return (browser.folder / "prefs.js").read_text("utf-8")
    settings = json.loads((browser.folder / "Preferences").read_text("utf-8"))
    settings["profile"]["content_settings"].pop("exceptions", None)
    settings.pop("zerosuggest", None)
    assert settings["webkit"]["webprefs"]["default_font_size"] == 21
    return settings


def _every_database_is_sound(home):
    for path in home.home.rglob("*"):
        if path.is_file() and not path.is_symlink():
            with open(path, "rb") as file:
                head = file.read(16)
            if sqlite_store.is_store(head):
                with sqlite3.connect(f"file:{path}?mode=ro", uri=True) as database:
                    answer = database.execute("PRAGMA integrity_check").fetchone()
                assert answer == ("ok",), f"{path}: {answer}"


checks.run(the_glass_finds_what_each_browser_keeps,
           with_the_four_options_nothing_is_left,
           after_a_kill_nothing_is_left_either,
           bookmarks_passwords_extensions_and_settings_stay,
           what_is_not_documented_stays_to_the_byte,
           the_browsers_start_again_and_have_all_that_was_kept,
           each_option_takes_its_own_kinds_alone,
           open_browsers_go_on_and_are_told_of_once,
           open_browsers_are_left_to_the_byte)
