#!/usr/bin/python3
"""Puts docs/performance.md together from the sections that the benchmarks have written. Those of others
stay as they are."""

import argparse
import os
import pathlib

HEAD = """# Performance

Written by `./bench/run`, on a machine with {processors} processors. What is measured takes turns with its
peers, so that whatever else the machine does slows all alike. A ratio is to the first line of its table;
a goal is by the clock.
"""


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("names", nargs="+")
    options = parser.parse_args()
    sections = sections_of(options.output) if options.output.exists() else {}
    for name in options.names:
        file = options.build / f"{name}.md"
        if file.exists():
            sections.update(sections_of(file))
    text = "\n\n".join([HEAD.format(processors=os.cpu_count()).strip(), *sections.values()])
    options.output.write_text(text + "\n", "utf-8")


def sections_of(file):
    """By their titles, in their order."""
    _, *sections = ("\n" + file.read_text("utf-8")).split("\n## ")
    return {section.partition("\n")[0]: f"## {section.strip()}" for section in sections}


main()
