#!/usr/bin/env bash
# The settings on a desktop of two screens.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
dos_monitores() { xrandr --listmonitors | grep -q 'Monitors: 2'; }
en_medio() {
  local x y
  read -r x y _ _ < <(lugar "$(ajustes)")
  ((x >= 1430 && x <= 1470 && y >= 260 && y <= 320))
}

prueba_salenEnMedioDeLaPantallaDelPuntero() {
  escritorio lista -screen 0 2240x1024x24
  monitor izquierda 1280 800 0 0 screen
  monitor derecha 960 1024 1280 0 none
  espera dos_monitores
  zorve
  xdotool mousemove 1900 900
  muestra
  xdotool key ctrl+comma
  espera ajustes
  espera en_medio
}

casos "$@"
