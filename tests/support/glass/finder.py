"""Finds every place in a folder where a token lies: in names, links, attributes and contents,
written in any way of `views`, wrapped in any way of `packed`, `leveldb` and `sqlite_store`."""

import concurrent.futures
import contextlib
import dataclasses
import hashlib
import os
import re

from glass import digests, leveldb, packed, sqlite_store
from glass.views import View, views_of

DEEPEST = 5  # wrappings in one another
MOST_UNFOLDED = 512 << 20  # bytes of all that one file unfolds to
LARGEST = 1 << 30  # bytes of a file

_VISITED_LINKS = b"VLnk"


@dataclasses.dataclass(frozen=True, order=True)
class Hit:
    kind: str
    token: str
    file: str    # relative to the folder that was searched
    within: str  # from the outside in, as in "moz_places.url > snappy"
    view: str    # how it was written there


@dataclasses.dataclass
class Found:
    hits: list
    not_read: list  # what could not be searched, with the reason; a test should demand none

    def of(self, **wanted):
        return [hit for hit in self.hits
                if all(getattr(hit, name) == value for name, value in wanted.items())]


class Glass:
    """Looks for the tokens of a manifest. `without` names ways that are left out: to show that a
    test of them can fail."""

    def __init__(self, manifest, without=()):
        self._views = [view for view in views_of(manifest.tokens) if view.name not in without]
        self._unpackers = [way for way in packed.EVERYWHERE if way.__name__ not in without]
        self._without = set(without)
        known = {address: manifest.tokens_in(address) for address in manifest.addresses}
        self._addresses = {address: tokens[0] for address, tokens in known.items() if tokens}
        numbers = {digests.firefox_address(address): token
                   for address, token in self._addresses.items()}
        self._numbers = {} if "url_hash" in without else numbers
        # In a row, a number of 48 bits takes its last six bytes at least.
        self._add_view("url_hash", {(number & (1 << 48) - 1).to_bytes(6, "big"): token
                                    for number, token in self._numbers.items()})
        self._add_view("host digest",
                       {digests.transport_host(address): token
                        for address, token in self._addresses.items()
                        if token.text in address.split("/")[2]})

    def search(self, folder, workers=os.cpu_count()):
        """All hits in the folder, and what could not be read. Follows no link. What a browser that
        is at work takes away meanwhile is not there."""
        hits, sizes, not_read = set(), {}, []
        for path in _walk(folder, not_read):
            name = os.path.relpath(path, folder)
            with contextlib.suppress(FileNotFoundError):
                hits |= self._around(path, name)
                if not os.path.islink(path) and os.path.isfile(path):
                    sizes[path, name] = os.lstat(path).st_size
        # The largest first, so that none is left over for the end.
        files = sorted(sizes, key=lambda file: -sizes[file])
        if workers == 1 or len(files) < 20:
            results = [self._read(file) for file in files]
        else:
            with concurrent.futures.ProcessPoolExecutor(workers) as pool:
                results = list(pool.map(self._read, files, chunksize=8))
        for more, fault in results:
            hits |= more
            not_read += fault
        return Found(sorted(hits), sorted(not_read))

    def _add_view(self, name, meanings):
        if meanings and name not in self._without:
            self._views.append(View(name, meanings, in_files=True))

    def _around(self, path, name):
        """Hits in what a file is called, where a link leads, and its attributes."""
        hits = set(self._in_bytes(os.fsencode(os.path.basename(name)), name, "name"))
        if os.path.islink(path):
            hits.update(self._in_bytes(os.fsencode(os.readlink(path)), name, "target of the link"))
        for attribute in os.listxattr(path, follow_symlinks=False):
            value = os.getxattr(path, attribute, follow_symlinks=False)
            hits.update(self._in_bytes(value, name, f"attribute {attribute}"))
        return {hit for hit in hits if hit.within.split(" ")[0] not in self._without}

    def _in_bytes(self, data, name, within, store=None):
        for view in self._views:
            if view.in_files and store is None:
                continue
            for offset, token in view.find(data):
                place = within
                if store is not None and (page := sqlite_store.place_in(store, offset)):
                    place = f"{within} > {page}" if within else page
                yield Hit(token.kind, token.text, name, place, view.name)

    def _read(self, file):
        path, name = file
        try:
            if os.path.getsize(path) > LARGEST:
                return set(), [f"{name}: larger than {LARGEST} bytes"]
            with open(path, "rb") as opened:
                data = opened.read()
            look = _Look(self, name)
            look.into_file(path, data)
            return look.hits, look.not_read
        except FileNotFoundError:
            return set(), []
        except OSError as error:
            return set(), [f"{name}: {error.strerror}"]


class _Look:
    """One file's search."""

    def __init__(self, glass, name):
        self._glass = glass
        self._name = name
        self._left = MOST_UNFOLDED
        self.hits = set()
        self.not_read = []

    def into_file(self, path, data):
        without = self._glass._without
        self.hits.update(self._glass._in_bytes(data, self._name, "", store=data))
        if sqlite_store.is_store(data) and "sqlite" not in without:
            self._into_store(path)
        if data.startswith(_VISITED_LINKS) and "visited links" not in without:
            self._into_visited_links(data)
        if "leveldb logs" not in without:
            for way, inner in leveldb.logs(data, os.path.basename(self._name)):
                self._into(inner, (way,), value=True)
        self._unpack(data, ())

    def _into(self, data, ways, value=False):
        """What has been unwrapped. `value`: a value of a database, which may be packed whole."""
        self._left -= len(data)
        if self._left < 0:
            self.not_read.append(f"{self._name}: unfolds to more than {MOST_UNFOLDED} bytes")
        elif data:
            self.hits.update(self._glass._in_bytes(data, self._name, " > ".join(ways)))
            self._unpack(data, ways, value)

    def _unpack(self, data, ways, value=False):
        if len(ways) >= DEEPEST or self._left < 0:
            return
        for unpacker in self._glass._unpackers:
            for way, inner in unpacker(data):
                self._into(inner, (*ways, way))
        if value and "snappy" not in self._glass._without:
            for way, inner in packed.snappy_values(data):
                self._into(inner, (*ways, way))
        if "leveldb tables" not in self._glass._without:
            for way, inner in leveldb.tables(data):
                self._into(inner, (*ways, way), value=True)

    def _into_store(self, path):
        for column, cells in sqlite_store.columns(path):
            texts = [cell for cell in cells if isinstance(cell, bytes)]
            # In one piece, as many small searches are slow.
            self.hits.update(self._glass._in_bytes(b"\0\xff\0".join(texts), self._name, column))
            for cell in cells:
                if isinstance(cell, int) and (token := self._glass._numbers.get(cell)):
                    self.hits.add(Hit(token.kind, token.text, self._name, column, "url_hash"))
                elif isinstance(cell, bytes) and _may_be_packed(cell):
                    self._unpack(cell, (column,), value=True)

    def _into_visited_links(self, data):
        """Mark, version, length, number of links: four bytes each; salt: eight; links of eight."""
        salt = data[16:24]
        seen = {data[at:at + 8] for at in range(24, len(data), 8)}
        for address, token in self._glass._addresses.items():
            if digests.chromium_address(salt, address) in seen:
                self.hits.add(Hit(token.kind, token.text, self._name, "", "visited link"))


_PLAIN = re.compile(rb"[\t\r\n -~]*")


def _may_be_packed(cell):
    """Plain text is not, unless it holds base64 of something that is."""
    return len(cell) > 16 and (len(cell) > 64 or not _PLAIN.fullmatch(cell))


def _walk(folder, not_read):
    def refused(error):
        if not isinstance(error, FileNotFoundError):
            not_read.append(f"{error.filename}: {error.strerror}")

    for top, folders, files in os.walk(folder, onerror=refused):
        for name in folders + files:
            yield os.path.join(top, name)


def listing(folder):
    """What is in a folder, by relative path: kind, permissions, and of files a digest, of links
    the target. Two listings that are equal mean that nothing was touched; times do not count."""
    result = {}
    for path in _walk(folder, []):
        status = os.lstat(path)
        if os.path.islink(path):
            content = os.readlink(path)
        elif os.path.isfile(path):
            with open(path, "rb") as file:
                content = hashlib.file_digest(file, "sha256").hexdigest()
        else:
            content = ""
        result[os.path.relpath(path, folder)] = (oct(status.st_mode), content)
    return result
