"""Real browsers in the demonstration: what they keep of a journey, and what of it a cleaning leaves."""

import importlib.util
import shutil

COMMANDS = ("firefox-esr", "chromium")
LIBRARIES = ("brotli", "lz4", "snappy", "zstandard")  # what browsers pack with


def missing():
    """What the journey needs and is not installed."""
    return ([command for command in COMMANDS if shutil.which(command) is None]
            + [f"python3-{name}" for name in LIBRARIES if importlib.util.find_spec(name) is None])


def show(desktop, program, report):
    """One home whose user travels with both browsers. It is cleaned twice: when both are closed, and
    in a copy with one of them open."""
    # Not before it is known that the libraries which these need are installed.
    from glass.browsers import Chromium, UsualFirefox
    from glass.tokens import CACHE, COOKIES, FORMS, HISTORY, KEEP, TYPED
    from glass.travels import OPTIONS, Travels

    goes = (HISTORY, CACHE, COOKIES, TYPED, FORMS)
    report.heading("Firefox and Chromium visit pages of a server on this machine")
    report.say("  Links, forms, a download, typed addresses, cookies, storage, a bookmark in each.")
    travels = Travels(desktop, program, chains=((UsualFirefox,), (Chromium,)))
    web = travels.closed()
    look = web.look()
    before = {browser.name: len(look.hits(*goes, browser=browser)) for browser in web.browsers}

    report.heading("Cleaning with both closed")
    web.clean(*OPTIONS.values())
    look = web.look()
    for browser in web.browsers:
        left = look.hits(*goes, browser=browser)
        report.say(f"  {browser.name:10} traces found before: {before[browser.name]:4}, "
                   f"after: {len(left):4}")
        report.check(f"Of what {browser.name} kept of the journey nothing is left",
                     before[browser.name] and not left, "\n".join(left))
        kept = look.kinds(KEEP, browser=browser)
        report.check(f"The bookmark of {browser.name} and its icon are there",
                     {"bookmarktitle", "bookmarkicondots"} <= kept, kept)
    for browser in web.browsers:
        browser.start()
        browser.close()
        report.check(f"{browser.name} starts again with what was left",
                     "bookmarktitle" in web.look().kinds(KEEP, browser=browser))

    report.heading("Cleaning with Chromium open")
    open_one = travels.closed()
    chromium = open_one.browser(Chromium)
    chromium.start()
    try:
        open_one.clean(*OPTIONS.values())
        look = open_one.look()
        report.check("The open browser keeps all that it had",
                     look.kinds(HISTORY, COOKIES, browser=chromium)
                     >= {"address", "title", "cookiename"})
        report.check("The closed one is cleaned all the same",
                     not look.hits(*goes, browser=open_one.browser(UsualFirefox)))
    finally:
        chromium.close()
