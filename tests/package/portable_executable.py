"""Reads what a Windows program says of itself: its heads, and the resources that travel in it.

    MZ | ... 3C: place of "PE"
    PE 0 0 | machine 2 | sections 2 | time 4 | symbols 8 | size of the optional head 2 | flags 2
    optional head: 70: for each of 16 tables its place in memory 4 and its size 4
    sections, 40 bytes each: name 8 | size in memory 4 | place 4 | size 4 | place in the file 4 | ...

All numbers have the low byte first. Places in memory count from the program's start.
"""

import struct

RESOURCES, DELAYED_IMPORTS = 2, 13
# Kinds of resources.
ICON, ICON_GROUP, VERSION = 3, 14, 16


class Program:
    def __init__(self, content):
        self._content = content
        head = self._number("I", 0x3C)
        if content[:2] != b"MZ" or content[head:head + 4] != b"PE\0\0":
            raise ValueError("no Windows program")
        self._optional_head = head + 24
        self.time = self._number("I", head + 8)
        sections = self._optional_head + self._number("H", head + 20)
        self._sections = [struct.unpack_from("<IIII", content, sections + 40 * at + 8)
                          for at in range(self._number("H", head + 6))]

    def table(self, number):
        """Place in memory and size; both 0 where there is none."""
        return struct.unpack_from("<II", self._content, self._optional_head + 0x70 + 8 * number)

    def resources(self):
        """The content of each, by its kind and its name, as numbers or texts."""
        return {path[:2]: content for path, content in self._below(0, ())}

    def _below(self, place, path):
        """A folder of resources:

            flags 4 | time 4 | version 4 | named entries 2 | numbered entries 2
            entries: name 4, a text's place if the highest bit is set | place 4, the same for a folder
        """
        start = self._in_file(self.table(RESOURCES)[0])
        named, numbered = struct.unpack_from("<HH", self._content, start + place + 12)
        for at in range(named + numbered):
            name, below = struct.unpack_from("<II", self._content, start + place + 16 + 8 * at)
            longer = path + (self._text(start + (name & 0x7FFFFFFF)) if name >> 31 else name,)
            if below >> 31:
                yield from self._below(below & 0x7FFFFFFF, longer)
            else:
                data, size = struct.unpack_from("<II", self._content, start + below)
                data = self._in_file(data)
                yield longer, self._content[data:data + size]

    def _text(self, place):
        length = self._number("H", place)
        return self._content[place + 2:place + 2 + 2 * length].decode("utf-16-le")

    def _in_file(self, place):
        for size, start, stored, at in self._sections:
            if start <= place < start + max(size, stored):
                return at + place - start
        raise ValueError(f"{place:#x} is in no section")

    def _number(self, form, place):
        return struct.unpack_from("<" + form, self._content, place)[0]


def icon_sizes(resources, name):
    """The widths of an icon's pictures, as the group says and as each picture itself does.

        reserved 2 | kind 2 | count 2
        for each: width 1, 0 for 256 | height 1 | ... 6 | size 4 | number of the picture 2
    """
    group = resources[ICON_GROUP, name]
    for at in range(struct.unpack_from("<H", group, 4)[0]):
        width, number = struct.unpack_from("<B11xH", group, 6 + 14 * at)
        picture = resources[ICON, number]
        if picture[:8] != b"\x89PNG\r\n\x1a\n":
            raise ValueError(f"picture {number} is no PNG")
        yield width or 256, struct.unpack_from(">I", picture, 16)[0]


def version_numbers(resources):
    """Of the file and of the product, two numbers each, behind the mark of the fixed part."""
    record = resources[VERSION, 1]
    fixed = record.index(struct.pack("<I", 0xFEEF04BD))
    minor_file, major_file, minor_product, major_product = struct.unpack_from("<HH4xHH", record,
                                                                              fixed + 8)
    return (major_file, minor_file), (major_product, minor_product)


def version_text(resources, name):
    """A text follows its name at the next place that 4 divides; a zero ends both."""
    record = resources[VERSION, 1]
    key = f"{name}\0".encode("utf-16-le")
    start = (record.index(key) + len(key) + 3) // 4 * 4
    return record[start:].decode("utf-16-le").split("\0", 1)[0]
