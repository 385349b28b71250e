"""Writes a token in each of the ways that the finder claims to read, with nothing but that way to find
it by: packers that copy what they cannot pack would leave it in plain sight."""

import base64
import contextlib
import gzip
import io
import os
import sqlite3
import struct
import zipfile
import zlib

import brotli
import lz4.block
import lz4.frame
import snappy
import zstandard

from glass import digests, picture, tokens, views

PAGE = 4096
_TABLE_MARK = bytes.fromhex("57fb808b247547db")
_STRETCH = 32768


def in_pieces(text):
    """The text, which a packer can take together from pieces that came before it. The end of what
    is packed is never taken from anywhere."""
    pieces = (text[at:at + 6] for at in range(0, len(text) - 4, 3))
    return ("again " * 40 + "-".join(pieces) + "." + text + " again" * 40).encode()


def unseen(kind, pack):
    """A token and what packs it, so that it does not lie there in plain sight."""
    while True:
        token = tokens.new(kind, tokens.HISTORY)
        data = pack(token.text)
        if not any(list(view.find(data)) for view in views.views_of([token])):
            return token, data


PACKED = {
    "gzip": lambda text: gzip.compress(in_pieces(text)),
    "deflate": lambda text: zlib.compress(in_pieces(text)),
    "bare deflate": lambda text: zlib.compress(in_pieces(text))[2:-4],
    "brotli": lambda text: brotli.compress(in_pieces(text)),
    "zstd": lambda text: zstandard.ZstdCompressor().compress(in_pieces(text)),
    "mozlz4": lambda text: b"mozLz40\0" + lz4.block.compress(in_pieces(text)),
    "lz4": lambda text: lz4.frame.compress(in_pieces(text)),
    "snappy stream": lambda text: snappy_stream(in_pieces(text)),
    "zip": lambda text: zipped("entry", in_pieces(text)),
    "base64": lambda text: base64.b64encode(gzip.compress(in_pieces(text))),
    "picture": picture.png_of,
    "cached brotli": lambda text: cached(brotli.compress(in_pieces(text))),
}


def snappy_stream(content):
    """A chunk that names the format, and one that is packed, its sum left out."""
    chunk = b"sum." + snappy.compress(content)
    return b"\xff\x06\0\0sNaPpY\0" + len(chunk).to_bytes(3, "little") + chunk


def zipped(name, content):
    result = io.BytesIO()
    with zipfile.ZipFile(result, "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr(name, content)
    return result.getvalue()


def cached(body):
    """As Chromium keeps an answer: version, key's length, key's sum, 0: 4 bytes each; key; body."""
    key = b"http://host.test/"
    return bytes.fromhex("305c72a71b6dfbfc") + struct.pack("<IIII", 5, len(key), 0, 0) + key + body


def number(value):
    """Seven bits a byte, the low ones first."""
    result = bytearray()
    while value > 0x7F:
        result.append(value & 0x7F | 0x80)
        value >>= 7
    return bytes(result) + bytes([value])


def table(keys, value=b"", kind=0, pack=bytes):
    """A table of LevelDB, of one block: the format is drawn in `leveldb.py`."""
    data = pack(_block(keys, value))
    index = _block([b"z"], number(0) + number(len(data)))
    handles = number(0) + number(0) + number(len(data) + 5) + number(len(index))
    return (data + bytes([kind]) + b"sum." + index + b"\0sum." + handles.ljust(40, b"\0")
            + _TABLE_MARK)


def _block(keys, value):
    result, before = b"", b""
    for key in keys:
        shared = len(os.path.commonprefix([before, key]))
        result += number(shared) + number(len(key) - shared) + number(len(value)) + key[shared:] + value
        before = key
    return result + struct.pack("<II", 0, 1)


def log(batch):
    """A log of LevelDB: the batch in stretches, cut wherever one ends."""
    result, first = b"", True
    while batch or first:
        room = _STRETCH - len(result) % _STRETCH - 7
        piece, batch = batch[:room], batch[room:]
        kind = (1 if not batch else 2) if first else (4 if not batch else 3)
        result += b"sum." + struct.pack("<HB", len(piece), kind) + piece
        first = False
    return result


def write_batch(key, value):
    return bytes(8) + struct.pack("<I", 1) + b"\1" + number(len(key)) + key + number(len(value)) + value


def visited_links(address):
    salt = os.urandom(8)
    return (b"VLnk" + struct.pack("<III", 3, 1, 1) + salt
            + digests.chromium_address(salt, address))


@contextlib.contextmanager
def store(path, *pragmas):
    """A database of small pages that keeps what is deleted."""
    with contextlib.closing(sqlite3.connect(path, isolation_level=None)) as database:
        for pragma in (f"page_size={PAGE}", "secure_delete=OFF", *pragmas):
            database.execute(f"PRAGMA {pragma}")
        yield database


def long_gzip(text):
    """So long that no page and no stretch holds it, with the text at its end."""
    return gzip.compress(os.urandom(2 * _STRETCH) + in_pieces(text))
