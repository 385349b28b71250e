#!/usr/bin/python3
"""What erasers do in hostile worlds: builds each case, lets each eraser loose on it, and looks.

    zoo.py --build FOLDER [--place FOLDER] [--runs N] [--output FILE] [CASE...]

FOLDER holds the programs "zoo_case" and "erase". Everything happens below --place, which is in memory
if it is /dev/shm; started by root it is done as the user nobody. Without --output the page is printed.
"""

import argparse
import collections
import os
import pathlib
import platform
import shutil
import subprocess
import tempfile

import erasers
import wording

Case = collections.namedtuple("Case", "name needs group root title")
Outcome = collections.namedtuple("Outcome", "status lost changed left added")  # pairs of kind and path

NOBODY = 65534
LONGEST = 60  # seconds for one eraser in one case


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, required=True)
    parser.add_argument("--place", default="/dev/shm")
    parser.add_argument("--runs", type=int, default=3, help="of each race; the worst one counts")
    parser.add_argument("--output", type=pathlib.Path)
    parser.add_argument("cases", nargs="*", metavar="CASE")
    return parser.parse_args()


class Bench:
    """A folder to throw away, and the plain user who works in it."""

    def __init__(self, build, place):
        self.place = pathlib.Path(tempfile.mkdtemp(prefix="zelvane-zoo-", dir=place))
        self.place.chmod(0o755)
        self.user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.getuid() == 0 else {}
        for program in "zoo_case", "erase":
            shutil.copy(build / program, self.place)
        self.home = self.place / "home"
        self.world = self.place / "world"

    def cases(self):
        lines = self._run([self.place / "zoo_case", "list"]).stdout.decode().splitlines()
        return [Case(*line.split("\t")) for line in lines]

    def outcome(self, case, eraser):
        """What the eraser did in a new world of that case; None where the case cannot be built."""
        for folder in self.home, self.world:
            self._clear(folder)
            folder.mkdir()
            if self.user:
                os.chown(folder, NOBODY, NOBODY)
        eraser.prepare(self.home, self.world / case.root)
        limit = ["timeout", "--kill-after=5", str(LONGEST)]
        command = [self.place / "zoo_case", "run", case.name, self.world, *limit,
                   *eraser.command(case, self.place)]
        if case.needs == "mounts":
            command = ["unshare", "--user", "--map-root-user", "--mount", *command]
        ended = self._run(command)
        if ended.returncode == 3:
            return None
        if ended.returncode != 0:
            raise SystemExit(f"{case.name}, {eraser.name}: {ended.stderr.decode(errors='replace')}")
        return parsed(ended.stdout)

    def close(self):
        self._clear(self.world)
        self._clear(self.home)
        shutil.rmtree(self.place)

    def _clear(self, folder):
        if folder.exists():
            self._run(["chmod", "-R", "u+rwX", folder])
            self._run(["rm", "-rf", "--one-file-system", folder])
            # The folder itself lies in one that is not the plain user's.
            shutil.rmtree(folder, ignore_errors=True)

    def _run(self, command):
        environment = {"PATH": "/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin", "LANG": "C.UTF-8",
                       "HOME": str(self.home), "TMPDIR": str(self.home)}
        return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False,
                              stdin=subprocess.DEVNULL, env=environment, cwd="/", **self.user)


def parsed(output):
    entries = collections.defaultdict(list)
    # What the eraser printed stands before what zoo_case prints.
    report = output[output.rindex(b"ended\t\t"):] if b"ended\t\t" in output else b""
    for line in report.decode(errors="surrogateescape").split("\n"):
        if line.count("\t") >= 2:
            what, kind, path = line.split("\t", 2)
            entries[what].append((kind, path))
    return Outcome(int(entries["ended"][0][1]), entries["lost"], entries["changed"],
                   entries["left"], entries["added"])


def badness(outcome):
    return len(outcome.lost), len(outcome.changed), len(outcome.left)


def must_work(bench, cases, contestants):
    """An eraser that was told wrongly would look harmless."""
    easy = next(case for case in cases if case.name == "NamesOf255Bytes")
    for eraser in contestants:
        if bench.outcome(easy, eraser).left:
            raise SystemExit(f"{eraser.name} erases nothing.")


def worst(bench, case, eraser, runs):
    outcomes = [bench.outcome(case, eraser) for _ in range(runs if case.group == "Races" else 1)]
    return None if None in outcomes else max(outcomes, key=badness)


def rows(bench, cases, contestants, runs):
    group = None
    for case in cases:
        if case.group != group:
            group = case.group
            yield f"| **{group}** |" + " |" * len(contestants)
        words = [wording.words(case, worst(bench, case, eraser, runs)) for eraser in contestants]
        yield f"| {case.title} | " + " | ".join(words) + " |"
        print(case.name, *words, sep="\n    ", flush=True)


def page(table, contestants, place, runs):
    head = "| | " + " | ".join(eraser.title for eraser in contestants) + " |"
    text = (pathlib.Path(__file__).parent / "page.md").read_text(encoding="utf-8")
    return text.format(
        table="\n".join([head, "|---" * (len(contestants) + 1) + "|", *table]), runs=runs,
        versions=", ".join(eraser.version() for eraser in contestants if eraser.version()),
        kernel=platform.release().split("-")[0],
        file_system=subprocess.run(["stat", "-f", "-c", "%T", place], check=True, text=True,
                                   stdout=subprocess.PIPE).stdout.strip())


def main():
    options = arguments()
    contestants = [erasers.Rm(), erasers.BleachBit(), erasers.Zelvane()]
    bench = Bench(options.build, options.place)
    try:
        every = bench.cases()
        must_work(bench, every, contestants)
        cases = [case for case in every if not options.cases or case.name in options.cases]
        table = list(rows(bench, cases, contestants, options.runs))
    finally:
        bench.close()
    text = page(table, contestants, options.place, options.runs)
    if options.output:
        options.output.write_text(text, encoding="utf-8")
    else:
        print(text)


main()
