#!/usr/bin/python3
"""Puts docs/performance.md together from the sections that the benchmarks have written."""

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
    files = [options.build / f"{name}.md" for name in options.names]
    sections = [file.read_text("utf-8") for file in files if file.exists()]
    options.output.write_text("\n".join([HEAD.format(processors=os.cpu_count()), *sections]), "utf-8")


main()
