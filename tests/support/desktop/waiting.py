"""Waiting for a condition, never for a time."""

import time

PATIENCE = 20  # seconds; only a failure ever takes so long


class TookTooLong(AssertionError):
    """What was waited for did not come."""


def wait_until(condition, what, seconds=PATIENCE, refused=(LookupError,)):
    """Returns the first true answer of `condition`. An error of the kinds in `refused` counts as no
    answer yet; the last one is told when nothing better came."""
    end = time.monotonic() + seconds
    reason = ""
    while True:
        try:
            answer = condition()
            if answer:
                return answer
            reason = ""
        except refused as error:
            reason = f" ({error})"
        if time.monotonic() > end:
            raise TookTooLong(f"{seconds} s were not enough: {what}{reason}")
        time.sleep(0.01)
