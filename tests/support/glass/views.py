"""The ways in which a token may be written in plain sight, each a search of its own."""

import base64
import os
import re


def _utf16(text):
    """Of either order: the zero before the first letter, or the one after the last, is left out."""
    return text.encode("utf-16-le")[:-1]


def _base64(shift):
    """The letters that are the same whatever stands before and behind it, so many bytes off."""
    def encode(text):
        letters = base64.b64encode(b"\0" * shift + text.encode())
        behind = -(shift + len(text)) % 3
        return letters[(0, 2, 3)[shift]:len(letters) - (0, 2, 3)[behind]]
    return encode


# A token has no letter for which the base64 of addresses differs from the common one, or hardly:
# both are searched for.
ENCODINGS = {
    "plain": lambda text: text.encode(),
    "utf-16": _utf16,
    "backwards": lambda text: text[::-1].encode(),  # the host names of Firefox
    "base64": _base64(0),
    "base64+1": _base64(1),
    "base64+2": _base64(2),
    "hex": lambda text: text.encode().hex().encode(),
    "HEX": lambda text: text.encode().hex().upper().encode(),
}


class View:
    """One way of writing, all tokens at once. `meanings` are tokens by what they look like.
    `in_files`: only in the bytes of files, not in what these unfold to."""

    def __init__(self, name, meanings, in_files=False):
        self.name = name
        self.in_files = in_files
        self._meanings = meanings
        # Searching is quick for what all have in common at an end, slow for a choice.
        self._head = os.path.commonprefix(list(meanings))
        self._tail = os.path.commonprefix([seen[::-1] for seen in meanings])[::-1]
        self._lengths = sorted({len(seen) for seen in meanings}, reverse=True)
        self._choice = re.compile(b"|".join(map(re.escape, meanings)), re.DOTALL)

    def find(self, data):
        """Yields the places in the bytes, and the tokens there."""
        if common := self._head or self._tail:
            at = data.find(common)
            while at >= 0:
                yield from self._there(data, at)
                at = data.find(common, at + 1)
        else:
            for match in self._choice.finditer(data):
                yield match.start(), self._meanings[match.group()]

    def _there(self, data, at):
        """What begins at a place, or ends there where ends are what all have in common."""
        for length in self._lengths:
            start = at if self._head else at + len(self._tail) - length
            if start >= 0 and (token := self._meanings.get(data[start:start + length])):
                yield start, token
                return


def views_of(tokens, names=None):
    """A view for each way of writing, or for the named ones."""
    views = []
    for name, encode in ENCODINGS.items():
        if tokens and (names is None or name in names):
            meanings = {}
            for token in tokens:
                for seen in {encode(token.start), encode(token.core)}:
                    meanings[seen] = token
                    meanings[seen.translate(_FOR_ADDRESSES)] = token
            views.append(View(name, meanings))
    return views


_FOR_ADDRESSES = bytes.maketrans(b"+/", b"-_")
