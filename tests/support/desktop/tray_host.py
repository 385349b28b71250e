#!/usr/bin/python3
"""A panel that shows status notifier items and their menus, without a picture of them.

It runs in a process of its own, because it is a program of its own: it comes, goes and comes back, and
programs wait for its answers. Start it with a `with` block; what is asked here goes to that process as
a line of JSON, and so does the answer."""

import json
import subprocess
import sys

if __package__:
    from desktop import processes

WATCHER = "org.kde.StatusNotifierWatcher"
WATCHER_PATH = "/StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
PROPERTIES = "org.freedesktop.DBus.Properties"
SECONDS_FOR_AN_ANSWER = 10


class TrayHost:
    """One panel. Every question is answered with what is so now. A hesitant one has only just come:
    whether it shows items it denies once, and when asked again it tells all programs that it does."""

    def __init__(self, hesitant=False):
        self._hesitant = hesitant
        self._process = None

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *reason):
        self.stop()

    def start(self):
        """Comes to the desktop; from its return on programs find it."""
        self._process = processes.start(["/usr/bin/python3", "-B", __file__,
                                         *(["hesitant"] if self._hesitant else [])],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self._process.stdout.readline()

    def stop(self):
        """Goes, as if it had crashed."""
        if self._process is not None:
            self._process.kill()
            self._process.wait()
            self._process.stdin.close()
            self._process.stdout.close()
            self._process = None

    def restart(self):
        self.stop()
        self.start()

    def tips(self):
        """Those of all items that are there."""
        return self._ask("tips")

    def menu(self):
        """The one item's menu, line by line: the label, and whether it has a mark; None for a line
        that cannot have one. A separator is "-"."""
        return [tuple(line) for line in self._ask("menu")]

    def activate(self):
        """A click on the one item."""
        self._ask("use", "Activate")

    def choose(self, label):
        """A click on a line of its menu."""
        self._ask("choose", label)

    def _ask(self, *question):
        self._process.stdin.write(json.dumps(question) + "\n")
        self._process.stdin.flush()
        answer = json.loads(self._process.stdout.readline())
        if "refused" in answer:
            raise LookupError(answer["refused"])
        return answer["answer"]


def serve():
    """What the other process does."""
    from gi.repository import Gio, GLib

    description = Gio.DBusNodeInfo.new_for_xml(f"""
      <node><interface name="{WATCHER}">
        <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
        <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
        <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
        <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
        <property name="ProtocolVersion" type="i" access="read"/>
        <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
        <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
        <signal name="StatusNotifierHostRegistered"/>
      </interface></node>""").interfaces[0]
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    items = []  # pairs of a bus name and a path
    hesitates, questions = "hesitant" in sys.argv, 0

    def forget(name):
        items[:] = [item for item in items if item[0] != name]

    def on_call(_bus, sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            told = arguments[0]
            item = (sender, told) if told.startswith("/") else (told, "/StatusNotifierItem")
            if item not in items:
                items.append(item)
                Gio.bus_watch_name_on_connection(bus, item[0], Gio.BusNameWatcherFlags.NONE, None,
                                                 lambda _bus, name: forget(name))
        invocation.return_value(None)

    def shows_items():
        nonlocal questions
        questions += 1
        if hesitates and questions == 2:
            bus.emit_signal(None, WATCHER_PATH, WATCHER, "StatusNotifierHostRegistered", None)
        return questions > 1 or not hesitates

    def on_get(_bus, _sender, _path, _interface, name):
        if name == "IsStatusNotifierHostRegistered":
            return GLib.Variant("b", shows_items())
        return {"RegisteredStatusNotifierItems":
                GLib.Variant("as", [name + path for name, path in items]),
                "ProtocolVersion": GLib.Variant("i", 0)}[name]

    def call(name, path, interface, method, arguments=None):
        """Goes on to answer others while it waits."""
        answers = []
        bus.call(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                 SECONDS_FOR_AN_ANSWER * 1000, None, lambda _bus, result: answers.append(result))
        while not answers:
            GLib.MainContext.default().iteration(True)
        return bus.call_finish(answers[0])

    def get(item, name):
        return call(*item, PROPERTIES, "Get", GLib.Variant("(ss)", (ITEM, name))).unpack()[0]

    def one_item():
        if len(items) != 1:
            raise LookupError(f"{len(items)} items are there")
        return items[0]

    def menu_lines():
        item = one_item()
        menu = (item[0], get(item, "Menu"))
        call(*menu, MENU, "AboutToShow", GLib.Variant("(i)", (0,)))
        layout = call(*menu, MENU, "GetLayout", GLib.Variant("(iias)", (0, -1, []))).unpack()[1]
        return menu, [(line[0], line[1]) for line in layout[2] if line[1].get("visible", True)]

    def shown(properties):
        if properties.get("type") == "separator":
            return "-", None
        label = properties.get("label", "").replace("__", "\0").replace("_", "").replace("\0", "_")
        return label, properties["toggle-state"] == 1 if "toggle-type" in properties else None

    def choose(label):
        menu, lines = menu_lines()
        for number, properties in lines:
            if shown(properties)[0] == label and properties.get("enabled", True):
                call(*menu, MENU, "Event",
                     GLib.Variant("(isvu)", (number, "clicked", GLib.Variant("s", ""), 0)))
                return
        raise LookupError(f"no line \"{label}\" can be chosen")

    def use(method):
        call(*one_item(), ITEM, method, GLib.Variant("(ii)", (0, 0)))

    def tips():
        told = []
        for item in list(items):
            try:
                told.append(get(item, "ToolTip")[2])
            except GLib.Error:
                pass  # It went just now.
        return told

    deeds = {"tips": tips,
             "menu": lambda: [shown(properties) for _, properties in menu_lines()[1]],
             "use": use, "choose": choose}

    def on_line(*_):
        line = sys.stdin.readline()
        if not line:
            loop.quit()
            return False
        name, *arguments = json.loads(line)
        try:
            answer = {"answer": deeds[name](*arguments)}
        except (LookupError, GLib.Error) as reason:
            answer = {"refused": str(reason)}
        print(json.dumps(answer), flush=True)
        return True

    loop = GLib.MainLoop()
    bus.register_object(WATCHER_PATH, description, on_call, on_get, None)
    Gio.bus_own_name_on_connection(bus, WATCHER, Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("ready", flush=True), None)
    GLib.io_add_watch(sys.stdin.fileno(), GLib.IO_IN | GLib.IO_HUP, on_line)
    loop.run()


if __name__ == "__main__":
    serve()
