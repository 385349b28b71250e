"""The line on which Chromium takes orders: two pipes, one message after another, a zero behind each.

    {"id": 1, "sessionId": "...", "method": "Input.dispatchKeyEvent", "params": {...}}
    {"id": 1, "result": {...}}   or   {"id": 1, "error": {"message": "..."}}
"""

import fcntl
import json
import os
import select
import subprocess
import time

from desktop import processes
from desktop.waiting import TookTooLong


ANSWER = 120  # seconds; only a failure ever takes so long


class Refused(LookupError):
    """What was asked for is not possible, or not yet."""


class DevTools:
    """A started Chromium and the line to it. Ask from one thread."""

    def __init__(self, command, **options):
        # The browser takes orders on its descriptor 3 and answers on 4.
        orders, self._orders = _pipe()
        self._answers, answers = _pipe()
        self.process = processes.start(
            ["bash", "-c", f'exec 3<&{orders} 4>&{answers} "$@"', "bash", *command,
             "--remote-debugging-pipe"],
            pass_fds=[orders, answers], stdin=subprocess.DEVNULL, start_new_session=True, **options)
        os.close(orders)
        os.close(answers)
        self._unread = b""
        self._number = 0

    def ask(self, method, session=None, seconds=ANSWER, **parameters):
        """Returns the answer; throws Refused for one that says no."""
        self._number += 1
        message = {"id": self._number, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        os.write(self._orders, json.dumps(message).encode() + b"\0")
        end = time.monotonic() + seconds
        while True:
            answer = self._next(end, method)
            if answer.get("id") != self._number:
                continue  # The browser tells of much that nobody has asked.
            if "error" in answer:
                raise Refused(f"{method}: {answer['error']['message']}")
            return answer["result"]

    def run(self, session, script):
        """What a script in a page comes to."""
        answer = self.ask("Runtime.evaluate", session, expression=script, awaitPromise=True,
                          returnByValue=True)
        if "exceptionDetails" in answer:
            raise Refused(json.dumps(answer["exceptionDetails"]))
        return answer["result"].get("value")

    def pages(self):
        """What is open: by identifier, the address."""
        return {target["targetId"]: target["url"]
                for target in self.ask("Target.getTargets")["targetInfos"]
                if target["type"] == "page"}

    def attach(self, page):
        return self.ask("Target.attachToTarget", targetId=page, flatten=True)["sessionId"]

    def hang_up(self):
        os.close(self._orders)
        os.close(self._answers)

    def _next(self, end, what):
        while b"\0" not in self._unread:
            left = end - time.monotonic()
            if left <= 0 or not select.select([self._answers], [], [], left)[0]:
                raise TookTooLong(f"Chromium did not answer: {what}")
            piece = os.read(self._answers, 1 << 20)
            if not piece:
                raise Refused(f"Chromium has gone: {what}")
            self._unread += piece
        message, self._unread = self._unread.split(b"\0", 1)
        return json.loads(message)


def _pipe():
    """Of descriptors that are in nobody's way."""
    low = os.pipe()
    high = [fcntl.fcntl(end, fcntl.F_DUPFD_CLOEXEC, 20) for end in low]
    for end in low:
        os.close(end)
    return high
