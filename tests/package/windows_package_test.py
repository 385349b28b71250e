#!/usr/bin/python3
"""The zip for users of Windows: what is in it, and that it starts.

    ZELVANE_PACKAGE=ZIP windows_package_test.py
"""

import io
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import wave
import zipfile

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "support"))

import lines  # noqa: E402
import portable_executable  # noqa: E402
from desktop import processes  # noqa: E402
from desktop.virtual_desktop import VirtualDesktop  # noqa: E402
from desktop.waiting import wait_until  # noqa: E402

ZIP = pathlib.Path(os.environ["ZELVANE_PACKAGE"])
VERSION = (ROOT / "VERSION").read_text("utf-8").strip()
TITLE = f"Zelvane v{VERSION}"
FIRST_START = 120  # seconds; making a Windows to start in takes most of them

# Ours, then the compiler's and its libraries' own licences, then those that these name.
CONTENT = {"Zelvane.exe", "wavpath.txt", "ding.wav", "README.txt",
           "licences/gcc-mingw-w64.txt", "licences/mingw-w64.txt",
           "licences/leveldb.txt", "licences/nlohmann-json3.txt", "licences/snappy.txt",
           "licences/sqlite3.txt",
           "licences/Artistic.txt", "licences/GFDL-1.2.txt", "licences/GPL-2.txt",
           "licences/GPL-3.txt", "licences/LGPL-2.txt", "licences/LGPL-2.1.txt",
           "licences/LGPL-3.txt"}

# Each is part of every Windows 10 and 11: a user has nothing to install.
OF_WINDOWS = {
    "ADVAPI32.dll",  # registry, rights
    "COMCTL32.dll",  # tabs, lists, pickers
    "comdlg32.dll",  # the file dialogs
    "GDI32.dll",     # fonts, drawing
    "IPHLPAPI.DLL",  # the local address
    "KERNEL32.dll",  # files, processes
    "msvcrt.dll",    # C's own library, the one that Windows brings
    "ntdll.dll",     # opening within a folder
    "ole32.dll",     # what the shell's dialogs stand on
    "SHELL32.dll",   # special folders, the recycle bin
    "USER32.dll",    # windows
    "VERSION.dll",   # the program's own version record
    "WINMM.dll",     # sounds
}
ICON_SIZES = {16, 24, 32, 48, 64, 128, 256}


class WindowsPackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with zipfile.ZipFile(ZIP) as packed:
            cls.entries = packed.infolist()
            cls.files = {entry.filename.removeprefix("Zelvane/"): packed.read(entry)
                         for entry in cls.entries}
        cls.content = cls.files["Zelvane.exe"]
        cls.program = portable_executable.Program(cls.content)
        cls.resources = cls.program.resources()

    def test_it_is_named_for_its_version(self):
        self.assertEqual(ZIP.name, f"Zelvane-{VERSION}-windows.zip")

    def test_it_holds_these_files_in_one_folder_and_no_other(self):
        self.assertEqual({entry.filename for entry in self.entries},
                         {f"Zelvane/{name}" for name in CONTENT})

    def test_its_files_stand_in_order_and_bear_no_time(self):
        names = [entry.filename for entry in self.entries]

        self.assertEqual(names, sorted(names))
        self.assertEqual({entry.date_time for entry in self.entries}, {(1980, 1, 1, 0, 0, 0)})

    def test_the_chosen_sound_is_none(self):
        self.assertEqual(self.files["wavpath.txt"], b"\r\n")

    def test_the_sound_is_shorter_than_a_second_and_every_windows_can_play_it(self):
        with wave.open(io.BytesIO(self.files["ding.wav"])) as sound:
            self.assertEqual((sound.getcomptype(), sound.getsampwidth()), ("NONE", 2))
            self.assertIn(sound.getframerate(), (22_050, 44_100))
            self.assertLess(sound.getnframes(), sound.getframerate())
            samples = memoryview(sound.readframes(sound.getnframes())).cast("h")
        self.assertTrue(3_000 < max(map(abs, samples)) < 20_000, "It is silent, or not soft.")

    def test_the_licences_of_what_is_linked_in_are_there(self):
        for name, words in {"gcc-mingw-w64": b"GCC RUNTIME LIBRARY EXCEPTION",
                            "mingw-w64": b"mingw-w64-libraries/winpthreads"}.items():
            self.assertTrue(words in self.files[f"licences/{name}.txt"], name)

    def test_the_readme_is_for_this_version_and_for_editors_of_windows(self):
        text = self.files["README.txt"]

        self.assertTrue(text.startswith(f"Zelvane {VERSION} ".encode()), text[:40])
        self.assertEqual(text.count(b"\n"), text.count(b"\r\n"))

    def test_the_program_needs_nothing_but_windows(self):
        with tempfile.NamedTemporaryFile() as file:
            file.write(self.content)
            file.flush()
            tables = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", file.name], check=True,
                                    stdout=subprocess.PIPE, text=True).stdout
        needed = set(re.findall(r"DLL Name: (.+)", tables))

        # The second brings classes of windows; without it some Windows would not find them.
        self.assertLessEqual({"KERNEL32.dll", "COMCTL32.dll"}, needed)
        self.assertLessEqual(needed, OF_WINDOWS)
        self.assertEqual(self.program.table(portable_executable.DELAYED_IMPORTS), (0, 0))

    def test_the_program_tells_neither_when_nor_where_it_was_built(self):
        told = [place for place in ("/build/", "windows-release", "CMakeFiles", ".cpp")
                for coding in ("utf-8", "utf-16-le") if place.encode(coding) in self.content]

        self.assertEqual(told, [])
        self.assertEqual(self.program.time, 0)

    def test_the_program_carries_its_icon_in_every_size_that_windows_asks_for(self):
        sizes = list(portable_executable.icon_sizes(self.resources, "APPLICATION"))

        self.assertLessEqual(ICON_SIZES, {told for told, _ in sizes})
        self.assertEqual([told for told, _ in sizes], [drawn for _, drawn in sizes])

    def test_the_program_says_who_it_is(self):
        numbers = tuple(map(int, VERSION.split(".")))

        self.assertEqual(portable_executable.version_numbers(self.resources), (numbers, numbers))
        for name, text in {"ProductName": "Zelvane", "ProductVersion": VERSION,
                           "FileVersion": VERSION, "OriginalFilename": "Zelvane.exe"}.items():
            self.assertEqual(portable_executable.version_text(self.resources, name), text)

    def test_it_starts_where_a_user_unpacks_it(self):
        with VirtualDesktop(accessibility=False) as desktop:
            folder = desktop.place / "für Zoë, ältere Programme"
            with zipfile.ZipFile(ZIP) as packed:
                packed.extractall(folder)
            environment = {**desktop.environment(desktop.new_home()),
                           "WINEPREFIX": str(desktop.new_home("windows").home)}
            program = processes.start(
                [ROOT / "scripts" / "wine.sh", folder / "Zelvane" / "Zelvane.exe"],
                env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

            wait_until(lambda: windows_on_screen() or program.poll() is not None,
                       "its window is on the screen", seconds=FIRST_START)

            self.assertEqual(len(windows_on_screen()), 1)
            self.assertIsNone(program.poll())


def windows_on_screen():
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{TITLE}$"],
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          text=True).stdout.split()


lines.main()
