#!/usr/bin/python3
"""Erasing a tree of many files through the folder tree, against other ways to do it."""

import os
import pathlib
import tempfile

import section
import trees
import turns

CLEANER = """<?xml version="1.0" encoding="UTF-8"?>
<cleaner id="bench">
  <label>Bench</label>
  <description>One tree</description>
  <option id="tree">
    <label>Tree</label>
    <description>One tree</description>
    <action command="delete" search="walk.all" path="{tree}"/>
  </option>
</cleaner>
"""


class BleachBit(turns.Command):
    """A cleaner like this one. It is told by a file of its own what to erase, in a home of its own."""

    def __init__(self, home):
        super().__init__("BleachBit", lambda root: ["bleachbit", "--clean", "bench.tree"],
                         environment={"PATH": os.environ["PATH"], "LANG": "C.UTF-8",
                                      "HOME": str(home)})
        self._cleaners = home / ".config" / "bleachbit" / "cleaners"
        self._cleaners.mkdir(parents=True)

    def measure(self, work):
        (self._cleaners / "bench.xml").write_text(CLEANER.format(tree=work), "utf-8")
        return super().measure(work)


def contestants(options, home):
    program = str(options.build / "erase")
    peer = turns.Command("`rm -rf`", lambda root: ["rm", "-rf", str(root)])
    return [
        peer,
        turns.Command("Zelvane, through its folder tree",
                      lambda root: [program, "port", str(root)], goals=[(peer, 1.1)]),
        turns.Command("`std::filesystem::remove_all`",
                      lambda root: [program, "remove_all", str(root)]),
        BleachBit(home),
    ]


def main():
    options = section.read_options(__doc__)
    page = section.Section(f"Erasing {trees.size(options)}", options.rounds)
    for place in options.places:
        home = pathlib.Path(tempfile.mkdtemp(prefix="home-"))
        tree = trees.Trees(place, options)
        all_of_them = contestants(options, home)
        turns.take_turns(all_of_them, options.rounds, tree.make, tree.must_be_empty)
        page.add(turns.table(all_of_them), heading=f"On {place.file_system}")
    page.add("Zelvane's line includes its checks: no link followed, no mount entered, files in use "
             "left alone,\nwhich takes one look at the open files of all processes at the start. "
             "BleachBit's is that of\n`bleachbit --clean` with a cleaner of its own that names the "
             "tree.")
    page.write(options.build)


main()
