"""A home as a person leaves it in a year, all of it made up."""

import os
import subprocess
import urllib.parse

from desktop import hive, private_mounts, processes
from desktop.waiting import PATIENCE, wait_until

from traces import Kept, KeptFolder, Trace, paths_left, recent_entries

DOCUMENTS = {
    "letter to the bank.txt": 1800,
    "holidays/packing list.txt": 400,
    "holidays/2025/Lisbon/tickets.pdf": 60_000,
    "taxes/2024/return.pdf": 90_000,
    "taxes/2025/return.pdf": 95_000,
    ".drafts/unsent.txt": 700,
    "Übersicht – größer.ods": 20_000,
    "read-only.txt": 300,
    "locked folder/contract.txt": 500,
}
TEMPORARY = {"build-1234.tmp": 30_000, "installer/step1.bin": 50_000, "installer/step2.bin": 50_000}
NOTE = "[Trash Info]\nPath={path}\nDeletionDate=2025-05-05T12:00:00\n"
BOOKMARK = '  <bookmark href="file://{path}" added="2025-06-01T10:00:00Z"/>\n'


class SampleHome:
    """Filled at once. `traces` and `kept` say what to look at; `close` lets go of open files."""

    def __init__(self, home, outside, volume=None):
        self._home = home
        self._outside = outside
        self._volume = volume
        self._holders = []
        self.traces = []
        self.kept = []
        home.name_documents()
        self._write_outside()
        self._write_documents()
        self._write_recent()
        self._write_temporary()
        self._write_trash()
        self._write_histories()
        self._copy_to_clipboard()
        self._write_other_programs()

    @property
    def documents(self):
        return self._home.documents

    @property
    def temporary(self):
        return self._home.temporary

    def look_before(self):
        for thing in self.traces + self.kept:
            thing.look_before()

    def look_after(self):
        for thing in self.traces + self.kept:
            thing.look_after()

    def close(self):
        for holder in self._holders:
            processes.end(holder)

    def _write_outside(self):
        """What links lead to. Nobody asked to erase it."""
        _write(self._outside / "victim.txt", 1234)
        _write(self._outside / "album" / "wedding.jpg", 40_000)
        self.kept.append(Kept("what links lead to, outside", [self._outside]))

    def _write_documents(self):
        documents = self._home.documents
        files = _write_all(documents, DOCUMENTS)
        (documents / "read-only.txt").chmod(0o444)
        (documents / "locked folder").chmod(0o555)
        links = [_link(documents / "link to a file", self._outside / "victim.txt"),
                 _link(documents / "holidays" / "link to a folder", self._outside / "album")]
        hidden = [_write(documents / ".secret", 100), _write(documents / "diary" / ".today", 900)]
        held = self._held_open(documents / "minutes" / "of today.txt")

        folders = [documents / name for name in
                   ("holidays/2025/Lisbon", "holidays", "taxes", ".drafts", "locked folder")]
        self._trace("documents, read-only ones too", "Clean Computer", "Clear My Documents Files",
                    files + folders)
        self._trace("links in the documents", "Clean Computer", "Clear My Documents Files", links)
        self.kept += [KeptFolder("the documents folder itself", [documents]),
                      Kept("hidden files and their folder", [*hidden, documents / "diary"]),
                      Kept("a document that is open", [held])]
        if self._volume:
            stick = documents / "a volume in a folder"
            stick.mkdir()
            private_mounts.mount_volume(stick)
            _write(stick / "backup.tar", 5000)
            self.kept.append(Kept("a volume mounted in a folder", [stick]))

    def _write_recent(self):
        list_file = self._home.data / "recently-used.xbel"
        folder = self._home.data / "RecentDocuments"
        documents = [self._home.documents / name for name in list(DOCUMENTS)[:3]]
        bookmarks = "".join(BOOKMARK.format(path=urllib.parse.quote(str(path)))
                            for path in documents)
        list_file.write_text('<?xml version="1.0" encoding="UTF-8"?>\n<xbel version="1.0">\n'
                             f"{bookmarks}</xbel>\n", "utf-8")
        folder.mkdir()
        for path in documents[:2]:
            (folder / f"{path.name}.desktop").write_text(
                f"[Desktop Entry]\nType=Link\nName={path.name}\nURL[$e]=file:{path}\n", "utf-8")
        self.traces.append(Trace("recent documents", "Clean Internet", "Clear Recent Files List",
                                 lambda: recent_entries(list_file, folder)))

    def _write_temporary(self):
        temporary = self._home.temporary
        files = _write_all(temporary, TEMPORARY)
        link = _link(temporary / "link out", self._outside / "album")
        held = self._held_open(temporary / "in use.tmp")
        self._trace("temporary files", "Clean Computer", "Windows Temp Directories",
                    [*files, temporary / "installer", link])
        self.kept += [Kept("a temporary file that is open", [held]),
                      KeptFolder("the folder for temporary files itself", [temporary])]

    def _write_trash(self):
        user = os.getuid()
        trashes = {"trash in the home": self._home.trash}
        if self._volume:
            trashes["trash on a second volume"] = self._volume / f".Trash-{user}"
            self.kept.append(Kept("files on the second volume",
                                  [_write(self._volume / "thesis.odt", 7000)]))
        for title, trash in trashes.items():
            files = [_write(trash / "files" / "old plan.txt", 2000),
                     _write(trash / "files" / "folder" / "deep" / "note.txt", 300)]
            notes = [_write_text(trash / "info" / f"{name}.trashinfo",
                                 NOTE.format(path=urllib.parse.quote(name)))
                     for name in ("old plan.txt", "folder")]
            link = _link(trash / "files" / "link", self._outside / "album")
            trash.chmod(0o700)
            self._trace(title, "Clean Computer", "Clear Recycle Bin",
                        [*files, trash / "files" / "folder", *notes, link])

    def _write_histories(self):
        hive.write(self._home, {
            hive.TYPED_ADDRESSES: {"url1": "https://example.org/", "url2": "bank.example.com"},
            hive.RUN_HISTORY: {"a": "calculator\\1", "b": "terminal\\1"},
            hive.BROWSER: {"Start Page": "https://slipped-in.example/"},
            hive.AUTO_COMPLETE: {"AutoSuggest": "no"},
        })
        for title, page, option, key in (
                ("typed addresses", "Clean Internet", "Clear Site Addresses",
                 hive.TYPED_ADDRESSES),
                ("Run history", "Clean Computer", 'Delete Windows start menu "run" history',
                 hive.RUN_HISTORY)):
            self.traces.append(Trace(title, page, option,
                                     lambda key=key: len(hive.texts(self._home, key) or {})))

    def _copy_to_clipboard(self):
        # xclip hands the text out for as long as it runs, and ends when the clipboard is taken.
        self._holders.append(processes.start(["xclip", "-quiet", "-selection", "clipboard"],
                                             stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                             stderr=subprocess.DEVNULL))
        self._holders[-1].stdin.write(b"a password")
        self._holders[-1].stdin.close()
        wait_until(clipboard_text, "the clipboard holds a text")
        self.traces.append(Trace("clipboard", "Clean Computer", "Clear Clipboard",
                                 lambda: bool(clipboard_text())))

    def _write_other_programs(self):
        """A cleaner that costs its user a setting is worse than none."""
        home = self._home.home
        files = [_write(home / name, 800) for name in
                 (".config/editor/editorrc", ".config/mail/accounts.ini", ".bashrc",
                  ".local/share/notes/notes.db", ".ssh/id_ed25519", "Pictures/cat.jpg",
                  "Desktop/shortcut.desktop", ".cache/editor/index")]
        self.kept.append(Kept("other programs' files and settings", files))

    def _trace(self, title, page, option, paths):
        self.traces.append(Trace(title, page, option, lambda: paths_left(paths)))

    def _held_open(self, path):
        _write(path, 600)
        with open(path, "rb") as file:
            self._holders.append(processes.start(["sleep", "infinity"], stdin=file))
        return path


def clipboard_text():
    """What a paste would give."""
    return subprocess.run(["xclip", "-o", "-selection", "clipboard"], capture_output=True,
                          text=True, timeout=PATIENCE).stdout


def _write(path, size):
    return _write_text(path, (f"{path.name}\n" * size)[:size])


def _write_text(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, "utf-8")
    return path


def _write_all(folder, sizes):
    return [_write(folder / name, size) for name, size in sizes.items()]


def _link(path, target):
    path.symlink_to(target)
    return path
