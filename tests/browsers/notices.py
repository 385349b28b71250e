"""The place of a desktop where short messages are shown, on the session bus of the tests."""

import threading

from gi.repository import Gio, GLib

from desktop.waiting import PATIENCE

_NAME = "org.freedesktop.Notifications"
_INTERFACE = f"""
<node>
  <interface name="{_NAME}">
    <method name="Notify">
      <arg type="s" direction="in"/> <arg type="u" direction="in"/> <arg type="s" direction="in"/>
      <arg type="s" direction="in"/> <arg type="s" direction="in"/> <arg type="as" direction="in"/>
      <arg type="a{{sv}}" direction="in"/> <arg type="i" direction="in"/>
      <arg type="u" direction="out"/>
    </method>
  </interface>
</node>"""


class Notices:
    """Is there as long as the `with` block lasts. `shown` are pairs of a title and a text."""

    def __enter__(self):
        self.shown = []
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        self._thread = threading.Thread(target=self._run)
        self._ready = threading.Event()
        self._thread.start()
        assert self._ready.wait(PATIENCE), "nobody shows messages"
        return self

    def __exit__(self, *reason):
        self._loop.quit()
        self._thread.join()

    def _run(self):
        self._context.push_thread_default()
        # A connection of its own, so that the name goes with it.
        bus = Gio.DBusConnection.new_for_address_sync(
            Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION),
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
        interface = Gio.DBusNodeInfo.new_for_xml(_INTERFACE).interfaces[0]
        bus.register_object("/org/freedesktop/Notifications", interface, self._called, None, None)
        owner = Gio.bus_own_name_on_connection(
            bus, _NAME, Gio.BusNameOwnerFlags.NONE, lambda *name: self._ready.set(), None)
        self._loop.run()
        Gio.bus_unown_name(owner)
        bus.close_sync()
        self._context.pop_thread_default()

    def _called(self, bus, sender, path, interface, method, arguments, call):
        _, _, _, title, text, *_ = arguments.unpack()
        self.shown.append((title, text))
        call.return_value(GLib.Variant("(u)", (len(self.shown),)))
