#!/usr/bin/python3
"""Packs a folder into a zip that is the same, byte for byte, whenever what is in the folder is.

    make_zip.py FOLDER ZIP

The zip holds the folder under its own name. Neither times nor owners nor rights get in.
"""

import os
import pathlib
import sys
import zipfile

# For a program of Windows, or one that behaves like it, to unpack.
MADE_ON_WINDOWS = 0
ORDINARY_FILE = 0x20


def entry(name):
    """With the first time that a zip can tell."""
    info = zipfile.ZipInfo(name)
    info.compress_type = zipfile.ZIP_DEFLATED
    info.create_system = MADE_ON_WINDOWS
    info.external_attr = ORDINARY_FILE
    return info


def main():
    folder, target = map(pathlib.Path, sys.argv[1:])
    unfinished = target.with_name(target.name + ".part")
    files = sorted(path for path in folder.rglob("*") if path.is_file())
    with zipfile.ZipFile(unfinished, "w") as packed:
        for file in files:
            name = file.relative_to(folder.parent).as_posix()
            packed.writestr(entry(name), file.read_bytes(), compresslevel=9)
    os.replace(unfinished, target)


main()
