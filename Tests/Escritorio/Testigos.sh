#!/usr/bin/env bash
# The leave to come to the front, on X11.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

escuchado() {
  xprop -root -f ZORVE_PRUEBA 8s -set ZORVE_PRUEBA si
  grep -q ZORVE_PRUEBA "$home/avisos.out"
}
avisados() { grep -c 'message_type.*_NET_STARTUP_INFO_BEGIN' "$home/avisos.out"; }

prueba_unArranqueAnunciadoTerminaAlVerseElPanel() {
  escritorio lista
  zorve
  arranca avisos stdbuf -oL xev -root -event property
  espera escuchado
  DESKTOP_STARTUP_ID=prueba-1_TIME1 segundo
  espera panel_con_teclado
  espera avisados
  [ "$(avisados)" -eq 1 ] || fallo "the start was ended $(avisados) times"
}

otra() { xdotool search --onlyvisible --class '^XTerm$'; }
ajustes_con_teclado() { [ "$(xdotool getwindowfocus)" = "$(ajustes)" ]; }

prueba_losAjustesVienenAlFrenteDeOtraVentana() {
  escritorio lista
  zorve
  muestra
  xdotool key ctrl+comma
  espera ajustes
  arranca otra /usr/bin/xterm -geometry 100x40+200+100 -e sleep 300
  espera otra
  espera no ajustes_con_teclado
  muestra
  xdotool key ctrl+comma
  espera ajustes_con_teclado
}

# con_terminal_espiada: a stand-in for the agent notes its environment, one for xterm its own token.
con_terminal_espiada() {
  escritorio lista
  mkdir -p "$home/bin" "$home/src/bench/parser"
  cat >"$home/bin/xterm" <<FIN
#!/bin/sh
printf '%s\n' "\$DESKTOP_STARTUP_ID" >"$home/testigo"
exec /usr/bin/xterm "\$@"
FIN
  printf '#!/bin/sh\nenv >"%s/entorno"\n' "$home" >"$home/bin/claude"
  chmod +x "$home/bin/xterm" "$home/bin/claude"
  export PATH=$home/bin:$PATH SHELL=/bin/bash
  "$bin/zorvectl" choose xterm
  zorve
  muestra
  xdotool type benchmark
  espera copiado_es 4
  xdotool key Return
  espera test -s "$home/entorno"
}

prueba_unaTerminalSabeElMomentoDeLaTecla() {
  con_terminal_espiada
  grep -qE '^zorve-[0-9]+-[0-9]+-.*_TIME[1-9][0-9]*$' "$home/testigo" || fallo "the terminal's token: $(cat "$home/testigo")"
}

prueba_laShellDeLaTerminalNoHeredaElTestigo() {
  con_terminal_espiada
  ! grep -E '^(DESKTOP_STARTUP_ID|XDG_ACTIVATION_TOKEN)=' "$home/entorno" || fallo "the shell inherited the token"
}

casos "$@"
