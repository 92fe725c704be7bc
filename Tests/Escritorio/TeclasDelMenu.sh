#!/usr/bin/env bash
# The icon's menu by keys: arrows, Home, End, Return, Escape, and the shortcuts that it shows. The panel below it stays
# as it is.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
bandeja_xembed top
zorve
espera hay_icono_xembed
read -r x y < <(centro "$(icono_xembed)")
# Two presses close together are one double click, which is no second right click.
abre_menu() {
  sleep 0.5
  pulsa_en "$x" "$y" 3
  espera menu
}
elige() {
  abre_menu
  xdotool key "$@"
  espera ajustes
  espera no menu
  xdotool key ctrl+w
  espera no ajustes
}
elige Down Return
elige Up Up Return
elige End Home Return
elige ctrl+comma
muestra
abre_menu
xdotool key End Escape
espera no menu
panel_visible || fallo "the panel went with the menu"
xdotool key Escape
espera no panel_visible
abre_menu
xdotool key Home End Return
espera terminado "$zorve_pid"
zorve
espera hay_icono_xembed
abre_menu
xdotool key ctrl+q
espera terminado "$zorve_pid"
