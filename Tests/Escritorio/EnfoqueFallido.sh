#!/usr/bin/env bash
# A running session that cannot come to the front: Return shows one message, and the panel stays and answers meanwhile.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"

con_panel() {
  escritorio vacia
  lector
  agente
  export SHELL=/bin/sh
  preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
  zorve
}
# en_xterm N NAME: the running session N in an xterm, whose process is then in $terminal.
en_xterm() {
  arranca "$2" xterm -geometry "40x8+700+20" -e "$home/bin/claude" "$2"
  terminal=$ultimo
  registra "$1" "$2"
}
# sin_terminal N NAME: one whose process has none.
sin_terminal() {
  setsid sleep 300 </dev/null >/dev/null 2>&1 &
  hijos+=($!)
  apunta "$1" "$2" $!
}
# detenido PROCESS: it answers nobody until the end of the test.
detenido() {
  hijos+=("$1")
  kill -STOP "$1"
}
termina_detenidos() { kill -CONT "${hijos[@]}" 2>/dev/null || :; }

# dice_solo REGEX: one message is in the panel, and it matches.
dice_solo() { dice_algo "alert \"$1" && [ "$(grep -c 'alert "' "$home/arbol")" -eq 1 ]; }
sin_terminal_que_enfocar='The session is alive but has no controlling terminal'
# responde: the panel takes keys at once, whatever it has begun.
responde() {
  local desde=$SECONDS
  xdotool key ctrl+a
  xdotool type --delay 1 "sesion ajena"
  espera copiado_es 2
  [ $((SECONDS - desde)) -le 2 ] || fallo "the panel was frozen"
}

prueba_siAcabaEntretantoSeDice() {
  con_panel
  en_xterm 1 acaba
  elige 1 acaba
  kill "$(cat "$home/teclas/acaba.pid")"
  espera terminado "$(cat "$home/teclas/acaba.pid")"
  xdotool key Return
  espera dice_solo '.'
  panel_visible || fallo "the panel closed"
}

prueba_sinTerminalSeDiceQueNoHayQueEnfocar() {
  con_panel
  sin_terminal 2 ajena
  elige 2 ajena
  xdotool key Return
  espera dice_solo "$sin_terminal_que_enfocar"
  panel_visible || fallo "the panel closed"
}

prueba_unMensajeNuevoSustituyeAlAnterior() {
  con_panel
  en_xterm 1 acaba
  sin_terminal 2 ajena
  elige 1 acaba
  kill "$(cat "$home/teclas/acaba.pid")"
  espera terminado "$(cat "$home/teclas/acaba.pid")"
  xdotool key Return
  espera dice_solo '.'
  elige 2 ajena
  xdotool key Return
  espera dice_solo "$sin_terminal_que_enfocar"
}

prueba_conSuTerminalMuertaSeDiceQueNoHayQueEnfocar() {
  con_panel
  arranca colgada xterm -geometry 40x8+700+220 -e sh -c "trap '' HUP; echo \$\$ >$home/teclas/colgada.pid; exec sleep 300"
  terminal=$ultimo
  registra 3 colgada
  hijos+=("$(cat "$home/teclas/colgada.pid")")
  kill "$terminal"
  espera terminado "$terminal"
  elige 3 colgada
  xdotool key Return
  espera dice_solo "$sin_terminal_que_enfocar"
}

prueba_unServidorDeTmuxDetenidoSeDiceYElPanelResponde() {
  con_panel
  sin_terminal 2 ajena
  tmux -f /dev/null -S "$home/run/tmux" new-session -d -s t "$home/bin/claude parada"
  registra 4 parada
  detenido "$(tmux -S "$home/run/tmux" display-message -p '#{pid}')"
  elige 4 parada
  xdotool key Return
  responde
  espera dice_solo '.'
  termina_detenidos
}

prueba_unaTerminalConPestanasDetenidaSeDiceYDespuesVieneAlFrente() {
  con_panel
  sin_terminal 2 ajena
  arranca sorda konsole -e "$home/bin/claude" sorda
  terminal=$ultimo
  registra 6 sorda
  detenido "$terminal"
  elige 6 sorda
  xdotool key Return
  responde
  espera dice_solo '.'
  termina_detenidos
  xdotool key Escape
  espera no panel_visible
  elige 6 sorda
  xdotool key Return
  espera no panel_visible
  llega sorda b
}

# A stopped terminal without tabs comes to the front as it is; what is typed waits for it.
prueba_unaTerminalDetenidaVieneAlFrenteComoEsta() {
  con_panel
  en_xterm 5 quieta
  kill -STOP "$terminal"
  elige 5 quieta
  xdotool key Return
  espera no panel_visible
  xdotool type "hola "
  kill -CONT "$terminal"
  xdotool key a Return
  espera termina_en quieta "hola a"
}

prueba_unGestorDeVentanasDetenidoSeDiceYElPanelResponde() {
  con_panel
  sin_terminal 2 ajena
  en_xterm 5 quieta
  elige 5 quieta
  detenido "$gestor_pid"
  xdotool key Return
  responde
  espera dice_solo '.'
  termina_detenidos
}

casos "$@"
