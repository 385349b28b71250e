"""Unpacking what may lie packed in any stretch of bytes. Each function yields pairs: how the bytes
were wrapped, and what was in it. None trusts its input; what does not unpack yields nothing.
"""

import base64
import io
import re
import struct
import zipfile
import zlib

import brotli
import lz4.block
import lz4.frame
import snappy
import zstandard

MOST = 64 << 20  # bytes that one packing may unfold to
_BROTLI_PIECE = 1024  # bytes
_MOST_PLACES = 2000  # of one kind in one stretch

_GZIP = re.compile(rb"\x1f\x8b\x08[\x00-\x1f]")
_ZSTD = re.compile(rb"\x28\xb5\x2f\xfd")
_SNAPPY_STREAM = re.compile(rb"\xff\x06\x00\x00sNaPpY")
_MOZLZ4 = re.compile(rb"mozLz40\x00")
_LZ4_FRAME = re.compile(rb"\x04\x22\x4d\x18")
# How Chromium begins a value of its databases that it has packed.
_V8_SNAPPY = re.compile(rb"\xff\x11\x02")
_PNG = re.compile(rb"\x89PNG\r\n\x1a\n")
_BASE64_RUN = re.compile(rb"[A-Za-z0-9+/_-]+")
_PACKED_MAGIC = (b"\x89PNG", b"\x1f\x8b\x08", b"\x28\xb5\x2f\xfd", b"\xff\x06\x00\x00sNaPpY",
                 b"mozLz40\0", b"PK\x03\x04", b"SQLite format 3\0")
# The letters that each of these begins with, in the base64 of texts and in that of addresses.
_BASE64_HEADS = sorted({
    head.translate(letters) for magic in _PACKED_MAGIC
    for head in [base64.b64encode(magic)[:len(magic) * 4 // 3]]
    for letters in (bytes(range(256)), bytes.maketrans(b"+/", b"-_"))})


def gzips(data):
    for place in _places(_GZIP, data):
        yield "gzip", _inflated(data[place:], 31)


def deflates(data):
    for place in _bodies(data):
        yield "deflate", _inflated(data[place:], 15) or _inflated(data[place:], -15)


def brotlis(data):
    for place in _bodies(data):
        yield "brotli", _unbrotlied(data[place:place + MOST])


def _unbrotlied(data):
    """Up to a fault or the end, and nothing tells where that is: the library refuses whole the piece
    in which it lies. So that one is handed to it byte by byte."""
    unpacker, parts = brotli.Decompressor(), []
    for start in range(0, len(data), _BROTLI_PIECE):
        try:
            parts.append(unpacker.process(data[start:start + _BROTLI_PIECE]))
        except brotli.error:
            return _unbrotlied_by_bytes(data, start)
        if unpacker.is_finished():
            break
    return b"".join(parts)


def _unbrotlied_by_bytes(data, start):
    unpacker, parts = brotli.Decompressor(), []
    for at in range(0, start, _BROTLI_PIECE):
        parts.append(unpacker.process(data[at:at + _BROTLI_PIECE]))
    for at in range(start, min(start + _BROTLI_PIECE, len(data))):
        try:
            parts.append(unpacker.process(data[at:at + 1]))
        except brotli.error:
            break
        if unpacker.is_finished():
            break
    return b"".join(parts)


def zstds(data):
    for place in _places(_ZSTD, data):
        reader = zstandard.ZstdDecompressor().stream_reader(io.BytesIO(data[place:]))
        yield "zstd", _read(reader, zstandard.ZstdError)


def snappy_streams(data):
    """Chunks: kind 1 | length 3, the low one first | of kinds 0 and 1: sum 4 | packed, or as it is.
    Read here, as the library's own reader of streams fails on any."""
    for place in _places(_SNAPPY_STREAM, data):
        parts, at = [], place
        while at + 4 <= len(data):
            end = at + 4 + int.from_bytes(data[at + 1:at + 4], "little")
            if data[at] == 0:
                parts.append(unsnapped(data[at + 8:end]))
            elif data[at] == 1:
                parts.append(data[at + 8:end])
            elif data[at] < 0x80:
                break
            at = end
        yield "snappy stream", b"".join(parts)


def snappy_values(data):
    """Values of databases: packed whole, or behind a mark. For short stretches only."""
    if len(data) <= MOST:
        for place in [0, *(match.end() for match in _V8_SNAPPY.finditer(data[:64]))]:
            yield "snappy", unsnapped(data[place:])


def unsnapped(data):
    """Empty where the bytes are not packed by snappy, or claim to unfold beyond measure."""
    claimed, shift = 0, 0
    for letter in data[:5]:
        claimed |= (letter & 0x7F) << shift
        shift += 7
        if letter < 0x80:
            break
    # Each three bytes unfold to 64 at the most.
    if not 8 <= claimed <= min(MOST, 32 * len(data)):
        return b""
    try:
        return snappy.uncompress(data)
    except Exception:  # as above
        return b""


def lz4s(data):
    for place in _places(_MOZLZ4, data):
        # Mark, length of what it unfolds to in four bytes, one block.
        try:
            yield "mozlz4", lz4.block.decompress(data[place + 8:])
        except (lz4.block.LZ4BlockError, ValueError, MemoryError):
            pass
    for place in _places(_LZ4_FRAME, data):
        yield "lz4", _read(io.BytesIO(_lz4_frame(data[place:])), RuntimeError)


def zips(data):
    if b"PK\x05\x06" in data[-70000:]:
        try:
            with zipfile.ZipFile(io.BytesIO(data)) as archive:
                for entry in archive.infolist():
                    if entry.file_size <= MOST:
                        yield f"zip {entry.filename}", archive.read(entry)
        except (zipfile.BadZipFile, zlib.error, RuntimeError, NotImplementedError, OSError,
                ValueError):
            pass


def pictures(data):
    """The dots of PNG pictures without their see-through part: browsers pack icons anew."""
    for place in _places(_PNG, data):
        packed, at, size = [], place + 8, None
        # A chunk: length of four bytes, kind of four, the rest, a sum of four.
        while at + 12 <= len(data):
            length, kind = struct.unpack_from(">I4s", data, at)
            body = data[at + 8:at + 8 + length]
            at += 12 + length
            if kind == b"IHDR" and len(body) == 13:
                size = struct.unpack(">IIBB", body[:10])
            elif kind == b"IDAT":
                packed.append(body)
            elif kind == b"IEND":
                break
        if size and size[2] == 8 and size[3] in (2, 6) and size[0] * size[1] <= 1 << 20:
            yield "dots of PNG", _dots(_inflated(b"".join(packed), 15), size[0], size[3])


def base64_runs(data):
    """Only where something packed begins; plain texts are found without it."""
    for head in _BASE64_HEADS:
        at = data.find(head)
        while at >= 0:
            run = _BASE64_RUN.match(data, at).group().translate(bytes.maketrans(b"-_", b"+/"))
            if len(run) >= 48:
                run = run[:len(run) - (len(run) % 4 == 1)]
                yield "base64", base64.b64decode(run + b"=" * (-len(run) % 4))
            at = data.find(head, at + max(len(run), 1))


EVERYWHERE = (gzips, deflates, brotlis, zstds, snappy_streams, lz4s, zips, pictures, base64_runs)


def _places(mark, data):
    for number, match in enumerate(mark.finditer(data)):
        if number == _MOST_PLACES:
            return
        yield match.start()


def _bodies(data):
    """Where the body of an answer may begin, that tells by nothing how it is packed: at the
    beginning, or behind the head and key of an entry of Chromium's cache.

        30 5C 72 A7 1B 6D FB FC | version, key's length, key's sum, 0: 4 bytes each | key | body
    """
    yield 0
    if data.startswith(bytes.fromhex("305c72a71b6dfbfc")) and len(data) > 24:
        yield 24 + int.from_bytes(data[12:16], "little")


def _inflated(data, bits):
    unpacker, parts = zlib.decompressobj(bits), []
    try:
        for start in range(0, len(data), 4096):
            parts.append(unpacker.decompress(data[start:start + 4096], MOST))
            if unpacker.eof:
                break
    except zlib.error:
        pass
    return b"".join(parts)


def _read(reader, fault):
    try:
        return reader.read(MOST)
    except fault:
        return b""


def _lz4_frame(data):
    try:
        return lz4.frame.LZ4FrameDecompressor().decompress(data, max_length=MOST)
    except RuntimeError:
        return b""


def _dots(data, width, kind):
    """Undoes what a PNG does to each line of dots before it packs them."""
    wide = {2: 3, 6: 4}[kind]
    length, lines, above = width * wide, [], bytes(width * wide)
    for start in range(0, len(data) - length, length + 1):
        way, line = data[start], bytearray(data[start + 1:start + 1 + length])
        for i in range(length):
            left, up = line[i - wide] if i >= wide else 0, above[i]
            corner = above[i - wide] if i >= wide else 0
            line[i] = (line[i] + _guess(way, left, up, corner)) & 0xFF
        lines.append(bytes(line))
        above = lines[-1]
    dots = b"".join(lines)
    if wide == 4:
        return bytes(value for i, value in enumerate(dots) if i % 4 != 3)
    return dots


def _guess(way, left, up, corner):
    if way == 4:
        near = left + up - corner
        return min((left, up, corner), key=lambda value: abs(near - value))
    return (0, left, up, (left + up) // 2)[way] if way < 4 else 0
