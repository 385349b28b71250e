"""LevelDB's files, read without the library: it shows what is valid, and here what is deleted and
overwritten counts as well.

A table (*.ldb):
    block, kind, sum | ... | index block, kind, sum | handle, handle, padding: 40 | mark: 8
    kind: one byte, 0 plain, 1 snappy, 2 zstd; sum: four bytes; handle: offset and length, each a
    number of 7 bits a byte
Entries of a block; a key begins like the one before it:
    shared length | length of the rest | value's length | rest of the key | value
    The block ends with restart points, four bytes each, and their number.
A log (*.log, MANIFEST-*): stretches of 32 KiB, filled with
    sum: 4 | length: 2 | kind: 1 (whole, first, middle, last) | piece
"""

import re

import zstandard

from glass.packed import MOST, unsnapped

_MARK = bytes.fromhex("57fb808b247547db")
_LOG_NAME = re.compile(r"(?:\d+\.log|MANIFEST-\d+)$")
_STRETCH = 32768
_WHOLE, _FIRST, _MIDDLE, _LAST = 1, 2, 3, 4


def tables(data):
    """Yields, of each entry, its key and its value."""
    if not data.endswith(_MARK):
        return
    _, at = _handle(data, len(data) - 48)
    index_handle, _ = _handle(data, at)
    for _, value in _entries(_block(data, index_handle)):
        handle, _ = _handle(value, 0)
        for key, value in _entries(_block(data, handle)):
            yield "leveldb key", key
            yield "leveldb value", value


def logs(data, name):
    """Yields the batches of writes, joined again where they were cut, and the values in them."""
    if not _LOG_NAME.search(name):
        return
    pieces = []
    for kind, piece in _pieces(data):
        if kind in (_WHOLE, _FIRST):
            pieces = []
        pieces.append(piece)
        if kind in (_WHOLE, _LAST):
            batch = b"".join(pieces)
            yield "leveldb log", batch
            for value in _written(batch):
                yield "leveldb log value", value


def _pieces(data):
    for start in range(0, len(data), _STRETCH):
        at, end = start, min(start + _STRETCH, len(data))
        while at + 7 <= end:
            length, kind = int.from_bytes(data[at + 4:at + 6], "little"), data[at + 6]
            if not _WHOLE <= kind <= _LAST or at + 7 + length > end:
                break
            yield kind, data[at + 7:at + 7 + length]
            at += 7 + length


def _written(batch):
    """A batch: sequence 8, count 4, then of each write: 1 key value, or 0 key."""
    at = 12
    try:
        while at < len(batch):
            kind = batch[at]
            length, at = _number(batch, at + 1)
            at += length
            if kind == 1:
                length, at = _number(batch, at)
                yield batch[at:at + length]
                at += length
    except IndexError:
        return


def _block(data, handle):
    offset, length = handle
    block, kind = data[offset:offset + length], data[offset + length:offset + length + 1]
    if kind == b"\x01":
        return unsnapped(block)
    if kind == b"\x02":
        try:
            return zstandard.ZstdDecompressor().decompress(block, max_output_size=MOST)
        except zstandard.ZstdError:
            return b""
    return block


def _entries(block):
    end = len(block) - 4 - 4 * int.from_bytes(block[-4:], "little")
    at, key = 0, b""
    try:
        while at < end:
            shared, at = _number(block, at)
            rest, at = _number(block, at)
            length, at = _number(block, at)
            key = key[:shared] + block[at:at + rest]
            yield key, block[at + rest:at + rest + length]
            at += rest + length
    except IndexError:
        return


def _handle(data, at):
    try:
        offset, at = _number(data, at)
        length, at = _number(data, at)
    except IndexError:
        return (0, 0), at
    return (offset, length), at


def _number(data, at):
    value, shift = 0, 0
    while True:
        letter = data[at]
        at += 1
        value |= (letter & 0x7F) << shift
        if letter < 0x80:
            return value, at
        shift += 7
