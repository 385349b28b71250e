"""A Windows to measure in: Wine's."""

import contextlib
import os
import pathlib
import subprocess

import section  # which lets the next ones be found
from desktop import processes
from desktop.waiting import wait_until

WINE = pathlib.Path(__file__).resolve().parents[1] / "scripts" / "wine.sh"
# What scripts/wine.sh says to Wine; asked anew each time, it would be timed as well.
WORDS = {"WINEDEBUG": "-all", "WINEDLLOVERRIDES": "winemenubuilder.exe=d", "LC_ALL": "C.UTF-8"}


class Windows:
    """One to throw away, on a display of its own, whose services are running."""

    def __init__(self, options, desktop, folder):
        self._programs = options.build.with_name("windows-bench")
        home = desktop.environment(desktop.new_home())
        self._keeper = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL,
                        "stderr": subprocess.DEVNULL, "env": {**home, "WINEPREFIX": folder}}
        self.environment = {**home, **WORDS, "WINEPREFIX": f"{folder}/prefix"}
        self.first_paint = str(options.build / "first_paint")

    def program(self, name):
        return str(self._programs / name)

    @contextlib.contextmanager
    def running(self):
        """While a window is open, none of the services that it takes has to be started again. It is
        that of a bare dialog, whose process is handed over."""
        dialog = processes.start([WINE, self.program("bare_dialog.exe")], **self._keeper)
        try:
            wait_until(lambda: is_on_screen("^A dialog"), "the first window is on the screen",
                       seconds=120)
            yield dialog
        finally:
            processes.end(dialog)
            self._run("--end")

    def store(self, key, values):
        """Texts, in the user's part of the registry."""
        for name, text in values.items():
            self._run("reg", "add", rf"HKCU\{key}", "/v", name, "/d", text, "/f")

    def server(self):
        """The number of the process that all programs here ask."""
        mark = os.fsencode(f"\0WINEPREFIX={self.environment['WINEPREFIX']}\0")
        for name in pathlib.Path("/proc").glob("[0-9]*/comm"):
            with contextlib.suppress(FileNotFoundError, ProcessLookupError, PermissionError):
                if name.read_text().startswith("wineserver") and \
                        mark in b"\0" + name.with_name("environ").read_bytes():
                    return int(name.parent.name)
        raise LookupError("the server does not run")

    def _run(self, *words):
        subprocess.run([WINE, *words], check=True, **self._keeper)


def is_on_screen(title):
    """Whether a window has such a title, a regular expression."""
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0
