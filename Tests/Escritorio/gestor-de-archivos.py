#!/usr/bin/python3
"""Stands for a file manager: has org.freedesktop.FileManager1 and writes the folders that it is asked to show to a file."""
import sys

from gi.repository import Gio, GLib

INTERFAZ = """<node><interface name="org.freedesktop.FileManager1"><method name="ShowFolders">
<arg type="as" direction="in"/><arg type="s" direction="in"/></method></interface></node>"""


def atender(_bus, _quien, _ruta, _interfaz, _metodo, argumentos, llamada):
    with open(sys.argv[1], "a", encoding="utf-8") as pedidos:
        pedidos.writelines(uri + "\n" for uri in argumentos[0])
    llamada.return_value(None)


def al_bus(bus, _nombre):
    interfaz = Gio.DBusNodeInfo.new_for_xml(INTERFAZ).interfaces[0]
    bus.register_object("/org/freedesktop/FileManager1", interfaz, atender, None, None)


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.FileManager1", 0, al_bus, None, None)
GLib.MainLoop().run()
