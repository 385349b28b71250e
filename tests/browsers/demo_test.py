#!/usr/bin/python3
"""The demonstration with its real browsers."""

import subprocess
import sys

from support import ROOT, checks

ended = subprocess.run([sys.executable, ROOT / "demo" / "run_demo.py", "--browsers", "--program",
                        checks.program_path()], stdin=subprocess.DEVNULL)
print("ok" if ended.returncode == 0 else "not ok", "- The demonstration ends with status 0")
