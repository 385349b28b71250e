"""The real browsers: each journeys through the web in a profile of a home.

Links are clicked and fields filled in on the browser's own line for orders, which clicks what is there
when it is there; pages cannot tell the difference. What is typed where addresses are typed takes the
same way as from a keyboard.
"""

import os
import pathlib
import signal
import subprocess

from desktop import processes
from desktop.waiting import TookTooLong, wait_until

from glass import hands
from glass.devtools import DevTools, Refused
from glass.extension import Extension
from glass.hands import Hands
from glass.marionette import ENTER, Marionette
from glass.pages import Journey
from glass.tokens import KEEP

TRIES = 8  # a page that was only just shown takes no clicks
STANDSTILL = 30  # seconds, in which any page has told
SOON = 5  # seconds; what has not come of a click by then never will
PATIENCE = 180  # seconds; both browsers at once, on a machine that has other work


class Browser:
    """One profile of a browser. It is closed by its user, or killed."""

    name = ""
    profile = ""

    def __init__(self, desktop, home, server, manifest):
        self.home = home
        self.folder = self._folder_in(home)
        self.journey = Journey(server, manifest, self.name, self.profile)
        self.extension = Extension(home.home.parent / f"{self.name}-{self.profile}", server,
                                   self.journey)
        self._desktop = desktop
        self._server = server
        self._process = None
        self.orders = None

    def at(self, home):
        """The same profile in a copy of the home, without a journey of its own."""
        other = object.__new__(type(self))
        other.__dict__.update(self.__dict__, home=home, folder=other._folder_in(home))
        return other

    def travel(self):
        """Goes through all pages of the journey, and leaves the last one open."""
        journey = self.journey
        self.start()
        # A browser that has only just started may drop what it was to open, or a part of it.
        self._until(lambda: self._server.was_told(journey.event("first")),
                    lambda: self.open(journey.addresses["first"]), "the first page", 30)
        self._extend()
        self._server.wait_for(self.extension.began, PATIENCE)
        for page in ("secure", "form"):
            self._until_told(page, self._click)
        self._until_told("posted", self._fill_in)
        self._until_told("kept", self._click)
        self._server.wait_for_visit(journey.addresses["keptsicon"])
        self._bookmark()
        self._until_told("download", self._click)
        self._until(lambda: journey.addresses["file"] in self._server.visited, self._click,
                    "the download begins")
        self.go_to("typed")
        self._open_tab()
        self.go_to("closedtab")
        self._close_tab()
        self._open_tab()
        self.go_to("opentab")
        self._keep_a_password(f"http://{self.journey.token('passwordhost', KEEP)}.test",
                              self.journey.token("user", KEEP))
        self._choose()
        wait_until(self._has_stored_it, f"{self.name} has stored its journey", PATIENCE)

    def go_to(self, page):
        """Types the page's address."""
        address = self.journey.addresses[page].removeprefix("http://")
        self._until_told(page, lambda: self._type(address))

    def go_back_to(self, page):
        """Where it has been on its journey."""
        self._server.forget(self.journey.event(page), self.journey.addresses[page])
        self.go_to(page)

    def kill(self):
        """With all that it has started."""
        if self._process and self._process.poll() is None:
            os.killpg(self._process.pid, signal.SIGKILL)
            self._ended()

    def freeze(self):
        os.killpg(self._process.pid, signal.SIGSTOP)

    def thaw(self):
        os.killpg(self._process.pid, signal.SIGCONT)

    def _ended(self):
        self._process.wait(PATIENCE)
        # Its other processes go a moment later than itself.
        wait_until(lambda: not _is_held_open(self.folder.parent), f"{self.name} lets go", PATIENCE)
        if self.orders:
            self.orders.hang_up()
            self.orders = None

    @property
    def _log_path(self):
        return self.home.runtime / f"{self.name}-{self.profile}.log"

    def _log(self):
        return open(self._log_path, "ab")

    def _until_told(self, page, act):
        address = self.journey.addresses[page]
        # A second click on a page that is on its way would lead on from it too early.
        self._until(lambda: address in self._server.visited, act, f"the page \"{page}\" is asked for")

        def told():
            return self._server.was_told(self.journey.event(page))
        # Now and then a page stands still before it has done anything, until it is loaded anew.
        if not self._server.wait_until(told, STANDSTILL):
            self._until(told, self._reload, f"the page \"{page}\" tells", STANDSTILL)

    def _until(self, done, act, what, seconds=SOON):
        reasons = []
        for _ in range(TRIES):
            try:
                act()
            except Refused as reason:
                reasons.append(str(reason))
            if self._server.wait_until(done, seconds):
                return
        raise TookTooLong(f"{TRIES} times were not enough: {what} {reasons}\n"
                          + "\n".join(self._server.last_visits()))

    def _has_stored_it(self):
        """So that a browser that is killed has left something."""
        wanted = [self.journey.texts["lasttitle"].encode(), self.journey.texts["bookmark"].encode()]
        stored = b"".join(path.read_bytes() for name in self.stored_in
                          for path in self.folder.glob(name))
        return all(text in stored for text in wanted)


class Firefox(Browser):
    name = "firefox"
    stored_in = ("places.sqlite*",)

    PREFERENCES = {
        "network.dns.forceResolve": '"127.0.0.1"',
        "browser.aboutwelcome.enabled": "false",
        "browser.bookmarks.editDialog.showForNewBookmarks": "false",
        "datareporting.policy.dataSubmissionEnabled": "false",
        "browser.shell.checkDefaultBrowser": "false",
        "browser.startup.homepage_override.mstone": '"ignore"',
        "browser.warnOnQuit": "false",
        "browser.tabs.warnOnClose": "false",
        "dom.security.https_first": "false",
        "dom.security.https_first_schemeless": "false",
        "xpinstall.signatures.required": "false",
        "extensions.autoDisableScopes": "0",
        "services.settings.load_dump": "false",  # megabytes of what every profile has
        "marionette.port": "0",
        # Otherwise it would be another browser, with other habits of storing.
        "remote.prefs.recommended": "false",
    }

    def start(self, address="about:blank"):
        """Without an address, as from a menu, it opens what it is set to."""
        listening = self.folder / "MarionetteActivePort"
        self.folder.mkdir(parents=True, exist_ok=True)
        listening.unlink(missing_ok=True)
        (self.folder / "user.js").write_text(
            "".join(f'user_pref("{name}", {value});\n' for name, value in self.PREFERENCES.items()),
            "ascii")
        with self._log() as log, hands.keyboard:  # a new window takes the keys from any other
            self._process = processes.start(
                ["firefox-esr", "--profile", str(self.folder), "--no-remote", "--marionette",
                 "--remote-allow-system-access", *([address] if address else [])],
                env=self._desktop.environment(self.home), cwd=self.home.home,
                stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True)
            # Whoever comes too early is sent away.
            self.orders = wait_until(lambda: self._listens(listening), "Firefox listens", PATIENCE,
                                     refused=(OSError, ValueError, Refused))

    def _listens(self, listening):
        if self._process.poll() is not None:
            raise AssertionError(f"Firefox ended with status {self._process.returncode}:\n"
                                 + self._log_path.read_text("utf-8", "replace")[-2000:])
        return Marionette(int(listening.read_text()))

    def close(self):
        self.orders.quit()
        self._ended()

    def open(self, address):
        """As from a link of another program."""
        self.orders.open(address)

    def _reload(self):
        self.orders.in_window("gBrowser.reload();")

    def _click(self):
        self.orders.click("a")

    def _fill_in(self):
        self.orders.type_into("input", self.journey.texts["field"] + ENTER)

    def _type(self, address):
        self.orders.type_address(address)

    def _bookmark(self):
        self.orders.in_window("return PlacesCommandHook.bookmarkPage();")

    def _extend(self):
        self.orders.install(self.extension.package)

    def _keep_a_password(self, address, user):
        self.orders.in_window("""
            const login = Cc["@mozilla.org/login-manager/loginInfo;1"].createInstance(Ci.nsILoginInfo);
            login.init(arguments[0], arguments[0], null, arguments[1], "secret", "", "");
            return Services.logins.addLoginAsync(login).then(() => null);""", address, user)

    def _choose(self):
        """A setting that is not the usual one."""
        self.orders.in_window("Services.prefs.setBoolPref('browser.tabs.loadInBackground', false);")

    def _open_tab(self):
        self.orders.in_window("BrowserCommands.openTab();")

    def _close_tab(self):
        self.orders.in_window("gBrowser.removeCurrentTab();")


class UsualFirefox(Firefox):
    """In the folder that today's versions make."""

    profile = "usual"

    @classmethod
    def _folder_in(cls, home):
        return home.config / "mozilla" / "firefox" / "abcd.default"

    @classmethod
    def list_profiles(cls, home):
        """Writes the browser's own list of its profiles."""
        (cls._folder_in(home).parent / "profiles.ini").write_text(
            "[Profile0]\nName=usual\nIsRelative=1\nPath=abcd.default\nDefault=1\n", "ascii")


class MovedFirefox(Firefox):
    """In a folder that its user has chosen, listed in the folder that older versions made."""

    profile = "moved"

    @classmethod
    def _folder_in(cls, home):
        return home.home / "Moved" / "my profile"

    @classmethod
    def list_profiles(cls, home):
        folder = home.home / ".mozilla" / "firefox"
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "profiles.ini").write_text(
            f"[Profile0]\nName=moved\nIsRelative=0\nPath={cls._folder_in(home)}\nDefault=1\n", "utf-8")


class Chromium(Browser):
    name = "chromium"
    title = "Chromium"
    stored_in = ("History*", "Bookmarks")
    profile = "default"
    folder_name = "Default"

    def start(self, address="about:blank"):
        with self._log() as log:
            self.orders = DevTools(
                ["chromium", f"--user-data-dir={self.folder.parent}",
                 f"--profile-directory={self.folder_name}", "--no-sandbox", "--no-first-run",
                 "--password-store=basic", f"--load-extension={self.extension.folder}",
                 "--disable-features=DisableLoadExtensionCommandLineSwitch",
                 # Its window may lie behind another's, and go on all the same.
                 "--disable-backgrounding-occluded-windows", "--disable-renderer-backgrounding",
                 "--window-size=1000,800", "--window-position=0,0",
                 "--host-resolver-rules=MAP * 127.0.0.1", *([address] if address else [])],
                env=self._desktop.environment(self.home), cwd=self.home.home, stdout=log, stderr=log)
        self._process = self.orders.process
        self._hands = Hands(self._process.pid, self.title)
        page = wait_until(lambda: next(iter(self.orders.pages()), None), "Chromium is there", PATIENCE)
        self._look_at(page)

    def close(self):
        self.orders.ask("Browser.close")
        self._ended()

    def in_page_of_its_own(self, address, script):
        """Runs a script in one of the browser's own pages, until that can do it."""
        page = self.orders.ask("Target.createTarget", url=address)["targetId"]
        session = self.orders.attach(page)
        wait_until(lambda: self.orders.run(session, script) is not False, script, PATIENCE)
        self.orders.ask("Target.closeTarget", targetId=page)

    @classmethod
    def list_profiles(cls, home):
        """It does so itself."""

    @classmethod
    def _folder_in(cls, home):
        return home.config / "chromium" / cls.folder_name

    def _look_at(self, page):
        self._page = page
        self._session = self.orders.attach(page)

    def open(self, address):
        """As from a link of another program."""
        self.orders.ask("Page.navigate", self._session, url=address, transitionType="link")

    def _reload(self):
        self.orders.ask("Page.reload", self._session)

    def _click(self):
        for kind in ("mousePressed", "mouseReleased"):
            self.orders.ask("Input.dispatchMouseEvent", self._session, type=kind, x=300, y=300,
                            button="left", clickCount=1)

    def _fill_in(self):
        self._click()
        self.orders.run(self._session, "document.querySelector('input').value = ''")
        for letter in self.journey.texts["field"] + "\r":
            self.orders.ask("Input.dispatchKeyEvent", self._session, type="char", text=letter)

    def _type(self, address):
        with hands.keyboard:
            self._hands.go_to(address)
            self._server.wait_until(lambda: f"http://{address}" in self._server.visited, SOON)

    def _bookmark(self):
        self.in_page_of_its_own("chrome://bookmarks/", f"""
            chrome.bookmarks.create({{parentId: '1', title: '{self.journey.texts["bookmark"]}',
                url: '{self.journey.addresses["kept"]}'}})""")

    def _extend(self):
        """It was told of it when it started."""

    def _keep_a_password(self, address, user):
        self.in_page_of_its_own("chrome://password-manager/passwords", f"""
            chrome.passwordsPrivate.addPassword({{url: '{address}', username: '{user}',
                password: 'secret', note: '', useAccountStore: false}})""")

    def _choose(self):
        """A setting that is not the usual one."""
        self.in_page_of_its_own("chrome://settings/", """
            chrome.settingsPrivate.setPref('webkit.webprefs.default_font_size', 21)""")

    def _open_tab(self):
        self._look_at(self.orders.ask("Target.createTarget", url="chrome://newtab/")["targetId"])

    def _close_tab(self):
        self.orders.ask("Target.closeTarget", targetId=self._page)
        wait_until(lambda: self._page not in self.orders.pages(), "the tab is closed")


class SecondChromium(Chromium):
    """Another user of the same browser."""
    profile = "second"
    folder_name = "Profile 1"


def _is_held_open(folder):
    """Whether any process has a file of the folder open."""
    below = f"{folder}/"
    for link in pathlib.Path("/proc").glob("[0-9]*/fd/*"):
        try:
            if os.readlink(link).startswith(below):
                return True
        except OSError:
            pass  # It ended just now, or is somebody else's.
    return False
