#!/usr/bin/python3
"""Erasing a million files through the folder tree, against `rm -rf`."""

import section
import trees
import turns


def contestants(options):
    program = str(options.build / "erase")
    peer = turns.Command("`rm -rf`", lambda root: ["rm", "-rf", str(root)])
    return [peer, turns.Command("Zelvane, through its folder tree",
                                lambda root: [program, "port", str(root)], goals=[(peer, 1.0)])]


def main():
    options = section.read_options(__doc__, rounds=9, files=1000)
    page = section.Section(f"Erasing {trees.size(options)}", options.rounds)
    for place in options.places:
        tree = trees.Trees(place, options)
        both = contestants(options)
        turns.take_turns(both, options.rounds, tree.make, tree.must_be_empty)
        page.add(turns.table(both), heading=f"On {place.file_system}")
    page.write(options.build)


main()
