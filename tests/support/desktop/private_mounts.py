"""Mounts that only this process and its children see.

A program that empties the trash of every mounted volume must never meet the machine's own. So the
desktop enters a user and mount namespace (a plain user may, where the system allows it), and there
lays an empty file system over each trash folder that is not the home's. The same right gives a
second volume to try the program on. The user's number stays what it is, and programs that a plain
user starts from here have no more rights than before: an exec drops them.
"""

import ctypes
import os
import pathlib

_CLONE_NEWNS = 0x00020000
_CLONE_NEWUSER = 0x10000000
_MS_NOSUID, _MS_NODEV = 2, 4
_MS_REC, _MS_PRIVATE = 16384, 1 << 18
_MNT_DETACH = 2
_libc = ctypes.CDLL(None, use_errno=True)


def enter():
    """Enters the namespace. False where the system does not allow it; then nothing has changed. To
    be called before the first thread starts."""
    user, group = os.getuid(), os.getgid()
    if not _tried_in_a_child():
        return False
    _enter(user, group)
    return True


def mount_volume(path):
    """Mounts an empty volume in memory on `path`."""
    _checked(_libc.mount(b"tmpfs", os.fsencode(path), b"tmpfs", _MS_NOSUID | _MS_NODEV, b"size=8m"))


def unmount_below(folder):
    """Lets go of the volumes mounted in the folder, so that it can be removed."""
    for point in _mount_points():
        if point.is_relative_to(folder):
            _libc.umount2(os.fsencode(point), _MNT_DETACH)


def foreign_trash_folders():
    """Those of this user on all mounted volumes but the home's own trash, which the environment
    names. One that is covered is no longer among them."""
    user = os.getuid()
    names = (f".Trash-{user}", f".Trash/{user}")
    volumes = _mount_points()
    return [volume / name for volume in volumes for name in names
            if volume / name not in volumes and _is_folder(volume / name)]


def cover_foreign_trash():
    for folder in foreign_trash_folders():
        mount_volume(folder)


def _mount_points():
    lines = pathlib.Path("/proc/self/mountinfo").read_bytes().splitlines()
    # Blanks and the like in the fifth field are written as \040.
    fields = (line.split()[4].decode("unicode_escape").encode("latin-1") for line in lines)
    return {pathlib.Path(os.fsdecode(field)) for field in fields}


def _is_folder(path):
    try:
        return path.is_dir()
    except OSError:
        return False  # Not ours to look into, so not ours to empty.


def _tried_in_a_child():
    """A system may allow the namespace and refuse the mounts; there is no way back from that."""
    child = os.fork()
    if child == 0:
        try:
            _enter(os.getuid(), os.getgid())
            mount_volume("/proc")
            os._exit(0)
        except OSError:
            os._exit(1)
    return os.waitpid(child, 0)[1] == 0


def _enter(user, group):
    _checked(_libc.unshare(_CLONE_NEWUSER | _CLONE_NEWNS))
    pathlib.Path("/proc/self/setgroups").write_text("deny", "ascii")
    pathlib.Path("/proc/self/uid_map").write_text(f"{user} {user} 1", "ascii")
    pathlib.Path("/proc/self/gid_map").write_text(f"{group} {group} 1", "ascii")
    _checked(_libc.mount(None, b"/", None, _MS_REC | _MS_PRIVATE, None))


def _checked(result):
    if result != 0:
        number = ctypes.get_errno()
        raise OSError(number, os.strerror(number))
