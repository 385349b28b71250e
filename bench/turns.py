"""Times whole processes turn by turn, so that whatever else the machine does slows all alike."""

import os
import statistics
import subprocess
import time


class Contestant:
    """Something that is timed: its name, and what makes its command for a fresh piece of work."""

    def __init__(self, name, command):
        self.name = name
        self.command = command
        self.wall = []
        self.processor = []

    def run(self, work):
        before = os.times()
        start = time.monotonic()
        subprocess.run(self.command(work), check=True, stdin=subprocess.DEVNULL)
        self.wall.append(time.monotonic() - start)
        after = os.times()
        self.processor.append(after.children_user + after.children_system
                              - before.children_user - before.children_system)

    def median(self, times):
        return statistics.median(getattr(self, times))

    def spread(self, times):
        return min(getattr(self, times)), max(getattr(self, times))


def take_turns(contestants, rounds, make_work, end_work):
    """Each contestant once a round, each on work of its own, which is made untimed. The first of a
    round changes, so that nobody always finds the machine as the same one left it."""
    for number in range(rounds):
        first = number % len(contestants)
        for contestant in contestants[first:] + contestants[:first]:
            work = make_work()
            os.sync()
            contestant.run(work)
            end_work(work)


def table(contestants, peer):
    """Markdown: wall and processor time of each, and both as ratios to the peer's."""
    lines = ["| | wall, s: median (least to most) | ratio | processor, s: median | ratio |",
             "|---|---|---|---|---|"]
    for each in contestants:
        least, most = each.spread("wall")
        lines.append(
            f"| {each.name} | {each.median('wall'):.2f} ({least:.2f} to {most:.2f}) "
            f"| {each.median('wall') / peer.median('wall'):.2f} "
            f"| {each.median('processor'):.2f} "
            f"| {each.median('processor') / peer.median('processor'):.2f} |")
    return "\n".join(lines)
