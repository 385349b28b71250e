"""Lets the tests find the modules that they stand on. To be imported first."""

import pathlib
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "support"))

from desktop import checks

__all__ = ["checks"]
