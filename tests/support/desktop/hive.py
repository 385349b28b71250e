"""The registry of the program's own, as its file holds it: registry.json.

    { "format": 1, "currentUser": KEY, ... }
    KEY:    { "keys": { name: KEY, ... }, "values": { name: VALUE, ... } }
    VALUE:  { "type": 1, "data": "a text and one zero\\u0000" }
"""

import json

TYPED_ADDRESSES = r"Software\Microsoft\Internet Explorer\TypedURLs"
RUN_HISTORY = r"Software\Microsoft\Windows\CurrentVersion\Explorer\RunMRU"
BROWSER = r"Software\Microsoft\Internet Explorer\Main"
AUTO_COMPLETE = r"Software\Microsoft\Windows\CurrentVersion\Explorer\AutoComplete"

_TEXT = 1


def path_of(home):
    return home.config / "zelvane" / "registry.json"


def write(home, keys):
    """Writes a whole hive. `keys` are dictionaries of texts by the path of their key below the
    current user's root."""
    root = {}
    for path, texts in keys.items():
        key = root
        for name in path.split("\\"):
            key = key.setdefault("keys", {}).setdefault(name, {})
        key["values"] = {name: {"type": _TEXT, "data": text + "\0"} for name, text in texts.items()}
    file = path_of(home)
    file.parent.mkdir(mode=0o700, exist_ok=True)
    file.touch(mode=0o600)
    file.write_text(json.dumps({"format": 1, "currentUser": root}, indent=2), "utf-8")


def texts(home, path):
    """The texts in a key of the current user, or None where there is no such key."""
    key = json.loads(path_of(home).read_text("utf-8")).get("currentUser", {})
    for name in path.split("\\"):
        key = key.get("keys", {}).get(name)
        if key is None:
            return None
    return {name: value["data"].rstrip("\0") for name, value in key.get("values", {}).items()}
