"""The user's choices, as the program stores them in settings.json.

    { "format": 1, "applications": { "Zelvane": { "HomePage": { "StartPage": "about:blank" } },
                                     "/program/folder": { "Settings": { "Index5": "0" } } } }
"""

import json


def stored(home, section, key):
    """The stored text, whichever application it is stored for, or None."""
    try:
        applications = json.loads(home.settings.read_text("utf-8"))["applications"]
    except FileNotFoundError:
        return None
    texts = (sections.get(section, {}).get(key) for sections in applications.values())
    return next((text for text in texts if text is not None), None)
