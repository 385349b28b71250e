#!/usr/bin/python3
"""Takes the pictures of these pages: the real program in a made-up home, one picture a page.

    make_pictures.py PROGRAM FOLDER
"""

import pathlib
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tests" / "support"))

from desktop.program import Program
from desktop.virtual_desktop import VirtualDesktop
from desktop.window import PAGES


def main():
    path, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    with VirtualDesktop() as desktop:
        home = desktop.new_home("user")
        home.name_documents()
        with Program(path, desktop, home) as program:
            window = program.window()
            for page in PAGES:
                window.turn_to(page)
                name = page.lower().replace(" ", "-") + ".png"
                desktop.screenshot(folder / name, window.number)
                print(folder / name)


main()
