#!/usr/bin/env bash
# A child that never gets to run, ps or the helper: the panel lives, says nothing wrong, and quitting ends at once; so
# does a signal, whatever goes on, and the settings stay whole.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-trazas.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-trazas.sh"

# con_colgado PROGRAM: a desktop where that program hangs for ten minutes from its first instruction on.
con_colgado() {
  escritorio vacia
  agente
  export SHELL=/bin/sh
  preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
  sleep 600 &
  hijos+=($!)
  arranca una xterm -geometry 40x8+700+20 -e "$home/bin/claude" una
  registra 1 una
  apunta 2 acabada 4194304
  zorve_trazado -e trace=execve -P "$1" -e inject=execve:delay_exit=600s
}
cuelga() { grep -q 'execve("'"$1"'"' "$home/trazas"; }
# Whoever hangs, and the tracer that holds it, end with the test.
suelta() {
  local cada
  for cada in $(pgrep -f "strace -D -f -qq -o $home/trazas" || :); do kill -9 "$cada" 2>/dev/null || :; done
  while read -r cada; do
    [ "$cada" = "$zorve_pid" ] || kill -9 "$cada" 2>/dev/null || :
  done < <(awk '{ print $1 }' "$home/trazas" | sort -u)
}
en_menos_de_dos_segundos() {
  local fin=$((SECONDS + 2))
  until terminado "$zorve_pid"; do
    [ "$SECONDS" -le "$fin" ] || { suelta; fallo "it went on for over two seconds"; }
    sleep 0.05
  done
}
responde() {
  local desde=$SECONDS
  xdotool key ctrl+a
  xdotool type --delay 1 "sesion acabada"
  espera copiado_es 2
  [ $((SECONDS - desde)) -le 3 ] || fallo "the panel was frozen"
}

prueba_conPsColgadoElPanelViveYSalirEsInmediato() {
  con_colgado /bin/ps
  elige 1 una
  xdotool key Return
  espera cuelga /bin/ps
  responde
  xdotool key ctrl+q
  en_menos_de_dos_segundos
  suelta
}

prueba_conElAyudanteColgadoElPanelViveYSalirEsInmediato() {
  con_colgado "$bin/zorve-terminal"
  elige 2 acabada
  xdotool key Return
  espera cuelga "$bin/zorve-terminal"
  muestra
  responde
  xdotool key ctrl+q
  en_menos_de_dos_segundos
  suelta
}

prueba_unaSenalTerminaConPsColgado() {
  con_colgado /bin/ps
  elige 1 una
  xdotool key Return
  espera cuelga /bin/ps
  kill -TERM "$zorve_pid"
  en_menos_de_dos_segundos
  suelta
}

# A signal at 40 moments of starting, loading, showing and saving.
prueba_unaSenalEnCualquierMomentoDejaLosAjustesEnteros() {
  local cada
  escritorio lista
  for cada in $(seq 1 40); do
    preferencias '{"ajena":[1,2.50],"zorve.idioma":"en"}'
    arranca zorve "$bin/zorve"
    zorve_pid=$ultimo
    sleep "0.$(printf '%02d' "$cada")"
    kill -TERM "$zorve_pid"
    en_menos_de_dos_segundos
    jq -e '.ajena == [1,2.5]' "$home/.config/com.sarnol.zorve/preferences.json" >/dev/null ||
      fallo "the settings are damaged after signal $cada"
  done
  "$bin/zorvectl" choose xterm >/dev/null
  [ "$(find "$home/.config/com.sarnol.zorve" -type f | wc -l)" -eq 2 ] || fallo "files were left beside the settings"
}

casos "$@"
