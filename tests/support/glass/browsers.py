"""The real browsers, used by hand: each journeys through the web in a profile of a home."""

import subprocess

from desktop import processes
from desktop.waiting import TookTooLong, wait_until

from glass import sqlite_store
from glass.hands import Hands
from glass.pages import Journey

CLICKS = 12  # a page that was only just shown takes no clicks


class Browser:
    """One profile of a browser. It is closed by its user, or killed."""

    title = ""
    name = ""

    def __init__(self, desktop, home, server, manifest, profile):
        self.profile = profile
        self.folder = self._folder(home)
        self.journey = Journey(server, manifest, self.name, profile)
        self._desktop = desktop
        self._home = home
        self._server = server
        self._hands = Hands(self.title)
        self._process = None
        self._prepare()

    def start_as_from_menu(self):
        """Without an address: it opens what it is set to."""
        self._start()

    def start(self, address="about:blank"):
        self._start(address)

    def _start(self, *addresses):
        log = open(self._home.runtime / f"{self.name}.log", "ab")
        self._process = processes.start(
            [*self._command(), *addresses], env=self._desktop.environment(self._home),
            cwd=self._home.home, stdin=subprocess.DEVNULL, stdout=log, stderr=log,
            start_new_session=True)
        self._hands.wait_for_window()

    def travel(self):
        """Goes through all pages of the journey, and leaves the last one open."""
        hands, journey = self._hands, self.journey
        self.start(journey.addresses["first"])
        self._server.wait_for(journey.event("first"))
        for page in ("secure", "form"):
            self._click_to(page)
        self._fill_in()
        self._click_to("kept")
        self._bookmark()
        self._click_to("download")
        self._download()
        hands.go_to(journey.addresses["typed"].removeprefix("http://"))
        self._server.wait_for(journey.event("typed"))
        hands.press("ctrl+t")
        hands.go_to(journey.addresses["closedtab"])
        self._server.wait_for(journey.event("closedtab"))
        hands.press("ctrl+w")
        hands.press("ctrl+t")
        hands.go_to(journey.addresses["opentab"])
        self._server.wait_for(journey.event("opentab"))

    def close(self):
        self._hands.press(self.quit_keys)
        wait_until(lambda: self._process.poll() is not None, f"{self.name} ends", 30)
        self._hands.forget_window()

    def kill(self):
        """With all that it has started."""
        processes.kill_all_of(self._home.home)
        self._process.wait()
        self._hands.forget_window()

    def _fill_in(self):
        def act():
            self._hands.click_page()
            self._hands.type(self.journey.texts["field"])
            self._hands.press("Return")
        self._until_told("posted", act)

    def _click_to(self, page):
        self._until_told(page, self._hands.click_page)

    def _until_told(self, page, act):
        for _ in range(CLICKS):
            # A second click on a page that is on its way would lead on from it too early.
            if self.journey.addresses[page] not in self._server.visited:
                act()
            try:
                return self._server.wait_for(self.journey.event(page), 1)
            except TookTooLong:
                continue
        raise TookTooLong(f"{CLICKS} clicks did not lead to the page \"{page}\"")

    def _download(self):
        """Until it is asked for: not every browser finishes one from a server like this."""
        for _ in range(CLICKS):
            self._hands.click_page()
            try:
                return wait_until(
                    lambda: self.journey.addresses["file"] in self._server.visited, "", 1)
            except TookTooLong:
                continue
        raise TookTooLong(f"{CLICKS} clicks did not begin the download")

    def _bookmark(self):
        self._hands.press("ctrl+d")

        def bookmarked():
            self._hands.press("Return")  # to the question that comes with it
            return self._is_bookmarked()
        wait_until(bookmarked, f"{self.name} has stored the bookmark")


class Firefox(Browser):
    name = "firefox"
    title = "Mozilla Firefox"
    quit_keys = "ctrl+q"

    PREFERENCES = {
        "network.dns.forceResolve": '"127.0.0.1"',
        "browser.aboutwelcome.enabled": "false",
        "datareporting.policy.dataSubmissionEnabled": "false",
        "browser.shell.checkDefaultBrowser": "false",
        "browser.startup.homepage_override.mstone": '"ignore"',
        "browser.warnOnQuit": "false",
        "browser.tabs.warnOnClose": "false",
        "dom.security.https_first": "false",
        "dom.security.https_first_schemeless": "false",
    }

    def _folder(self, home):
        return home.config / "mozilla" / "firefox" / "abcd.default"

    def _prepare(self):
        self.folder.mkdir(parents=True)
        lines = [f'user_pref("{name}", {value});\n' for name, value in self.PREFERENCES.items()]
        (self.folder / "user.js").write_text("".join(lines), "ascii")
        (self.folder.parent / "profiles.ini").write_text(
            f"[Profile0]\nName={self.profile}\nIsRelative=1\nPath={self.folder.name}\nDefault=1\n",
            "ascii")

    def _is_bookmarked(self):
        title = self.journey.texts["bookmark"].encode()
        return any(name == "moz_bookmarks.title" and title in cells
                   for name, cells in sqlite_store.columns(str(self.folder / "places.sqlite")))

    def _command(self):
        return ["firefox-esr", "--profile", str(self.folder), "--no-remote", "--width", "1000",
                "--height", "800"]


class Chromium(Browser):
    name = "chromium"
    title = "Chromium"
    quit_keys = "ctrl+shift+w"

    def _folder(self, home):
        return home.config / "chromium" / "Default"

    def _prepare(self):
        self.folder.mkdir(parents=True)

    def _is_bookmarked(self):
        bookmarks = self.folder / "Bookmarks"
        return bookmarks.exists() and self.journey.texts["bookmark"] in bookmarks.read_text("utf-8")

    def _command(self):
        return ["chromium", f"--user-data-dir={self.folder.parent}", "--profile-directory=Default",
                "--no-sandbox", "--no-first-run", "--password-store=basic",
                "--window-size=1000,800", "--window-position=0,0",
                "--host-resolver-rules=MAP * 127.0.0.1"]
