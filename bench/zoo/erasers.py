"""The erasers that are compared, each told in its own way to erase what is in a folder."""

import subprocess
from xml.sax.saxutils import quoteattr

_CLEANER = """<?xml version="1.0" encoding="UTF-8"?>
<cleaner id="zoo">
  <label>Zoo</label>
  <option id="all">
    <label>All</label>
    <description>Everything in one folder</description>
    <action command="delete" search="walk.all" path={path}/>
  </option>
</cleaner>
"""


class Rm:
    """Removes what it is named, so it is given all that is in the folder, hidden things too. Where the
    folder itself is the question, it is given the folder. With the options that make it most careful."""

    name = "rm"
    title = "`rm -rf`"

    def prepare(self, home, root):
        pass

    def command(self, case, programs):
        remove = ["rm", "-rf", "--one-file-system", "--preserve-root=all"]
        if case.root.startswith("link"):
            return [*remove, "@ROOT@"]
        return ["find", "@ROOT@", "-mindepth", "1", "-maxdepth", "1", "-exec", *remove, "{}", "+"]

    def version(self):
        return "rm of coreutils " + _first_line(["rm", "--version"]).split()[-1]


class BleachBit:
    """Through its command line, with a cleaner file such as its own ones are."""

    name = "bleachbit"
    title = "BleachBit"

    def prepare(self, home, root):
        cleaners = home / ".config/bleachbit/cleaners"
        for folder in home / ".config", home / ".config/bleachbit", cleaners:
            folder.mkdir()
            folder.chmod(0o777)  # The plain user is not the one who makes them.
        # As the case has it, a closing slash included.
        (cleaners / "zoo.xml").write_text(_CLEANER.format(path=quoteattr(str(root))), "utf-8")

    def command(self, case, programs):
        return ["bleachbit", "--clean", "zoo.all"]

    def version(self):
        return _first_line(["dpkg-query", "-W", "-f", "BleachBit ${Version}", "bleachbit"])


class Zelvane:
    """As a cleaning run erases a folder: its folder tree and its walk, in a program without a window."""

    name = "zelvane"
    title = "Zelvane"

    def prepare(self, home, root):
        pass

    def command(self, case, programs):
        return [str(programs / "erase"), "port", "@ROOT@"]

    def version(self):
        return ""


def _first_line(command):
    return subprocess.run(command, check=True, text=True,
                          stdout=subprocess.PIPE).stdout.splitlines()[0]
