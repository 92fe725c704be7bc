#!/usr/bin/env bash
# The panel comes and goes shortly: what is asked for meanwhile is done, and nothing moves once it is at rest.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$aqui/comun-gustos.sh"

empieza() {
  escritorio lista
  compositor
  arranca xterm xterm
  espera xdotool search --onlyvisible --class xterm
  zorve
  muestra
}
despertares() { awk '/^voluntary_ctxt_switches/ { print $2 }' "/proc/$zorve_pid/task/$zorve_pid/status"; }

prueba_mientrasSeVaVuelveSiSePide() {
  empieza
  xdotool key Escape
  segundo
  espera panel_con_teclado
  sleep 0.5
  panel_visible || fallo "the panel went although it was asked for"
  xdotool key Escape
  espera no panel_visible
}

prueba_elTecladoSeVaEnSeguida() {
  empieza
  xdotool key Escape
  ! panel_con_teclado || fallo "the panel that goes keeps the keyboard"
  espera no panel_visible
}

prueba_enReposoNadaLoDespierta() {
  local antes
  empieza
  xdotool key Escape
  espera no panel_visible
  sleep 2
  antes=$(despertares)
  sleep 3
  [ $(($(despertares) - antes)) -le 3 ] || fallo "woken $(($(despertares) - antes)) times in three seconds"
}

casos "$@"
