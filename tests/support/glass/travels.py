"""Homes whose user has travelled with both browsers, in two profiles of each. A journey takes its time,
so there is one of each kind, and every test is given a copy."""

import concurrent.futures
import functools
import json
import subprocess

from desktop import accessible, settings
from desktop.program import Program
from desktop.waiting import TookTooLong, wait_until
from glass.browsers import PATIENCE, Chromium, MovedFirefox, SecondChromium, UsualFirefox
from glass.finder import Glass
from glass.server import Server
from glass.tokens import CACHE, COOKIES, HISTORY, TYPED, Manifest

OPTIONS = {TYPED: 2, CACHE: 6, COOKIES: 7, HISTORY: 9}  # by their numbers
# The profiles of one browser are used one after the other, both browsers at the same time.
CHAINS = ((UsualFirefox, MovedFirefox), (Chromium, SecondChromium))
# The file that the journey downloads is its user's, and the desktop's list of it another option's.
NOT_BROWSERS = ("Downloads/", ".local/share/recently-used.xbel")


class Travels:
    """On one desktop. All pages come from one server, which lasts as long as the process."""

    def __init__(self, desktop, path, chains=CHAINS):
        self._desktop = desktop
        self._path = path
        self._chains = chains
        self._homes = 0
        # A window may take a while to answer on a machine that has all hands full with browsers.
        accessible.Atspi.set_timeout(PATIENCE * 1000, PATIENCE * 1000)
        self.server = Server().__enter__()

    def closed(self):
        """All browsers were closed by their user."""
        return self._copy(self._travelled("close"))

    def killed(self):
        return self._copy(self._travelled("kill"))

    def cleaned(self):
        """The closed ones, with all four options."""
        return self._copy(self._cleaned())

    @functools.cache
    def _cleaned(self):
        web = self.closed()
        web.clean(*OPTIONS.values())
        return web

    @functools.cache
    def _travelled(self, end):
        web = Web(self._desktop, self._path, self._new_home(), Manifest())
        # A browser ends with the thread that has started it, so these stay until all have ended.
        with concurrent.futures.ThreadPoolExecutor(len(self._chains)) as pool:
            for travelled in [pool.submit(self._travel, web, kinds, end) for kinds in self._chains]:
                web.browsers += travelled.result()
        web.manifest.addresses = sorted(self.server.visited)
        # Its first start gives the browsers their start page. What a cleaning does is to be seen alone.
        with Program(self._path, self._desktop, web.home) as program:
            program.window()
        return web

    def _travel(self, web, kinds, end):
        browsers = []
        for kind in kinds:
            browser = kind(self._desktop, web.home, self.server, web.manifest)
            try:
                browser.travel()
                getattr(browser, end)()
            finally:
                browser.kill()  # whose window would be in the way of others
            kind.list_profiles(web.home)
            browsers.append(browser)
        return browsers

    def _copy(self, web):
        home = self._new_home()
        subprocess.run(["cp", "-a", f"{web.home.home}/.", home.home], check=True)
        copy = Web(self._desktop, self._path, home, web.manifest)
        for browser in web.browsers:
            copy.browsers.append(browser.at(home))
            browser.list_profiles(home)
        return copy

    def _new_home(self):
        self._homes += 1
        # Chromium puts a socket into the home's temporary folder, whose path may not be long.
        return self._desktop.new_home(f"w{self._homes}")


class Web:
    """A home, the tokens of its journeys, and its browsers."""

    def __init__(self, desktop, path, home, manifest):
        self.home = home
        self.manifest = manifest
        self.browsers = []
        self._desktop = desktop
        self._path = path

    def browser(self, kind):
        return next(browser for browser in self.browsers if type(browser) is kind)

    def look(self):
        """Searches all of it, as it is now."""
        found = Glass(self.manifest).search(self.home.home)
        assert not found.not_read, found.not_read
        return Look(self.manifest, [hit for hit in found.hits
                                    if not hit.file.startswith(NOT_BROWSERS)])

    def clean(self, *options):
        """With these alone of the options; returns the log."""
        settings.tick_only(self.home, self._path, *options)
        with Program(self._path, self._desktop, self.home) as program:
            window = program.window()
            window.begin_to_clean()
            return wait_until(lambda: window.end_of_run(60), "the run ends", PATIENCE,
                              refused=(TookTooLong,))

    def profile_names(self):
        """As each browser's own list has them."""
        state = json.loads((self.home.config / "chromium" / "Local State").read_text("utf-8"))
        names = {f"chromium {folder}": facts["name"]
                 for folder, facts in state["profile"]["info_cache"].items()}
        return {Chromium: f"Chromium ({names['chromium Default']})",
                SecondChromium: f"Chromium ({names['chromium Profile 1']})",
                UsualFirefox: "Firefox (usual)", MovedFirefox: "Firefox (moved)"}


class Look:
    """What was found."""

    def __init__(self, manifest, found):
        self.found = found
        self._manifest = manifest

    def hits(self, *erased_by, browser=None):
        """Of the tokens that these take away, as "kind: place" lines."""
        wanted = {token.text for token in self._manifest.tokens if token.erased_by in erased_by
                  and (browser is None
                       or (token.browser, token.profile) == (browser.name, browser.profile))}
        return sorted({f"{hit.kind}: {hit.file} {hit.within} {hit.view}" for hit in self.found
                       if hit.token in wanted})

    def kinds(self, *erased_by, browser=None):
        return {line.split(":")[0] for line in self.hits(*erased_by, browser=browser)}
