"""Lets the tests find the modules that they stand on. To be imported first."""

import pathlib
import sys

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "support"))

from desktop import checks

__all__ = ["ROOT", "checks"]
