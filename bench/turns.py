"""Times contestants turn by turn, so that whatever else the machine does slows all alike."""

import os
import statistics
import subprocess
import tempfile
import time

import section  # noqa: F401: lets the next one be found
from desktop.memory import MemoryWatch


class Contestant:
    """Something that is timed, and what it must reach: pairs of a peer and the most of the peer's
    time that it may take."""

    def __init__(self, name, goals=()):
        self.name = name
        self.goals = goals
        self.wall = []
        self.processor = []

    def measure(self, work):
        """Does the work once. Returns the seconds by the clock, and those of the processor."""
        raise NotImplementedError

    def run(self, work):
        wall, processor = self.measure(work)
        self.wall.append(wall)
        self.processor.append(processor)

    def median(self, times):
        return statistics.median(getattr(self, times))

    def spread(self, times):
        return min(getattr(self, times)), max(getattr(self, times))

    def ratio(self, peer, times="wall"):
        return self.median(times) / peer.median(times)


class Command(Contestant):
    """A whole process, from its start to its end. `command` makes it for a piece of work."""

    def __init__(self, name, command, goals=(), environment=None):
        super().__init__(name, goals)
        self._command = command
        self._environment = environment

    def environment(self, work):
        """The variables of the process for a piece of work; None for those of this one."""
        return self._environment

    def measure(self, work):
        with tempfile.TemporaryFile() as told:
            start = time.monotonic()
            process = self._start(work, told)
            _, status, used = os.wait4(process.pid, 0)
            wall = time.monotonic() - start
            process.returncode = os.waitstatus_to_exitcode(status)
            if process.returncode != 0:
                told.seek(0)
                raise SystemExit(f"{self.name} ended with status {process.returncode}:\n"
                                 f"{told.read().decode('utf-8', 'replace')}")
        return wall, used.ru_utime + used.ru_stime

    def memory(self, work):
        """Does it once more, untimed: the most that the process holds meanwhile, in bytes, what it
        shares with others divided among them."""
        with self._start(work, subprocess.DEVNULL) as process, MemoryWatch(process.pid) as watch:
            if process.wait() != 0:
                raise SystemExit(f"{self.name} ended with status {process.returncode}")
        return watch.most

    def _start(self, work, errors):
        return subprocess.Popen(self._command(work), stdin=subprocess.DEVNULL,
                                stdout=subprocess.DEVNULL, stderr=errors,
                                env=self.environment(work))


def take_turns(contestants, rounds, make_work=lambda: None, end_work=lambda work: None):
    """Each contestant once a round, each on work of its own, which is made untimed. The first of a
    round changes, so that nobody always finds the machine as the same one left it."""
    for number in range(rounds):
        first = number % len(contestants)
        for contestant in contestants[first:] + contestants[:first]:
            work = make_work()
            contestant.run(work)
            end_work(work)


def table(contestants):
    """Markdown: wall and processor time of each, and both as ratios to those of the first."""
    peer = contestants[0]
    lines = ["| | wall, s: median (least to most) | ratio | processor, s: median | ratio | goal |",
             "|---|---|---|---|---|---|"]
    for each in contestants:
        least, most = each.spread("wall")
        lines.append(
            f"| {each.name} | {each.median('wall'):.3f} ({least:.3f} to {most:.3f}) "
            f"| {each.ratio(peer):.2f} | {each.median('processor'):.3f} "
            f"| {each.ratio(peer, 'processor'):.2f} | {'; '.join(goals(each))} |")
    return "\n".join(lines)


def goals(contestant):
    """What it had to reach by the clock, and whether it did."""
    for peer, limit in contestant.goals:
        ratio = contestant.ratio(peer)
        verdict = "met" if ratio <= limit else "**not met**"
        yield f"at most {limit} of {peer.name}: {ratio:.2f}, {verdict}"
