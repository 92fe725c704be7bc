#!/usr/bin/python3
"""A file-sharing portal that shares nothing and mounts no folder: newer desktop portals do not start without one.

The interface is org.freedesktop.portal.Documents of https://flatpak.github.io/xdg-desktop-portal/
"""
from gi.repository import Gio, GLib

NOMBRE = "org.freedesktop.portal.Documents"
INTERFAZ = f"""<node><interface name="{NOMBRE}">
<method name="GetMountPoint"><arg type="ay" name="path" direction="out"/></method>
<property name="version" type="u" access="read"/>
</interface></node>"""


def responde(_bus, _quien, _ruta, _interfaz, _metodo, _argumentos, llamada):
    llamada.return_value(GLib.Variant("(ay)", (b"/nonexistent\0",)))


def version(_bus, _quien, _ruta, _interfaz, _propiedad):
    return GLib.Variant("u", 5)


def atiende(bus, _nombre):
    interfaz = Gio.DBusNodeInfo.new_for_xml(INTERFAZ).interfaces[0]
    bus.register_object("/org/freedesktop/portal/documents", interfaz, responde, version, None)


bucle = GLib.MainLoop()
Gio.bus_own_name(Gio.BusType.SESSION, NOMBRE, Gio.BusNameOwnerFlags.NONE, atiende, None, lambda *_: bucle.quit())
bucle.run()
