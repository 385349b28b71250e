"""Sees things vanish from a folder, without asking whoever removes them and without looking at the
folder again and again."""

import ctypes
import os
import select
import struct
import time

from desktop.waiting import PATIENCE, TookTooLong

_IN_DELETE = 0x200
_IN_CLOEXEC = os.O_CLOEXEC
_HEADER = struct.Struct("iIII")  # watch, what happened, cookie, length of the name that follows
_libc = ctypes.CDLL(None, use_errno=True)


class Removals:
    """Counts what is removed from `folder` itself (not from folders in it) from here on. The system
    keeps some 16,000 removals for who is slow to read; after that it forgets."""

    def __init__(self, folder):
        self._descriptor = _checked(_libc.inotify_init1(_IN_CLOEXEC))
        _checked(_libc.inotify_add_watch(self._descriptor, os.fsencode(folder), _IN_DELETE))
        self._count = 0

    def __enter__(self):
        return self

    def __exit__(self, *reason):
        os.close(self._descriptor)

    def wait_for(self, count, seconds=PATIENCE):
        """Returns once so many things have been removed."""
        end = time.monotonic() + seconds
        while self._count < count:
            if not select.select([self._descriptor], [], [], max(0, end - time.monotonic()))[0]:
                raise TookTooLong(f"{seconds} s were not enough: {self._count} of {count} removed")
            self._count += _events(os.read(self._descriptor, 1 << 16))


def _events(data):
    count = at = 0
    while at < len(data):
        _, happened, _, length = _HEADER.unpack_from(data, at)
        at += _HEADER.size + length
        count += bool(happened & _IN_DELETE)
    return count


def _checked(result):
    if result < 0:
        number = ctypes.get_errno()
        raise OSError(number, os.strerror(number))
    return result
