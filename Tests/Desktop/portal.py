"""A desktop's portal for settings on the session's bus."""
from gi.repository import Gio, GLib

NAME, PATH = "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop"
INTERFACE = "org.freedesktop.portal.Settings"
DESCRIPTION = f"""
<node>
  <interface name="{INTERFACE}">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
</node>"""
APPEARANCE, GNOME = "org.freedesktop.appearance", "org.gnome.desktop.interface"


class Portal:
    """Answers until the end of the block, whenever the main context runs."""

    def __init__(self, settings):
        """`settings` by (namespace, key) are GLib.Variants."""
        self._settings = dict(settings)

    def __enter__(self):
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        description = Gio.DBusNodeInfo.new_for_xml(DESCRIPTION).interfaces[0]
        self._object = self._bus.register_object(PATH, description, self._answer)
        self._name = Gio.bus_own_name_on_connection(self._bus, NAME, Gio.BusNameOwnerFlags.NONE)
        return self

    def __exit__(self, *_):
        Gio.bus_unown_name(self._name)
        self._bus.unregister_object(self._object)

    def set(self, namespace, key, value):
        self._settings[namespace, key] = value
        self._bus.emit_signal(None, PATH, INTERFACE, "SettingChanged", GLib.Variant("(ssv)", (namespace, key, value)))

    def _answer(self, bus, sender, path, interface, method, parameters, invocation):
        if (value := self._settings.get(parameters.unpack())) is None:
            invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "There is no such setting")
        else:
            # Portals wrap what this method answers twice.
            invocation.return_value(GLib.Variant("(v)", (GLib.Variant("v", value),)))
