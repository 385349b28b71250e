"""The user's choices, as the program stores them in settings.json.

    { "format": 1, "applications": { "Zelvane": { "HomePage": { "StartPage": "about:blank" } },
                                     "/program/folder": { "Settings": { "Index5": "0" } } } }
"""

import json

OPTIONS = 16
TEMPORARY_FILES = 11
RECYCLE_BIN = 5


def stored(home, section, key):
    """The stored text, whichever application it is stored for, or None."""
    try:
        applications = json.loads(home.settings.read_text("utf-8"))["applications"]
    except FileNotFoundError:
        return None
    texts = (sections.get(section, {}).get(key) for sections in applications.values())
    return next((text for text in texts if text is not None), None)


def tick_only(home, program, *options):
    """Stores these of the cleaning options as ticked and all others as not, for a program that is
    not running. `program` is its file."""
    texts = {f"Index{number}": "1" if number in options else "0" for number in range(OPTIONS)}
    applications = {str(program.resolve().parent): {"Settings": texts}}
    home.settings.parent.mkdir(mode=0o700, exist_ok=True)
    home.settings.touch(mode=0o600)
    home.settings.write_text(json.dumps({"format": 1, "applications": applications}), "utf-8")
