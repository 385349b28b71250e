#!/usr/bin/python3
"""Collects the licences of everything foreign that went into Zelvane.exe.

    licences.py BUILD FOLDER

What went in is told by the linker's map (which libraries gave pieces, and which objects of ours) and by
the build's own list of the headers that these objects were made from. The distribution's packages know
whose files these are and under which licence; libraries that were made for Windows from the
distribution's sources have theirs beside them. A file of nobody's ends this with an error, so that
nothing gets in without its licence.
"""

import os
import pathlib
import re
import subprocess
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[2]
# A library made for Windows, by its name and version.
MADE = re.compile(r".*/windows-libraries/(?P<name>[^/]+?)-\d[^/]*(?=/)")
# Texts that many licences share, which the system has once.
COMMON = pathlib.Path("/usr/share/common-licenses")


def answer_of(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def linked_files(linker_map):
    """Libraries that gave a piece, and object files of the compiler's own."""
    return re.findall(r"^(?:LOAD )?(/[^\s()]+)(?:\([^)]*\)|(?<=\.o)$)", linker_map, re.MULTILINE)


def own_objects(linker_map):
    """As the build names them; the map has most as folder/libNAME.a(OBJECT)."""
    pieces = re.findall(r"^(?!/)(\S+/)lib(\w+)\.a\(([^)]*)\)", linker_map, re.MULTILINE)
    whole = re.findall(r"^LOAD (?!/)(\S+\.cpp\.obj)$", linker_map, re.MULTILINE)
    return sorted({f"{folder}CMakeFiles/{name}.dir/{piece}" for folder, name, piece in pieces}
                  | set(whole))


def headers(build, objects):
    """Whatever their sources include, directly or not."""
    known = answer_of("ninja", "-C", str(build), "-t", "deps", *objects)
    return re.findall(r"^    (/.+)$", known, re.MULTILINE)


def real(paths):
    return sorted({os.path.realpath(path) for path in paths})


def texts_of_made(paths):
    """The licence of each library that was made for Windows, by its name."""
    places = filter(None, map(MADE.match, paths))
    return {place["name"]: pathlib.Path(place[0], "copyright").read_bytes() for place in places}


def foreign(paths):
    return [path for path in paths if not path.startswith(f"{PROJECT}/") and not MADE.match(path)]


def packages(paths):
    owners = answer_of("dpkg-query", "--search", *paths)
    return sorted({owner for line in owners.splitlines()
                   for owner in line.rsplit(": ", 1)[0].split(", ")})


def texts_of(names):
    """The licence of each source that the packages were made from, by its name."""
    texts = {}
    for line in answer_of("dpkg-query", "--show", "--showformat",
                          "${Package} ${source:Package}\n", *names).splitlines():
        package, source = line.split()
        text = pathlib.Path("/usr/share/doc", package, "copyright").read_bytes()
        if texts.setdefault(source, text) != text:
            raise SystemExit(f"The packages of {source} have licences that differ.")
    return texts


def common_texts(texts):
    """Those that the texts name, as far as it is files that they name."""
    names = {name.decode() for text in texts
             for name in re.findall(rb"/usr/share/common-licenses/([\w.-]*\w)", text)}
    files = {(COMMON / name).resolve() for name in names}
    return {file.name: file.read_bytes() for file in files}


def main():
    build, folder = map(pathlib.Path, sys.argv[1:])
    linker_map = (build / "Zelvane.map").read_text("utf-8", "replace")
    paths = real(linked_files(linker_map) + headers(build, own_objects(linker_map)))
    texts = {**texts_of(packages(foreign(paths))), **texts_of_made(paths)}
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in {**texts, **common_texts(texts.values())}.items():
        (folder / f"{name}.txt").write_bytes(text)


main()
