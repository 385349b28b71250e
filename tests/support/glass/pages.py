"""The pages of one journey through the web: every part of each carries a token of its own.

The pages hang together by what a hand does: the first is a link all over, to the second, and so on.
Each tells the server when all that it was to leave behind is stored.
"""

import gzip
import zlib

import brotli
import zstandard

from glass import tokens
from glass.picture import png_of
from glass.server import Answer
from glass.tokens import CACHE, COOKIES, FORMS, HISTORY, KEEP, NEVER, TYPED

_LONG = {"Cache-Control": "max-age=86400"}
_WHOLE_WINDOW = ("position:fixed;top:0;left:0;width:100%;height:100%;display:block;"
                 "box-sizing:border-box")
_PACK = {"gzip": gzip.compress, "deflate": zlib.compress, "br": brotli.compress,
         "zstd": zstandard.ZstdCompressor().compress}


class Journey:
    """`manifest` gets the tokens. Addresses, by what they are for, are in `addresses`."""

    def __init__(self, server, manifest, browser, profile):
        self._server = server
        self._manifest = manifest
        self._browser = browser
        self._profile = profile
        self._name = f"{browser}-{profile}"
        self.addresses = {}
        self.texts = {}  # what is to be typed
        self._make()

    def event(self, page):
        """The name under which a page tells that it is done."""
        return f"{self._name}-{page}"

    def token(self, kind, erased_by):
        token = tokens.new(kind, erased_by, self._browser, self._profile)
        self._manifest.tokens.append(token)
        return token.text

    def _make(self):
        # A page that links to another comes after it.
        self._make_typed()
        self._make_tabs()
        self._make_download()
        self._make_kept()
        self._make_form()
        self._make_secure()
        self._make_first()

    def _page(self, name, host, path, title, parts="", script="", icon="", headers=(), query=""):
        """Registers a page; its address is `addresses[name]`."""
        body = (f"<!doctype html><meta charset=utf-8><title>{title}</title>"
                f'<link rel=icon type="image/png" href="{icon or "/none.png"}">'
                f"<body>{parts}<script type=module>\n{script}\n"
                f"await fetch('/told/{self.event(name)}');\n</script>")
        address = self._server.serve(host, path, Answer(body, headers=headers))
        self.addresses[name] = address + query

    def _icon(self, host, kind, erased_by):
        path = f"/{self.token(kind, erased_by)}.png"
        picture = png_of(self.token(kind + "dots", erased_by))
        self._server.serve(host, path, Answer(picture, "image/png", _LONG))
        return path

    def _link(self, name, text="on"):
        """A link all over the window."""
        return f'<a href="{self.addresses[name]}" style="{_WHOLE_WINDOW}">{text}</a>'

    def _make_typed(self):
        host = f"{self.token('typedhost', TYPED)}.test"
        self._page("typed", host, f"/{self.token('typed', TYPED)}",
                   self.token("typedtitle", TYPED), icon=self._icon(host, "typedicon", TYPED))
        self.texts["search"] = self.token("search", TYPED)
        self.search_host = "search.test"
        self._server.serve(self.search_host, "/search", Answer(
            "<!doctype html><title>search</title><script>"
            "fetch('/told/' + new URLSearchParams(location.search).get('q'))</script>"))

    def _make_tabs(self):
        host = f"{self.token('tabhost', HISTORY)}.test"
        for name in ("closedtab", "opentab"):
            script = f"sessionStorage.kept = '{self.token(name + 'storage', COOKIES)}';"
            self.texts["lasttitle"] = self.token(name + "title", HISTORY)
            self._page(name, host, f"/{self.token(name, HISTORY)}",
                       self.texts["lasttitle"], script=script,
                       icon=self._icon(host, name + "icon", HISTORY))
        private = f"{self.token('privatehost', NEVER)}.test"
        self._page("private", private, f"/{self.token('private', NEVER)}",
                   self.token("privatetitle", NEVER), headers={
                       "Set-Cookie": f"a={self.token('privatecookie', NEVER)}; Max-Age=604800"})

    def _make_download(self):
        host = f"{self.token('downloadhost', HISTORY)}.test"
        self.file_name = f"{self.token('downloadname', HISTORY)}.bin"
        answer = Answer(b"downloaded", "application/octet-stream",
                        {"Content-Disposition": f'attachment; filename="{self.file_name}"'})
        self.addresses["file"] = self._server.serve(
            host, f"/get/{self.token('download', HISTORY)}", answer)
        self._page("download", host, f"/from/{self.token('referrer', HISTORY)}", "download",
                   self._link("file"), headers={"Referrer-Policy": "unsafe-url"})

    def _make_kept(self):
        """Bookmarked, and visited as well."""
        host = f"{self.token('bookmarkhost', KEEP)}.test"
        self.texts["bookmark"] = self.token("bookmarktitle", KEEP)
        icon = self._icon(host, "bookmarkicon", KEEP)
        self._page("kept", host, f"/{self.token('bookmark', KEEP)}", self.texts["bookmark"],
                   self._link("download"), icon=icon)
        self.addresses["keptsicon"] = f"http://{host}:{self._server.port}{icon}"

    def _make_form(self):
        """A field that a hand types into, posted, so that no address holds it."""
        host = f"{self.token('formhost', HISTORY)}.test"
        self.texts["field"] = self.token("field", FORMS)
        self._page("posted", host, "/posted", "posted", self._link("kept"))
        self._page("form", host, "/form", "form",
                   f'<form action="/posted" method=post><input name=comment '
                   f'style="{_WHOLE_WINDOW}"></form>')

    def _make_secure(self):
        """On a host that counts as safe from listeners: a service worker, its cache, and packings
        that are used nowhere else."""
        self.secure_host = host = f"{self.token('workerhost', HISTORY)}.localhost"
        worker = f"// {self.token('worker', COOKIES)}\nonfetch = () => {{}};\n"
        self._server.serve(host, "/worker.js", Answer(worker, "text/javascript"))
        self._server.serve(host, "/stored",
                           Answer(f"stored {self.token('cacheapi', COOKIES)}", "text/plain"))
        script = f"""
            {self._fetch(host, "br")} {self._fetch(host, "zstd")}
            await navigator.serviceWorker.register('/worker.js');
            await navigator.serviceWorker.ready;
            await (await caches.open('journey')).add('/stored');"""
        self._page("secure", host, "/secure", self.token("workertitle", HISTORY),
                   self._link("form"), script)

    def _make_first(self):
        """Visited, never typed: cookies, what scripts store, what the cache keeps."""
        host = f"{self.token('host', HISTORY)}.test"
        week = "Max-Age=604800; Path=/"
        cookies = {**_LONG,
                   "Set-Cookie": [f"kept={self.token('cookie', COOKIES)}; {week}",
                                  f"{self.token('cookiename', COOKIES)}=1; {week}",
                                  f"session={self.token('sessioncookie', COOKIES)}; Path=/"]}
        script = f"""
            localStorage.{self.token("localkey", COOKIES)} = 1;
            localStorage.kept = '{self.token("localstorage", COOKIES)}';
            localStorage.long = 'again '.repeat(500) + '{self.token("localstoragelong", COOKIES)}';
            sessionStorage.kept = '{self.token("sessionstorage", COOKIES)}';
            {self._fetch(host, "gzip")} {self._fetch(host, "deflate")}
            {self._database()}"""
        parts = [self._link("secure"), *(self._part(host, kind)
                                         for kind in ("image", "script", "style")),
                 f"<!-- {self.token('pagebody', CACHE)} -->"]
        self._page("first", host, f"/{self.token('address', HISTORY)}",
                   self.token("title", HISTORY), "".join(parts), script,
                   self._icon(host, "icon", HISTORY), cookies,
                   query=f"?q={self.token('query', HISTORY)}")

    def _database(self):
        """Puts a short value, and one that is worth packing."""
        return f"""
            await new Promise((done, fault) => {{
              const opening = indexedDB.open('journey', 1);
              opening.onupgradeneeded = () => opening.result.createObjectStore('things');
              opening.onerror = fault;
              opening.onsuccess = () => {{
                const writing = opening.result.transaction('things', 'readwrite');
                const things = writing.objectStore('things');
                things.put('{self.token("indexeddb", COOKIES)}', 'short');
                things.put('again '.repeat(500) + '{self.token("indexeddblong", COOKIES)}', 'long');
                things.put(1, '{self.token("indexeddbkey", COOKIES)}');
                writing.oncomplete = () => {{ opening.result.close(); done(); }};
              }};
            }});"""

    def _part(self, host, kind):
        text = self.token(kind, CACHE)
        path, body, type_, part = {
            "image": ("/image.png", png_of(text), "image/png", '<img src="{0}">'),
            "script": ("/script.js", f"// {text}\n", "text/javascript",
                       '<script src="{0}"></script>'),
            "style": ("/style.css", f"/* {text} */\n", "text/css",
                      '<link rel=stylesheet href="{0}">'),
        }[kind]
        self._server.serve(host, path, Answer(body, type_, _LONG))
        return part.format(path)

    def _fetch(self, host, way):
        """Fetches a text that the server has packed."""
        text = "again and again " * 20 + self.token("packed" + way, CACHE)
        body = _PACK[way](text.encode())
        self._server.serve(host, f"/packed.{way}",
                           Answer(body, "text/plain", {**_LONG, "Content-Encoding": way}))
        return f"await (await fetch('/packed.{way}')).text();"
