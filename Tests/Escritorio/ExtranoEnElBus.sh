#!/usr/bin/env bash
# Programs on the bus that nobody invited: one that calls Activate, one that has taken the program's name.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
con_teclado_una_xterm() { xprop -id "$(xdotool getactivewindow)" WM_CLASS 2>/dev/null | grep -q XTerm; }
llego() { grep -qx hola "$home/escrito"; }

prueba_activateSinPermisoMuestraElPanelYDejaElTecladoDondeSeEscribe() {
  escritorio lista
  # shellcheck disable=SC2016 # the shell in the window expands it
  arranca escribe xterm -geometry 40x8+40+700 -e sh -c 'while read -r linea; do echo "$linea" >>"$0"; done' "$home/escrito"
  espera con_teclado_una_xterm
  zorve
  gdbus call --session --dest com.sarnol.zorve --object-path /com/sarnol/zorve \
    --method org.freedesktop.Application.Activate '{}' >/dev/null
  espera panel_visible
  xdotool type hola
  xdotool key Return
  espera llego
}

# otro_con_el_nombre: a program that is not ours has the name and says in $home/ajeno when it is called.
otro_con_el_nombre() {
  cat >"$home/ajeno.py" <<'FIN'
import gi
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
  /usr/bin/python3 "$home/ajeno.py" >"$home/ajeno" 2>&1 &
  hijos+=($!)
  espera grep -q owned "$home/ajeno"
}

prueba_unNombreAjenoSeDiceYNoRecibeElPermisoDelClic() {
  escritorio lista
  otro_con_el_nombre
  ! DESKTOP_STARTUP_ID=secreto_TIME1 "$bin/zorve" 2>"$home/ajeno.err" || fallo "a start takes a stranger for itself"
  grep -q 'another program has the name' "$home/ajeno.err" || fallo "the start says: $(cat "$home/ajeno.err")"
  ! grep -q called "$home/ajeno" || fallo "the stranger was given the leave"
}

casos "$@"
