#!/usr/bin/python3
"""The Windows program under Wine: its start against a bare dialog, its erasing against `rd`."""

import pathlib
import subprocess
import tempfile

import section
import trees
import turns
from desktop.virtual_desktop import VirtualDesktop
from wine import Windows


class Start(turns.Contestant):
    """From just before the process is made until the display has drawn its window."""

    def __init__(self, name, windows, program, goals=()):
        super().__init__(name, goals)
        self._command = [windows.first_paint, "wine", windows.program(program)]
        self._environment = windows.environment

    def measure(self, work):
        answer = subprocess.run(self._command, env=self._environment, check=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True)
        wall, processor = answer.stdout.split()
        return float(wall), float(processor)


def measure_start(options, windows, page):
    bare = Start("a bare dialog", windows, "bare_dialog.exe")
    zelvane = Start("Zelvane", windows, "Zelvane.exe", goals=[(bare, 1.5)])
    for each in (bare, zelvane):
        each.measure(None)  # The first start has more to do, and cold caches.
    turns.take_turns([bare, zelvane], options.rounds)
    page.add(turns.table([bare, zelvane]), heading="From the start to the first painted window")
    page.add("As in the same measurement on Linux; the bare dialog has one label. Programs that "
             "run under Wine\nshare a server with all others, whose processor time is in no line.")


def measure_erasing(options, windows, page):
    """In one place: `rd` takes minutes in all."""
    def eraser(name, *words, goals=()):
        return turns.Command(
            name, lambda root: ["wine", *words, "Z:" + str(root).replace("/", "\\")],
            environment=windows.environment, goals=goals)

    # By its path: by its name alone, another process would start it, and be timed instead.
    cmd = r"C:\windows\system32\cmd.exe"
    erase = windows.program("erase.exe")
    rd = eraser("`cmd /c rd /s /q`", cmd, "/c", "rd", "/s", "/q")
    library = eraser("`std::filesystem::remove_all`", erase, "remove_all")
    zelvane = eraser("Zelvane, through its folder tree", erase, "port", goals=[(rd, 1.0)])
    place = options.places[0]
    tree = trees.Trees(place, options)
    turns.take_turns([rd, zelvane, library], options.rounds, tree.make, tree.must_be_empty)
    page.add(turns.table([rd, zelvane, library]),
             heading=f"Erasing {trees.size(options)}, on {place.file_system}")


def show_sizes(windows, page):
    lines = ["| | size, KB |", "|---|---|"]
    for name, program in {"a bare dialog": "bare_dialog.exe", "Zelvane": "Zelvane.exe"}.items():
        size = pathlib.Path(windows.program(program)).stat().st_size
        lines.append(f"| {name} | {size / 1000:,.0f} |")
    page.add("\n".join(lines), heading="The executable")
    page.add("Both as a user gets them, with everything that they need but Windows itself.")


def main():
    options = section.read_options(__doc__, folders=200)
    page = section.Section("The Windows program, under Wine", options.rounds)
    with VirtualDesktop(window_manager=False, accessibility=False) as desktop, \
            tempfile.TemporaryDirectory(prefix="windows-", dir=options.build) as folder:
        windows = Windows(options, desktop, folder)
        with windows.running():
            measure_start(options, windows, page)
            measure_erasing(options, windows, page)
    show_sizes(windows, page)
    page.write(options.build)


main()
