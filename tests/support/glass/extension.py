"""An extension for either browser, which keeps two texts and tells the server that it has them."""

import json
import zipfile

from glass.tokens import KEEP

IDENTITY = "kept@journey.test"

_SCRIPT = """
const api = globalThis.browser ?? chrome;

async function tell() {
  const stored = await api.storage.local.get('kept');
  if (!stored.kept) await api.storage.local.set({kept: '%(stored)s'});
  const database = await new Promise((done, fault) => {
    const opening = indexedDB.open('kept', 1);
    opening.onupgradeneeded = () => opening.result.createObjectStore('things');
    opening.onsuccess = () => done(opening.result);
    opening.onerror = fault;
  });
  const things = () => database.transaction('things', 'readwrite').objectStore('things');
  const found = await new Promise(done => {
    const asking = things().get('kept');
    asking.onsuccess = () => done(asking.result);
  });
  if (!found) await new Promise(done => {
    things().put('%(database)s', 'kept').onsuccess = done;
  });
  database.close();
  const what = stored.kept && found ? stored.kept + found : 'nothing';
  await fetch('%(address)s-' + what + '?' + Math.random(), {mode: 'no-cors'});
}

api.runtime.onStartup.addListener(tell);
api.runtime.onInstalled.addListener(tell);
"""


class Extension:
    """Of one profile: made in `folder`, which stays where it is."""

    def __init__(self, folder, server, journey):
        self.folder = folder
        self._event = journey.event("extension")
        texts = {"stored": journey.token("extensionstorage", KEEP),
                 "database": journey.token("extensiondatabase", KEEP),
                 "address": f"http://extension.test:{server.port}/told/{self._event}"}
        self._kept = texts["stored"] + texts["database"]
        folder.mkdir(parents=True)
        (folder / "told.js").write_text(_SCRIPT % texts, "ascii")
        (folder / "manifest.json").write_text(json.dumps({
            "manifest_version": 3, "name": "Kept", "version": "1.0", "permissions": ["storage"],
            "background": {"service_worker": "told.js", "scripts": ["told.js"]},
            # Otherwise Firefox asks for no address but those of "https:".
            "content_security_policy": {"extension_pages": "script-src 'self'"},
            "browser_specific_settings": {"gecko": {"id": IDENTITY}}}), "ascii")

    @property
    def package(self):
        """The same as one file."""
        path = self.folder.with_suffix(".xpi")
        with zipfile.ZipFile(path, "w") as archive:
            for file in self.folder.iterdir():
                archive.write(file, file.name)
        return path

    @property
    def began(self):
        """The event that it is there, and had nothing yet."""
        return f"{self._event}-nothing"

    @property
    def has_all(self):
        """The event that it is there, and has what it kept."""
        return f"{self._event}-{self._kept}"
