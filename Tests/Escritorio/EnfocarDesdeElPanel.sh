#!/usr/bin/env bash
# Return on a running session brings its own window to the front, and the panel goes.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
en_tmux() { tmux -f /dev/null -S "$home/run/tmux" "$@"; }
hay_cliente() { en_tmux list-clients | grep -q .; }
con_teclado_una_xterm() { xprop -id "$(xdotool getactivewindow)" WM_CLASS | grep -q XTerm; }

# con_sesiones_vivas: two xterms, and panes of two tmux sessions, one of which a client shows.
con_sesiones_vivas() {
  local numero=0 nombre
  escritorio vacia
  agente
  export SHELL=/bin/sh
  preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
  arranca uno xterm -geometry 40x8+700+20 -e "$home/bin/claude" uno
  arranca dos xterm -geometry 40x8+700+220 -e "$home/bin/claude" dos
  en_tmux new-session -d -s trabajo "$home/bin/claude tres"
  hijos+=("$(en_tmux display-message -p '#{pid}')")
  en_tmux split-window -t trabajo: "$home/bin/claude cuatro"
  en_tmux new-window -t trabajo: "$home/bin/claude cinco"
  en_tmux new-session -d -s otro "$home/bin/claude seis"
  arranca cliente xterm -geometry 60x20+700+420 -e tmux -S "$home/run/tmux" attach -t trabajo
  for nombre in uno dos tres cuatro cinco seis; do
    numero=$((numero + 1))
    registra "$numero" "$nombre"
  done
  espera hay_cliente
  zorve
}

# enfoca N NAME KEY
enfoca() {
  elige "$1" "$2"
  xdotool key Return
  espera no panel_visible
  espera con_teclado_una_xterm
  llega "$2" "$3"
}

prueba_cadaXtermVieneConSuSesion() {
  con_sesiones_vivas
  enfoca 1 uno a
  enfoca 2 dos b
}

prueba_enTmuxSeCambiaDeVentanaYDePanel() {
  con_sesiones_vivas
  enfoca 3 tres a
  enfoca 5 cinco b
  enfoca 4 cuatro c
}

prueba_elClienteDeOtraSesionDeTmuxCambiaAElla() {
  con_sesiones_vivas
  enfoca 6 seis a
  enfoca 4 cuatro b
}

prueba_unaVentanaMinimizadaVuelve() {
  con_sesiones_vivas
  enfoca 5 cinco a
  xdotool getactivewindow windowminimize --sync
  enfoca 4 cuatro b
}

prueba_seVaAlEscritorioDeLaVentana() {
  con_sesiones_vivas
  xdotool set_desktop 1
  enfoca 1 uno a
}

prueba_sinClienteUnaVentanaNuevaMuestraLaSesionDeTmux() {
  con_sesiones_vivas
  en_tmux detach-client -s trabajo
  espera no hay_cliente
  elige 4 cuatro
  xdotool key Return
  espera hay_cliente
  espera no panel_visible
  espera con_teclado_una_xterm
  llega cuatro a
  for cada in $(xdotool search --class xterm); do xdotool windowkill "$cada"; done
}

casos "$@"
