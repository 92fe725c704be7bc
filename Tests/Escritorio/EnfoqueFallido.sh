#!/usr/bin/env bash
# A running session that cannot come to the front: its process ends, its pid belongs to another, its terminal is gone,
# its tmux server or the window manager hangs. Return shows one message, and the panel stays and answers meanwhile.
# A terminal that hangs is said where it must be asked for its tab, and comes to the front as it is elsewhere.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio vacia
agente
export SHELL=/bin/sh
preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
en_tmux() { tmux -f /dev/null -S "$casa/run/tmux" "$@"; }
arranca acaba xterm -geometry 40x8+700+20 -e "$casa/bin/claude" acaba
registra 1 acaba
setsid sleep 300 </dev/null >/dev/null 2>&1 &
hijos+=($!)
apunta 2 ajena $!
arranca colgada xterm -geometry 40x8+700+220 -e sh -c "trap '' HUP; echo \$\$ >$casa/teclas/colgada.pid; exec sleep 300"
terminal_colgada=$ultimo
registra 3 colgada
hijos+=("$(cat "$casa/teclas/colgada.pid")")
en_tmux new-session -d -s t "$casa/bin/claude parada"
servidor_tmux=$(en_tmux display-message -p '#{pid}')
hijos+=("$servidor_tmux")
registra 4 parada
arranca quieta xterm -geometry 40x8+700+420 -e "$casa/bin/claude" quieta
terminal_quieta=$ultimo
registra 5 quieta
arranca sorda konsole -e "$casa/bin/claude" sorda
terminal_sorda=$ultimo
registra 6 sorda
zorve

avisa() { panel_visible && hay_color "$(panel)" '#2dd4bf' 20x60+16+62; }
se_queja() { panel_visible && hay_color "$(panel)" '#e0796a' 20x60+16+62; }
# responde: the panel takes keys at once, whatever it has begun.
responde() {
  local desde=$SECONDS
  xdotool key ctrl+a
  xdotool type --delay 1 "sesion ajena"
  espera copiado_es 2
  [ $((SECONDS - desde)) -le 2 ] || fallo "the panel was frozen"
}
cierra() {
  panel_visible || fallo "the panel closed"
  xdotool key Escape
  espera no panel_visible
}
# solo_avisa: the error of the time before gives way to a notice.
solo_avisa() {
  se_queja || fallo "the last error is gone already"
  xdotool key Return
  espera no se_queja
  espera avisa
  cierra
}

elige 1 acaba
kill "$(cat "$casa/teclas/acaba.pid")"
espera terminado "$(cat "$casa/teclas/acaba.pid")"
xdotool key Return
espera se_queja
cierra

elige 2 ajena
solo_avisa

kill -STOP "$servidor_tmux"
elige 4 parada
xdotool key Return
responde
espera se_queja
kill -CONT "$servidor_tmux"
cierra

kill "$terminal_colgada"
espera terminado "$terminal_colgada"
elige 3 colgada
solo_avisa

kill -STOP "$terminal_sorda"
elige 6 sorda
xdotool key Return
responde
espera se_queja
kill -CONT "$terminal_sorda"
cierra
elige 6 sorda
xdotool key Return
espera no panel_visible
llega sorda b

# A stopped terminal comes to the front as it is; what is typed waits for it.
kill -STOP "$terminal_quieta"
elige 5 quieta
xdotool key Return
espera no panel_visible
xdotool type "hola "
kill -CONT "$terminal_quieta"
xdotool key a Return
espera termina_en quieta "hola a"

elige 5 quieta
kill -STOP "$gestor_pid"
xdotool key Return
responde
espera se_queja
kill -CONT "$gestor_pid"
