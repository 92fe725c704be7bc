#!/usr/bin/env bash
# Who clicks the icon and types on loses nothing, in either kind of tray: every letter is in the search.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
# teclea X Y: clicks there and types a tenth of a second later, three times.
teclea() {
  local i
  for ((i = 0; i < 3; i++)); do
    # Two clicks close together would be one double click.
    sleep 0.5
    xdotool mousemove "$1" "$2" click 1 sleep 0.1 type --delay 1 surrog
    espera copiado_es 2
    xdotool key ctrl+a BackSpace Up Up
    espera copiado_es 1
    xdotool key Escape
    espera no panel_visible
  done
}
bandeja_xembed top
bandeja=$ultimo
zorve
espera hay_icono_xembed
espera hay_color "$(icono_xembed)" '#0c161b' 24x26+0+0
read -r x y < <(centro "$(icono_xembed)")
teclea "$x" "$y"
kill "$bandeja" "$zorve_pid"
espera terminado "$zorve_pid"
barra_sn 6
zorve
espera hay_icono_sn
read -r x y < <(centro "$(casilla_sn)")
teclea "$x" "$y"
