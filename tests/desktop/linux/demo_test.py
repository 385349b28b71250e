#!/usr/bin/python3
"""The demonstration, from its start to its exit status."""

import os
import pathlib
import subprocess
import sys
import tempfile

from support import ROOT, checks

LONGEST = 120  # seconds; it takes a tenth of that


def demo(place, *arguments, path=os.environ.get("PATH", "/usr/bin:/bin")):
    """Runs it with a folder of ours for what it leaves; returns its status and what it printed."""
    environment = {**os.environ, "TMPDIR": str(place), "PATH": path}
    ended = subprocess.run([sys.executable, str(ROOT / "demo" / "run_demo.py"), *arguments],
                           env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                           stderr=subprocess.STDOUT, text=True, timeout=LONGEST)
    return ended.returncode, ended.stdout


def tell(sentence, held, otherwise):
    print(f"ok - {sentence}" if held else f"not ok - {sentence}\n# {otherwise}", flush=True)
    return held


def the_story_holds(place, program):
    picture = place / "picture.png"
    status, printed = demo(place, "--program", program, "--no-browsers", "--screenshot", str(picture))
    lines = printed.splitlines()
    for line in lines:
        if line.startswith(("ok - ", "not ok - ", "# ")):
            print(line)
    return [
        tell("The demonstration ends with status 0", status == 0, f"{status}\n# {lines[-20:]}"),
        tell("Its last line sums up that nothing failed", lines[-1].endswith(" passed, 0 failed"),
             lines[-1]),
        tell("Its picture of the window is a picture",
             picture.exists() and picture.read_bytes().startswith(b"\x89PNG"), picture),
        tell("It leaves nothing else behind", os.listdir(place) == ["picture.png"],
             os.listdir(place)),
    ]


def a_missing_package_is_named(place, program):
    status, printed = demo(place, "--program", program, path="/nowhere")
    return [tell("Where the display server is missing, it names the package and stops",
                 status != 0 and "xvfb" in printed, printed)]


def a_missing_program_is_named(place):
    status, printed = demo(place, "--program", "/nowhere/zelvane")
    return [tell("Where the program is missing, it says so and stops",
                 status != 0 and "/nowhere/zelvane" in printed, printed)]


with tempfile.TemporaryDirectory(prefix="zelvane-") as folder:
    tried = []
    for name in ("story", "package", "program"):
        os.mkdir(os.path.join(folder, name))
    there = pathlib.Path(folder)
    zelvane = checks.program_path()
    tried += the_story_holds(there / "story", zelvane)
    tried += a_missing_package_is_named(there / "package", zelvane)
    tried += a_missing_program_is_named(there / "program")
sys.exit(0 if all(tried) else 1)
