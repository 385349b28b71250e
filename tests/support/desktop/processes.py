"""Child processes that never outlive the one that started them."""

import contextlib
import ctypes
import os
import pathlib
import signal
import subprocess
import time

_PR_SET_PDEATHSIG = 1
_PR_SET_CHILD_SUBREAPER = 36
_libc = ctypes.CDLL(None, use_errno=True)


def adopt_orphans():
    """From here on, what a child leaves running becomes a child of this process, so that
    `end_all` finds it: the services that a session bus starts, for one."""
    _libc.prctl(_PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)


def start(command, **options):
    """Like subprocess.Popen; the process also ends when this one is killed."""
    def end_with_parent():
        _libc.prctl(_PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0)
    return subprocess.Popen(command, preexec_fn=end_with_parent, **options)


def end(process, seconds=5):
    """Asks the process to end, and makes it where it does not."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(seconds)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


def kill_all_of(home):
    """Every process that was started for the user of that home, whoever started it."""
    mark = b"\0HOME=" + os.fsencode(home) + b"\0"
    for environment in pathlib.Path("/proc").glob("[0-9]*/environ"):
        try:
            if mark in b"\0" + environment.read_bytes():
                _signal(int(environment.parent.name), signal.SIGKILL)
        except (FileNotFoundError, PermissionError, ProcessLookupError):
            pass  # It ended just now, or is somebody else's.


def end_all(seconds=5):
    """Ends every child, the adopted ones too."""
    limit = time.monotonic() + seconds
    while children := _children():
        for pid in children:
            _signal(pid, signal.SIGTERM if time.monotonic() < limit else signal.SIGKILL)
        _reap()
        time.sleep(0.01)


def _children():
    pids = []
    for task in pathlib.Path("/proc/self/task").iterdir():
        with contextlib.suppress(FileNotFoundError, ProcessLookupError):  # It ended just now.
            pids += [int(pid) for pid in (task / "children").read_text().split()]
    return pids


def _signal(pid, number):
    try:
        os.kill(pid, number)
    except ProcessLookupError:
        pass  # It ended just now.


def _reap():
    try:
        while os.waitpid(-1, os.WNOHANG)[0]:
            pass
    except ChildProcessError:
        pass  # None is left.
