"""A web server on this machine, for every host name: each test registers what it serves."""

import collections
import http.server
import threading
import urllib.parse

from desktop.waiting import PATIENCE, TookTooLong


class Answer:
    def __init__(self, body, kind="text/html; charset=utf-8", headers=(), status=200):
        self.body = body.encode() if isinstance(body, str) else body
        self.kind = kind
        self.headers = dict(headers)
        self.status = status


class _HttpServer(http.server.ThreadingHTTPServer):
    daemon_threads = True
    request_queue_size = 128  # two browsers that start ask for much at once

    def handle_error(self, request, client_address):
        """A killed browser hangs up."""


class Server:
    """Runs as long as the `with` block lasts. `visited` are all addresses that were asked for."""

    def __init__(self):
        self._answers = {}
        self._told = set()
        self._turns = collections.Counter()
        self._last_visits = collections.deque(maxlen=10)
        self._changed = threading.Condition()
        self.visited = set()
        self._http = _HttpServer(("127.0.0.1", 0), self._handler())
        self.port = self._http.server_port

    def __enter__(self):
        threading.Thread(target=self._http.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *reason):
        self._http.shutdown()
        self._http.server_close()

    def serve(self, host, path, answer):
        """`answer` is one, or a function that makes it from the request's headers. Returns the
        address."""
        self._answers[f"{host}:{self.port}", path] = answer
        return f"http://{host}:{self.port}{path}"

    def wait_for(self, event, seconds=PATIENCE):
        """Waits until a page has fetched "/told/EVENT" from any host, each event once."""
        with self._changed:
            if not self._changed.wait_for(lambda: event in self._told, seconds):
                raise TookTooLong(f"{seconds} s were not enough: a page tells \"{event}\"; "
                                  f"told: {sorted(self._told)}")

    def wait_until(self, done, seconds):
        """Asks after each visit, and returns what it said last."""
        with self._changed:
            return self._changed.wait_for(done, seconds)

    def was_told(self, event):
        return event in self._told

    def last_visits(self):
        return list(self._last_visits)

    def forget(self, event, address=None):
        """So that it can be waited for once more, and the visit as well."""
        with self._changed:
            self._told.discard(event)
            self.visited.discard(address)

    def turns(self, name):
        """How often "/turn/NAME" was asked for, of any host."""
        return self._turns[name]

    def wait_for_visit(self, address, seconds=PATIENCE):
        if not self.wait_until(lambda: address in self.visited, seconds):
            raise TookTooLong(f"{seconds} s were not enough: {address} is asked for")

    def _answer(self, host, target, headers):
        path = urllib.parse.urlsplit(target).path
        with self._changed:
            if path.startswith("/told/"):
                self._told.add(path.removeprefix("/told/"))
                self._changed.notify_all()
                return Answer("", headers={"Cache-Control": "no-store"})
            if path.startswith("/turn/"):
                self._turns[path.removeprefix("/turn/")] += 1
                self._changed.notify_all()
                return Answer("", headers={"Cache-Control": "no-store"})
            self.visited.add(f"http://{host}{target}")
            self._last_visits.append(f"http://{host}{target}")
            self._changed.notify_all()
        answer = self._answers.get((host, path)) or self._answers.get((host, "*"))
        return answer(headers) if callable(answer) else answer or Answer("none", status=404)

    def _handler(self):
        server = self

        class Handler(http.server.BaseHTTPRequestHandler):
            protocol_version = "HTTP/1.1"

            def do_GET(self):
                answer = server._answer(self.headers["Host"], self.path, self.headers)
                self.send_response(answer.status)
                self.send_header("Content-Type", answer.kind)
                self.send_header("Content-Length", str(len(answer.body)))
                for name, value in answer.headers.items():
                    for one in value if isinstance(value, list) else [value]:
                        self.send_header(name, one)
                self.end_headers()
                self.wfile.write(answer.body)

            def do_POST(self):
                self.rfile.read(int(self.headers["Content-Length"] or 0))
                self.do_GET()

            def log_message(self, *arguments):
                pass

        return Handler
