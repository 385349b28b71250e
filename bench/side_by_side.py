#!/usr/bin/python3
"""What cleaners leave of real profiles: copies of the same journeys, cleaned by Zelvane, by BleachBit and by
the browsers themselves, and searched with the glass of tests/support/glass. Prints a table.

    bench/side_by_side.py PROGRAM
"""

import pathlib
import shutil
import subprocess
import sys

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "support"))

from desktop import checks  # noqa: E402
from desktop.virtual_desktop import VirtualDesktop  # noqa: E402
from glass.browsers import Chromium, UsualFirefox  # noqa: E402
from glass.tokens import CACHE, COOKIES, FORMS, HISTORY, KEEP, TYPED  # noqa: E402
from glass.travels import OPTIONS, Travels  # noqa: E402

ROWS = (HISTORY, TYPED, FORMS, COOKIES, CACHE, KEEP)
_FIREFOX_CLEARS = """
    const { Sanitizer } = ChromeUtils.importESModule("resource:///modules/Sanitizer.sys.mjs");
    return Sanitizer.sanitize(["history", "downloads", "formdata", "cookies", "offlineApps", "cache",
                               "sessions", "siteSettings"],
                              { range: null, ignoreTimespan: true }).then(() => null);"""
# Its dialog, with everything ticked but the passwords: true once it has closed. All of the journey was
# within the hour that it begins with.
_CHROMIUM_CLEARS = """
    (() => {
      const inside = root => [...root.querySelectorAll('*')].flatMap(
          element => [element, ...(element.shadowRoot ? inside(element.shadowRoot) : [])]);
      const all = inside(document);
      const button = all.find(element => element.id === 'deleteButton');
      if (!button || window.pressed) return !button && window.pressed === true;
      const more = all.find(element => element.id === 'showMoreButton');
      if (more && !window.unfolded) {
        more.click();
        window.unfolded = true;
        return false;
      }
      for (const box of all.filter(element => element.localName === 'settings-checkbox'))
        if (!box.checked && !box.pref.key.includes('password')) box.click();
      button.click();
      window.pressed = true;
      return false;
    })()"""


class OldFirefox(UsualFirefox):
    """The usual one in the folder that older versions made, which every cleaner knows."""

    @classmethod
    def _folder_in(cls, home):
        return home.home / ".mozilla" / "firefox" / "abcd.default"


def nobody(web, desktop):
    pass


def zelvane(web, desktop):
    web.clean(*OPTIONS.values())


def bleachbit(web, desktop):
    """With all that it offers for the two, but what erases passwords, and what erases nothing."""
    environment = desktop.environment(web.home)
    offered = subprocess.run(["bleachbit", "--list-cleaners"], env=environment, check=True,
                             capture_output=True, text=True).stdout.split()
    wanted = [name for name in offered if name.startswith(("firefox.", "chromium."))
              and not name.endswith(".passwords")]
    subprocess.run(["bleachbit", "--clean", *wanted], env=environment, check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def the_browsers_themselves(web, desktop):
    for browser in web.browsers:
        browser.start()
        if browser.name == "firefox":
            browser.orders.in_window(_FIREFOX_CLEARS)
        else:
            browser.in_page_of_its_own("chrome://settings/clearBrowserData", _CHROMIUM_CLEARS)
        browser.close()


CLEANERS = {"before": nobody, "Zelvane": zelvane, "BleachBit": bleachbit,
            "the browser itself": the_browsers_themselves}


def measure(desktop, path):
    """By browser and kind of trace: of each cleaner, how many tokens are still found, and where."""
    chains = ((OldFirefox,), (Chromium,))
    travels = Travels(desktop, path, chains)
    left = {}
    for name, clean in CLEANERS.items():
        web = travels.closed()
        clean(web, desktop)
        found = web.look().found
        for browser in web.browsers:
            for row in ROWS:
                tokens = {token.text: token.kind for token in web.manifest.of(
                    browser=browser.name, erased_by=row)}
                there = {tokens[hit.token] for hit in found if hit.token in tokens}
                left[browser.name, row, name] = there
                for hit in found:
                    if hit.token in tokens and name != "before" and row != KEEP:
                        print(f"# {name}: {row}: {hit.kind}: {hit.file} {hit.within} {hit.view}",
                              flush=True)
    return left


def table(left):
    yield "| browser | trace | " + " | ".join(CLEANERS) + " |"
    yield "|" + "---|" * (2 + len(CLEANERS))
    for browser, row in dict.fromkeys(key[:2] for key in left):
        counts = [str(len(left[browser, row, name])) for name in CLEANERS]
        yield f"| {browser} | {row} | {' | '.join(counts)} |"


def main():
    path = checks.program_path()
    if shutil.which("bleachbit") is None:
        sys.exit("Please install: bleachbit")
    with VirtualDesktop() as desktop:
        print("\n".join(table(measure(desktop, path))))


if __name__ == "__main__":
    main()
