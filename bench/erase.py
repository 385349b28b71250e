#!/usr/bin/python3
"""Erasing a tree of many files, against `rm -rf` of the same tree.

    erase.py --program BUILT_ERASE --output docs/performance.md [--folders N] [--files N] [--rounds N]
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import tempfile

import turns


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", type=pathlib.Path, required=True)
    parser.add_argument("--output", type=pathlib.Path, required=True)
    parser.add_argument("--folders", type=int, default=1000)
    parser.add_argument("--files", type=int, default=100, help="in each folder")
    parser.add_argument("--rounds", type=int, default=9)
    return parser.parse_args()


def make_tree(place, folders, files):
    root = pathlib.Path(tempfile.mkdtemp(prefix="tree-", dir=place))
    for number in range(folders):
        folder = root / f"folder {number}"
        folder.mkdir()
        for name in range(files):
            os.close(os.open(folder / f"file {name}.txt", os.O_CREAT | os.O_EXCL | os.O_WRONLY, 0o600))
    return root


def must_be_empty(root):
    """A contestant that left something would be fast for no merit."""
    if root.exists():
        if any(root.iterdir()):
            raise SystemExit(f"{root} is not empty.")
        root.rmdir()


def main():
    options = arguments()
    peer = turns.Contestant("`rm -rf`", lambda root: ["rm", "-rf", str(root)])
    contestants = [
        peer,
        turns.Contestant("Zelvane, through its folder tree",
                         lambda root: [str(options.program), "port", str(root)]),
        turns.Contestant("`std::filesystem::remove_all`",
                         lambda root: [str(options.program), "remove_all", str(root)]),
    ]
    place = tempfile.mkdtemp(prefix="zelvane-bench-")
    file_system = subprocess.run(["stat", "-f", "-c", "%T", place], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout.strip()
    load_before = os.getloadavg()[0]
    try:
        turns.take_turns(contestants, options.rounds,
                         lambda: make_tree(place, options.folders, options.files), must_be_empty)
    finally:
        shutil.rmtree(place, ignore_errors=True)
    options.output.write_text(page(options, contestants, peer, load_before, file_system),
                              encoding="utf-8")
    print(options.output.read_text(encoding="utf-8"))


def page(options, contestants, peer, load_before, file_system):
    number = options.folders * options.files
    return f"""# Performance

Written by `./bench/run`. Whole processes, turn by turn, {options.rounds} rounds; each ratio is to the first
line. Load of the machine, which has {os.cpu_count()} processors: {load_before:.2f} before,
{os.getloadavg()[0]:.2f} after. File system: {file_system}.

## Erasing {number:,} empty files in {options.folders:,} folders

{turns.table(contestants, peer)}

Zelvane's line includes its checks: no link followed, no mount entered, files in use left alone, which
takes one look at the open files of all processes at the start.
"""


main()
