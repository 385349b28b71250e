"""So many empty files that it shows how a program bears them."""

import os
import pathlib

# Of no disk, whose pauses would be taken for the program's. None is where temporary files go.
IN_MEMORY = pathlib.Path("/dev/shm") if os.access("/dev/shm", os.W_OK) else None


def make_folders(root, folders, files):
    """Makes folders in `root`, each with so many files."""
    for number in range(folders):
        make_files(os.path.join(root, f"folder {number}"), files)


def make_files(folder, count, name="file {}.txt"):
    """Makes the folder, and the files in it; `name` has a place for their number."""
    os.makedirs(folder, exist_ok=True)
    descriptor = os.open(folder, os.O_RDONLY | os.O_DIRECTORY)
    try:
        # A file that is to be empty need not be opened, which takes half of the time.
        for number in range(count):
            os.mknod(name.format(number), 0o600, dir_fd=descriptor)
    finally:
        os.close(descriptor)
