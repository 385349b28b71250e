#!/usr/bin/python3
"""The package for Debian: what is in it.

    ZELVANE_PACKAGE=DEB debian_package_test.py
"""

import configparser
import gzip
import io
import os
import pathlib
import subprocess
import sys
import tarfile
import tempfile
import unittest
import xml.etree.ElementTree

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "support"))

import lines  # noqa: E402

DEB = pathlib.Path(os.environ["ZELVANE_PACKAGE"])
VERSION = (ROOT / "VERSION").read_text("utf-8").strip()
ICON_SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
CONTENT = {
    "usr/bin/zelvane": 0o755,
    "usr/share/applications/zelvane.desktop": 0o644,
    "usr/share/metainfo/example.zelvane.Zelvane.metainfo.xml": 0o644,
    "usr/share/doc/zelvane/changelog.gz": 0o644,
    "usr/share/doc/zelvane/copyright": 0o644,
    "usr/share/man/man1/zelvane.1.gz": 0o644,
    "usr/share/icons/hicolor/scalable/apps/zelvane.svg": 0o644,
    **{f"usr/share/icons/hicolor/{size}x{size}/apps/zelvane.png": 0o644 for size in ICON_SIZES},
}


class DebianPackage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        packed = run("dpkg-deb", "--fsys-tarfile", DEB)
        with tarfile.open(fileobj=io.BytesIO(packed)) as archive:
            cls.entries = archive.getmembers()
            cls.files = {entry.name.removeprefix("./"): archive.extractfile(entry).read()
                         for entry in cls.entries if entry.isfile()}
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        subprocess.run(["dpkg-deb", "--extract", DEB, cls.folder.name], check=True)

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def test_it_holds_these_files_and_no_other(self):
        modes = {entry.name.removeprefix("./"): entry.mode for entry in self.entries
                 if not entry.isdir()}

        self.assertEqual(modes, CONTENT)

    def test_everything_in_it_belongs_to_root_and_bears_the_time_of_the_changelog(self):
        time = run("dpkg-parsechangelog", "--file", ROOT / "packaging/debian/changelog",
                   "--show-field", "Timestamp")

        self.assertEqual({(entry.uid, entry.gid, entry.mtime) for entry in self.entries},
                         {(0, 0, int(time))})

    def test_it_is_of_this_version_and_says_what_it_needs(self):
        fields = run("dpkg-deb", "--field", DEB).decode()

        self.assertIn(f"\nVersion: {VERSION}\n", fields)
        for library in ("libqt6widgets6", "libsqlite3-0", "libleveldb1d", "libxcb1", "libc6"):
            self.assertRegex(fields, rf"Depends:.*\b{library}\b")

    def test_the_changelog_names_this_version(self):
        text = gzip.decompress(self.files["usr/share/doc/zelvane/changelog.gz"]).decode()

        self.assertTrue(text.startswith(f"zelvane ({VERSION}) "), text[:40])

    def test_menus_understand_the_desktop_entry(self):
        subprocess.run(["desktop-file-validate", self.path("usr/share/applications/zelvane.desktop")],
                       check=True)

    def test_the_desktop_entry_starts_what_is_installed(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read_string(self.files["usr/share/applications/zelvane.desktop"].decode())

        self.assertEqual(entry["Desktop Entry"]["Exec"], "zelvane")
        self.assertEqual(entry["Desktop Entry"]["Icon"], "zelvane")

    def test_software_centres_understand_the_metainfo(self):
        told = subprocess.run(
            ["appstreamcli", "validate", "--no-net", "--pedantic",
             self.path("usr/share/metainfo/example.zelvane.Zelvane.metainfo.xml")],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

        self.assertEqual(told.returncode, 0, told.stdout)

    def test_the_metainfo_leads_to_the_desktop_entry_and_names_this_version(self):
        root = xml.etree.ElementTree.fromstring(
            self.files["usr/share/metainfo/example.zelvane.Zelvane.metainfo.xml"])

        self.assertEqual(root.findtext("launchable"), "zelvane.desktop")
        self.assertEqual(root.find("releases/release").get("version"), VERSION)

    def test_the_manual_page_reads_without_a_warning(self):
        told = subprocess.run(["man", "--warnings", "--local-file",
                               self.path("usr/share/man/man1/zelvane.1.gz")],
                              env={**os.environ, "MANWIDTH": "80", "LC_ALL": "C.UTF-8"},
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

        self.assertEqual(told.stderr, "")
        self.assertIn("erases the traces of browsing", told.stdout)

    def test_each_icon_has_the_size_that_its_folder_promises(self):
        for size in ICON_SIZES:
            picture = self.files[f"usr/share/icons/hicolor/{size}x{size}/apps/zelvane.png"]
            width, height = (int.from_bytes(picture[at:at + 4], "big") for at in (16, 20))
            self.assertEqual((width, height), (size, size))

    def test_the_program_tells_neither_where_it_was_built_nor_carries_symbols(self):
        program = self.files["usr/bin/zelvane"]

        for told in (b"/build/", b"CMakeFiles", b".symtab", b".debug_info"):
            self.assertNotIn(told, program)

    def test_the_sums_of_all_files_are_right(self):
        sums = run("dpkg-deb", "--info", DEB, "md5sums").decode()
        told = {line.split("  ")[1] for line in sums.splitlines()}

        self.assertEqual(told, set(CONTENT))


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout


lines.main()
