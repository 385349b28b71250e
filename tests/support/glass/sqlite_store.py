"""SQLite's files: every cell of every table with the name of its column, and where in the file
bytes lie that no cell shows.

The bytes of the file itself are searched like any other's, so that freed pages, indexes, old
versions in the -wal and undone ones in the -journal count as well. Here is what those bytes cannot
show: a cell that lies in pieces on several pages, and what is packed in a cell.
"""

import contextlib
import os
import shutil
import sqlite3
import tempfile

MAGIC = b"SQLite format 3\0"
_WAL_MAGIC = (0x377F0682, 0x377F0683)


def is_store(head):
    return head.startswith(MAGIC)


def columns(path):
    """Yields, of each column, its name and its cells: bytes, numbers, None. Copies are opened, as
    opening would alter the files: one with what belongs to it, -wal and -journal, and where there is
    any, one without, which shows what these have deleted or would undo."""
    beside = [ending for ending in ("-wal", "-journal") if os.path.exists(path + ending)]
    for endings in (["", *beside], [""])[:1 + bool(beside)]:
        with tempfile.TemporaryDirectory(prefix="glass-") as folder:
            copy = os.path.join(folder, "store")
            for ending in endings:
                with contextlib.suppress(FileNotFoundError):
                    shutil.copyfile(path + ending, copy + ending)
            try:
                yield from _columns(copy)
            except sqlite3.Error as error:
                # Damaged, or not a store at all; its bytes are searched all the same.
                yield f"(unreadable: {error})", []


def place_in(data, offset):
    """Where in a store's file an offset lies."""
    if data.startswith(MAGIC):
        size = int.from_bytes(data[16:18], "big")
        return f"page {offset // (65536 if size == 1 else size) + 1}"
    if int.from_bytes(data[:4], "big") in _WAL_MAGIC and len(data) >= 32:
        frame = 24 + int.from_bytes(data[8:12], "big")
        return f"frame {(offset - 32) // frame + 1}"
    return ""


def _columns(path):
    with contextlib.closing(sqlite3.connect(path)) as store:
        store.text_factory = bytes
        store.execute("PRAGMA trusted_schema=OFF")
        schema = store.execute("SELECT type, name, sql FROM sqlite_master").fetchall()
        yield "sqlite_master.sql", [sql for _, _, sql in schema]
        for kind, name, _ in schema:
            if kind == b"table":
                yield from _table(store, name.decode("utf-8", "replace"))


def _table(store, name):
    quoted = '"' + name.replace('"', '""') + '"'
    try:
        cursor = store.execute(f"SELECT * FROM {quoted}")
        titles = [column[0] for column in cursor.description]
        rows = cursor.fetchall()
    except sqlite3.OperationalError as error:
        # A table of a kind that this library does not know; what it stores lies in others.
        yield f"{name} (unreadable: {error})", []
        return
    for title, cells in zip(titles, zip(*rows)):
        yield f"{name}.{title}", cells
