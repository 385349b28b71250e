"""Programs that are left alone for a minute, and what they use meanwhile."""

import pathlib
import subprocess
import time

import section  # which lets the next ones be found
from desktop import processes
from desktop.memory import share_of
from desktop.waiting import wait_until

SECONDS = 60
MOST_OF_A_CORE = 0.001
MOST_WAKINGS = 5  # a second
# As the program stores it: every day at that second.
SCHEDULE = {"Date": "Null", "Time": "04:00:00", "RunAfter": "2", "LastRunTime": "##:##:##",
            "RunOn": "7"}


class Resident:
    """A process. What it did in the minute is in `processor`, in seconds, and `wakings`; what it held
    of the memory at its end in `memory`, in bytes."""

    def __init__(self, name, pid):
        self.name = name
        self._pid = pid

    def begin(self):
        self._before = self._used()

    def end(self):
        """Threads that have ended meanwhile do not count."""
        nothing = (0, 0)
        used = [(after[0] - before[0], after[1] - before[1]) for after, before in
                ((now, self._before.get(thread, nothing)) for thread, now in self._used().items())]
        self.processor, self.wakings = (sum(each) for each in zip(*used))
        self.memory = share_of(self._pid)

    def line(self):
        return (f"| {self.name} | {self.processor / SECONDS:.3%} | {self.wakings / SECONDS:.1f} "
                f"| {self.memory / 2**20:.0f} |")

    def _used(self):
        """Of each thread the seconds on a processor, and how often it was put there after a wait."""
        return {thread.name: (int((thread / "schedstat").read_text().split()[0]) / 1e9,
                              int((thread / "status").read_text()
                                  .split("voluntary_ctxt_switches:")[1].split()[0]))
                for thread in pathlib.Path(f"/proc/{self._pid}/task").iterdir()}


class Window(Resident):
    """A program that was started here, and has a window."""

    def __init__(self, name, command, environment, folder):
        process = processes.start([str(word) for word in command], env=environment, cwd=folder,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL)
        super().__init__(name, process.pid)
        self._window = wait_until(self._find, f"the window of {name} is there")

    def hide(self):
        """By its close box."""
        subprocess.run(["xdotool", "windowactivate", self._window], check=True)
        wait_until(self._has_the_keys, f"the window of {self.name} has the keys")
        subprocess.run(["xdotool", "key", "alt+F4"], check=True)
        wait_until(lambda: not self._find(), f"the window of {self.name} is hidden")

    def _has_the_keys(self):
        return _answer("getwindowfocus") == [self._window]

    def _find(self):
        found = _answer("search", "--all", "--onlyvisible", "--pid", str(self._pid), "--name",
                        ".")
        return found[0] if found else None


def leave_alone(*residents):
    for each in residents:
        each.begin()
    time.sleep(SECONDS)
    for each in residents:
        each.end()


def table(*residents):
    return "\n".join(["| | of one core | wakings a second | memory, MiB (PSS) |", "|---|---|---|---|",
                      *(each.line() for each in residents)])


def goals(zelvane, peer):
    """`peer` is who may have more memory."""
    return (f"Goals: at most {MOST_OF_A_CORE:.1%} of a core, "
            f"{_verdict(zelvane.processor / SECONDS <= MOST_OF_A_CORE)}; at most {MOST_WAKINGS} "
            f"wakings a second, {_verdict(zelvane.wakings / SECONDS <= MOST_WAKINGS)}; no more "
            f"memory than {peer.name}, {_verdict(zelvane.memory <= peer.memory)}.")


def _verdict(held):
    return "met" if held else "**not met**"


def _answer(*question):
    """Of xdotool, word by word. A window that goes while it looks puts it off."""
    asked = subprocess.run(["xdotool", *question], capture_output=True, text=True)
    if asked.stderr:
        raise LookupError(asked.stderr)
    return asked.stdout.split()
