"""The line on which Firefox takes orders: messages of JSON, the length of each before it.

    47:[0,1,"WebDriver:ExecuteScript",{"script":"..."}]     0, number, order, its parameters
    25:[1,1,null,{"value":null}]                            1, number, fault, answer
"""

import json
import socket

from glass.devtools import Refused

ANSWER = 120  # seconds; only a failure ever takes so long
ENTER = "\ue007"
_ELEMENT = "element-6066-11e4-a52e-4f735466cecf"


class Marionette:
    """`port` is in the profile's file of that name, once the browser listens. Scripts run in the
    window, where the browser's own code runs, or in the page."""

    def __init__(self, port):
        self._socket = socket.create_connection(("127.0.0.1", port), ANSWER)
        self._unread = b""
        self._number = 0
        try:
            self._read()  # It says who it is.
            # Whoever clicks waits for the server to be asked, not for the browser to be content.
            self._ask("WebDriver:NewSession", capabilities={
                "alwaysMatch": {"pageLoadStrategy": "none"}})
        except Exception:
            self.hang_up()
            raise

    def in_window(self, script, *arguments):
        """The script may wait; what it returns comes back."""
        self._ask("Marionette:SetContext", value="chrome")
        return self._run(script, arguments)

    def in_page(self, script, *arguments):
        self._ask("Marionette:SetContext", value="content")
        return self._run(script, arguments)

    def open(self, address):
        self._ask("Marionette:SetContext", value="content")
        self._ask("WebDriver:Navigate", url=address)

    def click(self, selector):
        self._ask("WebDriver:ElementClick", id=self._find(selector))

    def type_into(self, selector, text):
        self._ask("WebDriver:ElementSendKeys", id=self._find(selector), text=text)

    def type_address(self, address):
        """With all that comes of typing: what is suggested, and what is learnt."""
        field = self.in_window("window.focus(); gURLBar.focus(); gURLBar.select();"
                               "return gURLBar.inputField;")
        self._ask("WebDriver:ElementSendKeys", id=field[_ELEMENT], text=address + ENTER)

    def install(self, path):
        """An extension, for good."""
        return self._ask("Addon:Install", path=str(path), temporary=False)["value"]

    def quit(self):
        self._ask("Marionette:Quit", flags=["eAttemptQuit"])

    def hang_up(self):
        self._socket.close()

    def _run(self, script, arguments):
        return self._ask("WebDriver:ExecuteScript", script=script, args=arguments,
                         newSandbox=True)["value"]

    def _find(self, selector):
        self._ask("Marionette:SetContext", value="content")
        found = self._ask("WebDriver:FindElement", using="css selector", value=selector)
        return found["value"][_ELEMENT]

    def _ask(self, order, **parameters):
        self._number += 1
        message = json.dumps([0, self._number, order, parameters]).encode()
        self._socket.sendall(b"%d:%s" % (len(message), message))
        _, number, fault, answer = self._read()
        assert number == self._number, f"an answer to {number} for {self._number}"
        if fault:
            raise Refused(f"{order}: {fault['error']}: {fault['message']}")
        return answer

    def _read(self):
        while b":" not in self._unread:
            self._receive()
        length, self._unread = self._unread.split(b":", 1)
        while len(self._unread) < int(length):
            self._receive()
        message, self._unread = self._unread[:int(length)], self._unread[int(length):]
        return json.loads(message)

    def _receive(self):
        piece = self._socket.recv(1 << 20)
        if not piece:
            raise Refused("Firefox has gone")
        self._unread += piece
