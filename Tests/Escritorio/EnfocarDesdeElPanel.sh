#!/usr/bin/env bash
# Return on a running session brings its own window to the front and the panel goes: two xterms, panes of two tmux
# sessions that share a client, and with no client at all. A key pressed afterwards arrives there and nowhere else.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio vacia
agente
export SHELL=/bin/sh
preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
en_tmux() { tmux -f /dev/null -S "$casa/run/tmux" "$@"; }
arranca uno xterm -geometry 40x8+700+20 -e "$casa/bin/claude" uno
arranca dos xterm -geometry 40x8+700+220 -e "$casa/bin/claude" dos
en_tmux new-session -d -s trabajo "$casa/bin/claude tres"
hijos+=("$(en_tmux display-message -p '#{pid}')")
en_tmux split-window -t trabajo: "$casa/bin/claude cuatro"
en_tmux new-window -t trabajo: "$casa/bin/claude cinco"
en_tmux new-session -d -s otro "$casa/bin/claude seis"
arranca cliente xterm -geometry 60x20+700+420 -e tmux -S "$casa/run/tmux" attach -t trabajo
numero=0
for nombre in uno dos tres cuatro cinco seis; do
  numero=$((numero + 1))
  registra "$numero" "$nombre"
done
hay_cliente() { en_tmux list-clients | grep -q .; }
espera hay_cliente
zorve

con_teclado_una_xterm() { xprop -id "$(xdotool getactivewindow)" WM_CLASS | grep -q XTerm; }
# enfoca N NAME KEY
enfoca() {
  elige "$1" "$2"
  xdotool key Return
  espera no panel_visible
  espera con_teclado_una_xterm
  llega "$2" "$3"
}
enfoca 1 uno a
enfoca 2 dos b
enfoca 3 tres c
enfoca 5 cinco d
xdotool getactivewindow windowminimize --sync
enfoca 4 cuatro e
enfoca 2 dos f
xdotool set_desktop 1
enfoca 1 uno g
enfoca 6 seis h
enfoca 4 cuatro i

# The client goes: the session lives on, and a new window shows it.
en_tmux detach-client -s trabajo
espera no hay_cliente
elige 4 cuatro
xdotool key Return
espera hay_cliente
espera no panel_visible
espera con_teclado_una_xterm
llega cuatro j
for cada in $(xdotool search --class xterm); do xdotool windowkill "$cada"; done
