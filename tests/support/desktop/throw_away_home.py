"""A home that is nobody's: every folder that a program may take for its user's lies in it."""

import os
import pathlib
import pwd
import stat

# Set for a run in another part of the world: with names, a language and a clock of that place, and
# without a run-time folder.
ABROAD = "ZELVANE_TEST_ABROAD" in os.environ
OF_THE_PLACE = ("LANG", "LOCPATH", "TZ")


class ThrowAwayHome:
    """Made below `place`, which the caller removes."""

    def __init__(self, place):
        place = pathlib.Path(place).resolve()
        self.home = place / ("bizim ev ö" if ABROAD else "home")
        self.config = self.home / ".config"
        self.data = self.home / ".local" / "share"
        self.cache = self.home / ".cache"
        self.state = self.home / ".local" / "state"
        self.temporary = place / ("geçici ş" if ABROAD else "tmp")
        self.runtime = place / "run"
        for folder in self._folders():
            folder.mkdir(mode=0o700, parents=True, exist_ok=True)
        refuse_the_real_home(self._folders())

    @property
    def documents(self):
        return self.home / "Documents"

    @property
    def settings(self):
        return self.config / "zelvane" / "settings.json"

    @property
    def trash(self):
        return self.data / "Trash"

    def environment(self):
        """All variables of a program that lives here. Nothing of the caller's gets in but the path
        to programs, what is usual in this part of the world, and the sanitizers' wishes."""
        kept = {name: value for name, value in os.environ.items()
                if name == "PATH" or name in OF_THE_PLACE or name.endswith("SAN_OPTIONS")}
        user = pwd.getpwuid(os.getuid()).pw_name
        return {
            "PATH": "/usr/local/bin:/usr/bin:/bin", "LANG": "C.UTF-8", **kept,
            "USER": user, "LOGNAME": user,
            "HOME": str(self.home), "TMPDIR": str(self.temporary),
            "XDG_CONFIG_HOME": str(self.config), "XDG_DATA_HOME": str(self.data),
            "XDG_CACHE_HOME": str(self.cache), "XDG_STATE_HOME": str(self.state),
            **({} if ABROAD else {"XDG_RUNTIME_DIR": str(self.runtime)}),
        }

    def name_documents(self):
        """Makes the documents folder and tells the desktop of it, as an installation does."""
        self.documents.mkdir()
        entry = 'XDG_DOCUMENTS_DIR="$HOME/Documents"\n'
        (self.config / "user-dirs.dirs").write_text(entry, "utf-8")

    def files(self):
        """The paths of all that is in the home and is no folder, relative to it."""
        return sorted(str(path.relative_to(self.home)) for path in self.home.rglob("*")
                      if path.is_symlink() or not path.is_dir())

    def content(self):
        """What is in those files, by their paths; of a link, where it leads."""
        return {name: os.readlink(self.home / name) if (self.home / name).is_symlink()
                else (self.home / name).read_bytes() for name in self.files()}

    @staticmethod
    def mode(path):
        return stat.S_IMODE(os.lstat(path).st_mode)

    def _folders(self):
        return [self.home, self.config, self.data, self.cache, self.state, self.temporary,
                self.runtime]


def refuse_the_real_home(folders):
    """Throws where one of the folders is the caller's home or holds it. Being inside it is no harm:
    some keep their temporary files there."""
    homes = {pwd.getpwuid(os.getuid()).pw_dir, os.environ.get("HOME", "/")}
    for real in (pathlib.Path(home).resolve() for home in homes):
        for folder in folders:
            if real == folder or real.is_relative_to(folder):
                raise SystemExit(f"Refused: {folder} is, or holds, the home {real}.")
