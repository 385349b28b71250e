"""What the benchmarks share: their options, and the section of the page that each one writes."""

import argparse
import os
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "support"))


class Place:
    """A folder to make trees in, and the file system that it is on."""

    def __init__(self, argument):
        self.file_system, _, folder = argument.partition("=")
        self.folder = pathlib.Path(folder)


def read_options(document, rounds=9, folders=1000, files=100):
    """Those of bench/run, with what the benchmark has by itself."""
    parser = argparse.ArgumentParser(description=document.splitlines()[0])
    parser.add_argument("--build", type=lambda path: pathlib.Path(path).resolve(), required=True)
    parser.add_argument("--place", type=Place, action="append", default=[], dest="places",
                        metavar="FILE-SYSTEM=FOLDER")
    parser.add_argument("--rounds", type=int, default=rounds)
    parser.add_argument("--folders", type=int, default=folders)
    parser.add_argument("--files", type=int, default=files, help="in each folder")
    return parser.parse_args()


class Section:
    """Collects the text while its benchmark measures, and notes how busy the machine was."""

    def __init__(self, title, rounds):
        self._lines = [f"## {title}"]
        self._rounds = rounds
        self._load = os.getloadavg()[0]

    def add(self, text, heading=None):
        if heading:
            self._lines.append(f"### {heading}")
        self._lines.append(text)

    def write(self, build):
        self._lines.insert(1, f"{self._rounds} rounds. Load of the machine: {self._load:.2f} before, "
                              f"{os.getloadavg()[0]:.2f} after.")
        text = "\n\n".join(self._lines) + "\n"
        (build / f"{pathlib.Path(sys.argv[0]).stem}.md").write_text(text, "utf-8")
        print(text, flush=True)
