#!/usr/bin/python3
"""The finder itself, tested: whatever it claims to read it finds, by that way and by no other."""

import base64
import os
import pathlib
import shutil
import sqlite3
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

import lines  # noqa: E402
import snappy  # noqa: E402

from glass import digests, finder, packed, planting, tokens, views  # noqa: E402
from glass.planting import in_pieces, unseen  # noqa: E402

WAYS_OF_WRITING = {
    "utf-16": lambda text: text.encode("utf-16-le"),
    "backwards": lambda text: text[::-1].encode(),
    "base64": lambda text: base64.b64encode(text.encode()),
    "base64+1": lambda text: base64.b64encode(b"a" + text.encode()),
    "base64+2": lambda text: base64.b64encode(b"ab" + text.encode()),
    "hex": lambda text: text.encode().hex().encode(),
    "HEX": lambda text: text.encode().hex().upper().encode(),
}


class Bed:
    """A folder in which things are planted, each with the ways that it takes to find it."""

    def __init__(self, folder):
        self.folder = folder
        self.manifest = tokens.Manifest()
        self.ways = {}  # by token: the names of all ways that are needed
        self.places = {}  # by token: file, and what `within` holds

    def plant(self, kind, data, *ways, file=None, within=""):
        """`data` makes the file's bytes from the token's text."""
        token, content = unseen(kind, data)
        file = file or kind.replace(" ", "-")
        (self.folder / file).write_bytes(content)
        return self.expect(token, file, within, *ways)

    def expect(self, token, file, within, *ways):
        self.manifest.tokens.append(token)
        self.ways[token] = set(ways)
        self.places[token] = (file, within)
        return token

    def add(self, kind):
        return tokens.new(kind, tokens.HISTORY)

    def found(self, *without):
        glass = finder.Glass(self.manifest, without=without)
        return glass.search(self.folder, workers=1)


def plant_plain(bed):
    token = bed.add("plain")
    (bed.folder / "plain").write_text(f"<p>{token.text}</p>")
    bed.expect(token, "plain", "", "plain")


def plant_ways_of_writing(bed):
    for way, write in WAYS_OF_WRITING.items():
        token = bed.add("coding")  # both of its pieces begin at the same place of three
        (bed.folder / way).write_bytes(b"\n" + write(token.text) + b"\n")
        bed.expect(token, way, "", way)


def plant_names(bed):
    for way, place in {"name": "name", "target": "target of the link"}.items():
        token = bed.add(way)
        (bed.folder / ("link" if way == "target" else token.text)).symlink_to(
            token.text if way == "target" else "nowhere")
        bed.expect(token, "link" if way == "target" else token.text, place, way, "plain")


def plant_packed(bed):
    unpackers = {
        "gzip": "gzips", "deflate": "deflates", "bare deflate": "deflates", "brotli": "brotlis",
        "zstd": "zstds", "mozlz4": "lz4s", "lz4": "lz4s", "snappy stream": "snappy_streams",
        "zip": "zips", "picture": "pictures", "cached brotli": "brotlis"}
    for kind, way in unpackers.items():
        # As in a cache, which puts what it knows of an answer behind it; these two are whole files.
        behind = b"" if kind in ("mozlz4", "zip") else b"GET 200 OK\r\n" * 9
        bed.plant(kind.replace(" ", ""), lambda text: planting.PACKED[kind](text) + behind, way,
                  "plain", within=kind.split(" ")[-1].replace("picture", "dots of PNG"))
    bed.plant("base64gzip", planting.PACKED["base64"], "base64_runs", "gzips", "plain",
              within="base64 > gzip")


def plant_leveldb(bed):
    def chain(text):
        return [text[:8].encode(), text[:18].encode(), text.encode()]
    bed.plant("keys", lambda text: planting.table(chain(text)), "leveldb tables", "plain",
              file="000001.ldb", within="leveldb key")
    bed.plant("zkeys", lambda text: planting.table(
        chain(text), kind=2, pack=planting.zstandard.ZstdCompressor().compress),
        "leveldb tables", "plain", file="000002.ldb", within="leveldb key")
    bed.plant("block", lambda text: planting.table([b"k"], in_pieces(text), 1, snappy.compress),
              "leveldb tables", "plain", file="000003.ldb", within="leveldb value")
    bed.plant("value", lambda text: planting.table(
        [b"k"], b"\xff\x11\x02" + snappy.compress(in_pieces(text))),
        "leveldb tables", "snappy", "plain", file="000004.ldb", within="leveldb value > snappy")
    bed.plant("logged", lambda text: planting.log(
        planting.write_batch(b"k", snappy.compress(in_pieces(text)))),
        "leveldb logs", "snappy", "plain", file="000005.log", within="leveldb log value > snappy")
    bed.plant("cut", lambda text: planting.log(planting.write_batch(b"k", planting.long_gzip(text))),
              "leveldb logs", "gzips", "plain", file="000006.log", within="leveldb log > gzip")


def plant_digests(bed):
    token = bed.add("visited")
    address = f"http://{token.text}.test/"
    bed.manifest.addresses.append(address)
    (bed.folder / "Visited Links").write_bytes(planting.visited_links(address))
    bed.expect(token, "Visited Links", "", "visited links")

    token = bed.add("hash")
    address = f"https://host.test/{token.text}"
    bed.manifest.addresses.append(address)
    with planting.store(bed.folder / "hashes") as store:
        store.execute("CREATE TABLE places (url_hash INTEGER)")
        store.execute("INSERT INTO places VALUES (?)", [digests.firefox_address(address)])
    bed.expect(token, "hashes", "places.url_hash", "url_hash")

    token = bed.add("host")
    address = f"https://{token.text}.test/"
    bed.manifest.addresses.append(address)
    (bed.folder / "TransportSecurity").write_bytes(digests.transport_host(address))
    bed.expect(token, "TransportSecurity", "", "host digest")


def plant_cells(bed):
    """In every column of every table, also one whose name has to be quoted and one without rows'
    numbers: long and packed, so that no page shows them."""
    with planting.store(bed.folder / "cells") as store:
        store.execute('CREATE TABLE "a ""quoted"" name" (one, two)')
        store.execute("CREATE TABLE bare (one PRIMARY KEY, two) WITHOUT ROWID")
        for table, insert in {'a "quoted" name': '"a ""quoted"" name"', "bare": "bare"}.items():
            cells = []
            for column in ("one", "two"):
                token, cell = unseen("cell", planting.long_gzip)
                cells.append(cell)
                bed.expect(token, "cells", f"{table}.{column} > gzip", "sqlite", "gzips", "plain")
            store.execute(f"INSERT INTO {insert} VALUES (?, ?)", cells)


def plant_freed_page(bed):
    token = bed.add("freed")
    with planting.store(bed.folder / "freed") as store:
        store.execute("CREATE TABLE a (text)")
        store.execute("INSERT INTO a VALUES (?)", ["x" * 3000 + token.text])
        store.execute("INSERT INTO a VALUES (?)", ["y" * 3000])
        store.execute("DELETE FROM a")
    bed.expect(token, "freed", "page ", "plain")


def plant_write_ahead_log(bed):
    """What a killed program leaves: two versions of a cell, of which the database knows the later."""
    token, cell = unseen("wal", planting.long_gzip)
    old = bed.add("oldframe")
    live = bed.folder.parent / "live"
    with planting.store(live, "journal_mode=WAL", "wal_autocheckpoint=0") as store:
        store.execute("CREATE TABLE a (text)")
        store.execute("INSERT INTO a VALUES (?)", [old.text])
        store.execute("UPDATE a SET text = ?", [cell])
        for ending in ("", "-wal"):
            (bed.folder / f"log{ending}").write_bytes(pathlib.Path(f"{live}{ending}").read_bytes())
    bed.expect(token, "log", "a.text > gzip", "sqlite", "gzips", "plain")
    bed.expect(old, "log-wal", "frame ", "plain")


def plant_database_before_its_log(bed):
    """A cell of the database itself that its log has deleted."""
    token, cell = unseen("under", planting.long_gzip)
    live = bed.folder.parent / "under"
    with planting.store(live, "journal_mode=WAL", "wal_autocheckpoint=0") as store:
        store.execute("CREATE TABLE a (text)")
        store.execute("INSERT INTO a VALUES (?)", [cell])
        store.execute("PRAGMA wal_checkpoint(TRUNCATE)")
        store.execute("DELETE FROM a")
        for ending in ("", "-wal"):
            (bed.folder / f"under{ending}").write_bytes(
                pathlib.Path(f"{live}{ending}").read_bytes())
    bed.expect(token, "under", "a.text > gzip", "sqlite", "gzips", "plain")


def plant_undo_journal(bed):
    """What a program killed in the middle of a change leaves."""
    token = bed.add("journal")
    live = bed.folder.parent / "undone"
    with planting.store(live, "journal_mode=PERSIST") as store:
        store.execute("CREATE TABLE a (text)")
        store.execute("INSERT INTO a VALUES (?)", ["x" * 3000 + token.text])
        store.execute("PRAGMA secure_delete=ON")
        store.execute("UPDATE a SET text = ''")
    for ending in ("", "-journal"):
        (bed.folder / f"undone{ending}").write_bytes(pathlib.Path(f"{live}{ending}").read_bytes())
    bed.expect(token, "undone-journal", "", "plain")


PLANTERS = (plant_plain, plant_ways_of_writing, plant_names, plant_packed, plant_leveldb,
            plant_digests, plant_cells, plant_freed_page, plant_write_ahead_log,
            plant_database_before_its_log, plant_undo_journal)
EVERY_WAY = sorted(set(views.ENCODINGS) | {way.__name__ for way in packed.EVERYWHERE} | {
    "name", "target", "leveldb tables", "leveldb logs", "snappy", "sqlite", "visited links",
    "url_hash", "host digest"})


class TheFinder(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        place = tempfile.TemporaryDirectory(prefix="planted-")
        cls.addClassCleanup(place.cleanup)
        folder = pathlib.Path(place.name) / "folder"
        folder.mkdir()
        cls.bed = Bed(folder)
        for plant in PLANTERS:
            plant(cls.bed)
        cls.all = cls.bed.found()

    def kinds_lost(self, without):
        left = {hit.token for hit in self.bed.found(without).hits}
        return sorted(f"{token.kind}: {self.bed.places[token]}"
                      for token in self.bed.manifest.tokens if token.text not in left)

    def test_everything_planted_is_found_in_its_place(self):
        missing = [f"{token.kind}: {file}, {within}"
                   for token, (file, within) in self.bed.places.items()
                   if not any(hit.file == file and within in hit.within
                              for hit in self.all.of(token=token.text))]

        self.assertEqual(missing, [])

    def test_everything_could_be_read(self):
        self.assertEqual(self.all.not_read, [])

    def test_a_folder_without_tokens_has_no_hit(self):
        others = tokens.Manifest([tokens.new("plain", tokens.HISTORY)], ["http://other.test/"])

        found = finder.Glass(others).search(self.bed.folder, workers=1)

        self.assertEqual(found.hits, [])

    def test_several_workers_find_the_same(self):
        found = finder.Glass(self.bed.manifest).search(self.bed.folder, workers=2)

        self.assertEqual(found.hits, self.all.hits)

    def test_half_a_token_is_enough(self):
        token = tokens.new("half", tokens.HISTORY)
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "start").write_text(token.start)
            (pathlib.Path(folder) / "core").write_text(token.core)

            found = finder.Glass(tokens.Manifest([token])).search(folder, workers=1)

        self.assertEqual({hit.file for hit in found.hits}, {"start", "core"})

    def test_searching_alters_nothing(self):
        before = finder.listing(self.bed.folder)

        self.bed.found()

        self.assertEqual(finder.listing(self.bed.folder), before)

    def test_an_attribute_of_a_file_is_searched(self):
        token = tokens.new("attribute", tokens.HISTORY)
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "file")
            pathlib.Path(path).touch()
            try:
                os.setxattr(path, "user.xdg.origin.url", token.text.encode())
            except OSError as error:
                print(f"skip - {self.id().split('.', 1)[1]}: {error.strerror}")
                self.skipTest("this volume keeps no attributes")

            found = finder.Glass(tokens.Manifest([token])).search(folder, workers=1)

        self.assertEqual({hit.within for hit in found.hits}, {"attribute user.xdg.origin.url"})

    def test_what_is_too_large_to_read_is_told(self):
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, "large"), "wb") as file:
                file.truncate(finder.LARGEST + 1)

            found = finder.Glass(self.bed.manifest).search(folder, workers=1)

        self.assertEqual(len(found.not_read), 1)

    def test_what_a_browser_takes_away_meanwhile_is_not_there(self):
        class WhileABrowserIsAtWork(finder.Glass):
            def _around(self, path, name):
                for other in {"one", "other", "folder"} - {name, name.split("/")[0]}:
                    shutil.rmtree(folder / other, ignore_errors=True)
                    (folder / other).unlink(missing_ok=True)
                return super()._around(path, name)

        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "folder").mkdir()
            for file in ("one", "other", "folder/third"):
                (folder / file).write_text("text", "utf-8")

            found = WhileABrowserIsAtWork(tokens.Manifest()).search(folder, workers=1)

            self.assertEqual(found.not_read, [])

    def test_a_damaged_database_is_searched_byte_by_byte(self):
        token = tokens.new("damaged", tokens.HISTORY)
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "store")
            with planting.store(path) as store:
                store.execute("CREATE TABLE a (text)")
                store.execute("INSERT INTO a VALUES (?)", [token.text])
            with open(path, "r+b") as file:
                file.seek(100)
                file.write(b"\xff" * 200)
            with self.assertRaises(sqlite3.DatabaseError):
                sqlite3.connect(path).execute("SELECT * FROM a").fetchall()

            found = finder.Glass(tokens.Manifest([token])).search(folder, workers=1)

        self.assertTrue(found.hits)


def _add_test_of(way):
    """Whoever takes one way out loses what takes that way, and nothing else: no way stands there
    without doing anything, and none does another's work."""
    def test(self):
        expected = sorted(f"{token.kind}: {self.bed.places[token]}"
                          for token, ways in self.bed.ways.items() if way in ways)

        self.assertTrue(expected)
        self.assertEqual(self.kinds_lost(way), expected)
    name = way.replace(" ", "_")
    setattr(TheFinder, f"test_without_{name}_its_own_are_lost_and_no_others", test)


for one_way in EVERY_WAY:
    _add_test_of(one_way)

if __name__ == "__main__":
    lines.main()
