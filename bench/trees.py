"""Trees of empty files, made to be erased."""

import contextlib
import pathlib
import subprocess
import tempfile

import section  # which lets the next one be found
from desktop import many_files


class Trees:
    """Makes them in one place, all of one size."""

    def __init__(self, place, options):
        self._place = place
        self._folders = options.folders
        self._files = options.files

    def make(self):
        root = tempfile.mkdtemp(prefix="tree-", dir=self._place.folder)
        many_files.make_folders(root, self._folders, self._files)
        # What the file system still has to write of it is no part of the erasing.
        subprocess.run(["sync", "--file-system", root], check=True)
        return pathlib.Path(root)

    @staticmethod
    def must_be_empty(root):
        """A contestant that left something would be fast for no merit."""
        with contextlib.suppress(FileNotFoundError):
            if any(root.iterdir()):
                raise SystemExit(f"{root} is not empty.")
            root.rmdir()


def size(options):
    return f"{options.folders * options.files:,} empty files in {options.folders:,} folders"
