#!/usr/bin/env bash
# Whoever calls Activate without a leave gets the panel shown, and the keyboard stays where somebody types; a press in
# the panel takes it. Where another program has Zorve's name on the bus, a start says so and tells it nothing.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
# shellcheck disable=SC2016 # the shell in the window expands it
arranca escribe xterm -geometry 40x8+40+700 -e sh -c 'while read -r linea; do echo "$linea" >>"$0"; done' "$casa/escrito"
con_teclado() { xprop -id "$(xdotool getactivewindow)" WM_CLASS 2>/dev/null | grep -q XTerm; }
espera con_teclado
zorve
gdbus call --session --dest com.sarnol.zorve --object-path /com/sarnol/zorve \
  --method org.freedesktop.Application.Activate '{}' >/dev/null
espera panel_visible
xdotool type hola
xdotool key Return
llego() { grep -qx hola "$casa/escrito"; }
espera llego
segundo
espera panel_visible
xdotool key Escape
espera no panel_visible
kill "$zorve_pid"
espera terminado "$zorve_pid"

cat >"$casa/ajeno.py" <<'FIN'
import gi, sys
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
nodo = Gio.DBusNodeInfo.new_for_xml(
    "<node><interface name='org.freedesktop.Application'><method name='Activate'>"
    "<arg type='a{sv}' direction='in'/></method></interface></node>")
def llamada(*que):
    print("called", flush=True)
    que[-1].return_value(None)
bus.register_object("/com/sarnol/zorve", nodo.interfaces[0], llamada, None, None)
Gio.bus_own_name_on_connection(bus, "com.sarnol.zorve", Gio.BusNameOwnerFlags.NONE, lambda *_: print("owned", flush=True), None)
GLib.MainLoop().run()
FIN
/usr/bin/python3 "$casa/ajeno.py" >"$casa/ajeno" 2>&1 &
hijos+=($!)
suyo() { grep -q owned "$casa/ajeno"; }
espera suyo
! DESKTOP_STARTUP_ID=secreto_TIME1 "$bin/zorve" 2>"$casa/ajeno.err" || fallo "a start takes a stranger for itself"
grep -q 'another program has the name' "$casa/ajeno.err" || fallo "the start says: $(cat "$casa/ajeno.err")"
! grep -q called "$casa/ajeno" || fallo "the stranger was given the leave"
