"""Numbers that browsers make of an address or a host, and keep in its stead.

A profile may hold no address any more and still tell anyone with a list of addresses which of them
were visited.
"""

import base64
import hashlib
import urllib.parse

_GOLDEN = 0x9E3779B9
_MASK = 0xFFFFFFFF
_LONGEST = 1500  # letters that count


def firefox_address(address):
    """The column url_hash of Firefox: 16 bits of the scheme, 32 bits of the whole."""
    text = address.encode()[:_LONGEST]
    scheme, colon, _ = text[:50].partition(b":")
    head = _rolling(scheme) & 0xFFFF if colon else 0
    return (head << 32) + _rolling(text)


def chromium_address(salt, address):
    """An entry of Chromium's file "Visited Links", as its bytes stand there."""
    return hashlib.md5(salt + address.encode()).digest()[:8]


def transport_host(address):
    """How Chromium's file TransportSecurity names a host: its labels, each after its length."""
    host = urllib.parse.urlsplit(address).hostname
    wire = b"".join(bytes([len(label)]) + label.encode() for label in host.split(".")) + b"\0"
    return base64.b64encode(hashlib.sha256(wire).digest())


def _rolling(text):
    value = 0
    for letter in text:
        turned = (value << 5 | value >> 27) & _MASK
        value = (turned ^ letter) * _GOLDEN & _MASK
    return value
