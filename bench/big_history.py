"""Homes with a browser whose user has visited half a million pages, in the browsers' own schemas."""

import contextlib
import json
import pathlib
import random
import re
import shutil
import sqlite3
import string

SCHEMAS = pathlib.Path(__file__).resolve().parents[1] / "tests" / "browsers" / "schemas"
HOSTS = 5_000
PAGES = 200_000
VISITS = 500_000
PAGES_TO_A_BOOKMARK = 1_000
ADDRESS = re.compile(rb"[a-z]{9}\.example/[a-z]{12}")


class BigHistory:
    """Made once; each turn gets a copy of its own."""

    def __init__(self, folder, fill):
        self._folder = folder
        self._random = random.Random(20261121)  # the same history every time
        self._template = folder / "template"
        self.hosts = [f"{self._word(9)}.example" for _ in range(HOSTS)]
        self.pages = [f"https://{self.hosts[page % HOSTS]}/{self._word(12)}/{self._word(20)}"
                      for page in range(PAGES)]
        self.visits = [self._random.randrange(PAGES) + 1 for _ in range(VISITS)]
        self.icon = self._random.randbytes(1500)
        fill(self, self._template)

    def make(self):
        home = self._folder / "home"
        shutil.copytree(self._template, home)
        return home

    def left_in(self, home):
        """How many times an address, or the beginning of one, stands in any file; bookmarks stay,
        and do not count."""
        kept = {ADDRESS.search(page.encode()).group()
                for number, page in enumerate(self.pages) if self.is_bookmarked(number)}
        return sum(address not in kept for path in home.rglob("*") if path.is_file()
                   for address in ADDRESS.findall(path.read_bytes()))

    def refuse_harm(self, home):
        """Throws where a database is not sound, or a bookmark or an icon of one is not there."""
        wanted = PAGES // PAGES_TO_A_BOOKMARK
        for path in home.rglob("*"):
            if path.is_file() and path.read_bytes()[:6] == b"SQLite":
                with contextlib.closing(sqlite3.connect(path)) as opened:
                    said = opened.execute("PRAGMA integrity_check").fetchall()
                    broken = opened.execute("PRAGMA foreign_key_check").fetchall()
                    icons = [opened.execute(f"SELECT count(*) FROM {table}").fetchone()[0]
                             for table in ("moz_pages_w_icons", "icon_mapping")
                             if opened.execute("SELECT 1 FROM sqlite_master WHERE name = ?",
                                               [table]).fetchone()]
                if said != [("ok",)] or broken or any(count != wanted for count in icons):
                    raise SystemExit(f"{path}: {said}, {broken}, {icons} of {wanted} icons")

    def end(self, home):
        shutil.rmtree(home)

    def is_bookmarked(self, page):
        return page % PAGES_TO_A_BOOKMARK == 0

    def _word(self, length):
        return "".join(self._random.choices(string.ascii_lowercase, k=length))


def database(path, schema, tables, page_size=4096):
    """Rows by table, each a pair of its columns and its rows."""
    path.parent.mkdir(parents=True, exist_ok=True)
    connection = sqlite3.connect(path)
    connection.execute(f"PRAGMA page_size = {page_size}")
    connection.executescript(f"BEGIN; {(SCHEMAS / schema).read_text('utf-8')} COMMIT;")
    for table, (columns, rows) in tables.items():
        marks = ", ".join("?" * len(columns.split(",")))
        connection.executemany(f"INSERT INTO {table} ({columns}) VALUES ({marks})", rows)
    connection.commit()
    connection.close()


def firefox(history, home):
    root = home / ".mozilla" / "firefox"
    profile = root / "abcd.default"
    database(profile / "places.sqlite", "firefox-places.sql", {
        "moz_origins": ("id, prefix, host, frecency",
                        ((number + 1, "https://", host, 10)
                         for number, host in enumerate(history.hosts))),
        "moz_places": ("id, url, title, visit_count, frecency, last_visit_date, guid, foreign_count, "
                       "url_hash, origin_id",
                       ((page + 1, url, url[-20:], 3, 100, page, f"guid{page:08}",
                         int(history.is_bookmarked(page)), hash(url) % 2**47, page % HOSTS + 1)
                        for page, url in enumerate(history.pages))),
        "moz_bookmarks": ("id, type, fk, parent, position, title, guid",
                          ((page + 1000, 1, page + 1, 5, page, f"bookmark {page}", f"mark{page:08}")
                           for page in range(PAGES) if history.is_bookmarked(page))),
        "moz_historyvisits": ("id, from_visit, place_id, visit_date, visit_type",
                              ((number + 1, number, page, number * 1000, 1)
                               for number, page in enumerate(history.visits))),
        "moz_inputhistory": ("place_id, input, use_count",
                             ((page + 1, f"in{page}", 1) for page in range(0, PAGES, 10))),
    }, page_size=32768)
    database(profile / "favicons.sqlite", "firefox-favicons.sql", {
        "moz_icons": ("id, icon_url, fixed_icon_url_hash, root, data",
                      ((number + 1, f"https://{host}/favicon.ico", number, 1, history.icon)
                       for number, host in enumerate(history.hosts))),
        "moz_pages_w_icons": ("id, page_url, page_url_hash",
                              ((page + 1, url, page) for page, url in enumerate(history.pages))),
        "moz_icons_to_pages": ("page_id, icon_id",
                               ((page + 1, page % HOSTS + 1) for page in range(PAGES))),
    }, page_size=32768)
    (profile / "prefs.js").write_text("", "utf-8")
    (root / "profiles.ini").write_text(
        "[Profile0]\nName=big\nIsRelative=1\nPath=abcd.default\nDefault=1\n", "utf-8")


def chromium(history, home):
    profile = home / ".config" / "chromium" / "Default"
    database(profile / "History", "chromium-history.sql", {
        "meta": ("key, value", [("version", "70")]),
        "urls": ("id, url, title, visit_count, last_visit_time",
                 ((page + 1, url, url[-20:], 3, page) for page, url in enumerate(history.pages))),
        "visits": ("id, url, visit_time, from_visit",
                   ((number + 1, page, number * 1000, number)
                    for number, page in enumerate(history.visits))),
    })
    database(profile / "Favicons", "chromium-favicons.sql", {
        "meta": ("key, value", [("version", "8")]),
        "favicons": ("id, url", ((number + 1, f"https://{host}/favicon.ico")
                                 for number, host in enumerate(history.hosts))),
        "favicon_bitmaps": ("id, icon_id, image_data",
                            ((number + 1, number + 1, history.icon) for number in range(HOSTS))),
        "icon_mapping": ("id, page_url, icon_id",
                         ((page + 1, url, page % HOSTS + 1)
                          for page, url in enumerate(history.pages))),
    })
    bookmarks = [{"type": "url", "name": f"bookmark {page}", "url": url}
                 for page, url in enumerate(history.pages) if history.is_bookmarked(page)]
    (profile / "Bookmarks").write_text(
        json.dumps({"roots": {"other": {"children": bookmarks, "type": "folder"}}}), "utf-8")
    (profile / "Preferences").write_text("{}", "utf-8")
    (profile.parent / "Local State").write_text(
        json.dumps({"profile": {"info_cache": {"Default": {"name": "big"}}}}), "utf-8")
