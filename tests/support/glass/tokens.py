"""Texts that nobody else writes, one for each trace, and the list of them beside a home.

A token has a tag, which says of what it is the trace, and two random pieces:

    zq history k3v9 zq m2x8c7b1n0l5
    ^^ tag     ^^^^ ^^ ^^^^^^^^^^^^
    start           core

Programs shorten texts while their user is typing, and packers replace what they have seen before
by a reference. So either piece alone counts as the token: the start survives shortening, the core
packing, as nothing near it is like anything near another's. It is of small letters and digits only,
which no encoding of addresses alters.
"""

import dataclasses
import json
import secrets
import string

MARK = "zq"
_LETTERS = string.ascii_lowercase + string.digits

# What a user asks for when a kind is to go. KEEP: nothing that erases traces may touch it.
HISTORY, COOKIES, CACHE, TYPED, FORMS, KEEP = "history", "cookies", "cache", "typed", "forms", "keep"
# What must not be there in the first place.
NEVER = "never"


@dataclasses.dataclass(frozen=True)
class Token:
    text: str
    kind: str
    erased_by: str
    browser: str = ""
    profile: str = ""

    @property
    def start(self):
        return self.text[:len(MARK) + len(self.kind) + 4]

    @property
    def core(self):
        return self.text[len(self.start):]


def new(kind, erased_by, browser="", profile=""):
    text = MARK + kind + _random(4) + MARK + _random(12)
    return Token(text, kind, erased_by, browser, profile)


@dataclasses.dataclass
class Manifest:
    """All tokens of a home, and the addresses in which they were used: some stores keep no address
    but a number made from it."""
    tokens: list = dataclasses.field(default_factory=list)
    addresses: list = dataclasses.field(default_factory=list)

    def of(self, *, kind=None, browser=None, profile=None, erased_by=None):
        """The tokens of which all that is named here is true."""
        wanted = {"kind": kind, "browser": browser, "profile": profile, "erased_by": erased_by}
        return [token for token in self.tokens
                if all(value in (None, getattr(token, name)) for name, value in wanted.items())]

    def tokens_in(self, text):
        return [token for token in self.tokens if token.text in text]

    def save(self, path):
        path.write_text(json.dumps({"tokens": [dataclasses.asdict(token) for token in self.tokens],
                                    "addresses": self.addresses}, indent=1), "ascii")

    @staticmethod
    def load(path):
        stored = json.loads(path.read_text("ascii"))
        return Manifest([Token(**token) for token in stored["tokens"]], stored["addresses"])


def _random(length):
    return "".join(secrets.choice(_LETTERS) for _ in range(length))
