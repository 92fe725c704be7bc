#!/usr/bin/env bash
# Under GNOME, with --all alone: two windows of each terminal of the table, one behind the other and on another
# workspace; panes of tmux; all by our extension.
solo_con_all=si
# shellcheck source=Tests/Escritorio/comun-gnome.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gnome.sh"
instala_la_extension
export SHELL=/bin/sh
escritorio_gnome vacia "$uuid"
espera tiene_nombre com.sarnol.zorve.Windows
agente

# abre TERMINAL NAME: a window of it, seen, with the stand-in.
abre() {
  base
  "$bin/zorve-terminal" open "$1" "$home" "'$home/bin/claude' $2" || fallo "$1 does not open"
  espera test -s "$home/teclas/$2.pid"
  espera cambiado 1280x760+0+33
  base
}
# cierra NAME: what led the stand-in's terminal device ends.
cierra() {
  kill -HUP "$(ps -o sid= -p "$(cat "$home/teclas/$1.pid")" | tr -d ' ')"
  rm "$home/teclas/$1.pid"
}
enfocables() { "$bin/zorvectl" terminals --json | jq -r '.terminales[] | select(.instalada and .puedeEnfocar).identificador'; }

mapfile -t todas < <(enfocables)
[ ${#todas[@]} -gt 0 ] || fallo "no terminal can be focused"
for terminal in "${todas[@]}"; do
  nombre=${terminal//[^A-Za-z]/}
  abre "$terminal" "${nombre}1"
  abre "$terminal" "${nombre}2"
  for cual in 1 2 1; do
    enfoca "$terminal" "$nombre$cual"
    llega_en_gnome "$nombre$cual" "$cual"
  done
  mando key super+alt+right
  enfoca "$terminal" "${nombre}2"
  llega_en_gnome "${nombre}2" o
  echo "seen: $terminal"
  cierra "${nombre}1"
  cierra "${nombre}2"
  mando key super+home
done

tmux -f /dev/null -S "$home/run/tmux" new-session -d -s trabajo "$home/bin/claude pane1"
hijos+=("$(tmux -S "$home/run/tmux" display-message -p '#{pid}')")
tmux -S "$home/run/tmux" new-window -t trabajo: "$home/bin/claude pane2"
arranca cliente foot tmux -S "$home/run/tmux" attach -t trabajo
espera tiene_el_teclado "$ultimo"
abre foot delante
for cual in 1 2; do
  espera test -s "$home/teclas/pane$cual.pid"
  enfoca tmux "pane$cual"
  llega_en_gnome "pane$cual" t
done
