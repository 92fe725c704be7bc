#!/usr/bin/env bash
# On X11: an announced start is ended when the panel comes up; the settings come to the front of another window by
# the time of the click that asked; a terminal is told the time of the key press, and its shell inherits nothing.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
mkdir -p "$casa/bin" "$casa/src/bench/parser"
cat >"$casa/bin/xterm" <<FIN
#!/bin/sh
printf '%s\n' "\$DESKTOP_STARTUP_ID" >"$casa/testigo"
exec /usr/bin/xterm "\$@"
FIN
printf '#!/bin/sh\nenv >"%s/entorno"\n' "$casa" >"$casa/bin/claude"
chmod +x "$casa/bin/xterm" "$casa/bin/claude"
export PATH=$casa/bin:$PATH SHELL=/bin/bash
"$bin/zorvectl" choose xterm
zorve
arranca avisos stdbuf -oL xev -root -event property
escuchado() {
  xprop -root -f ZORVE_PRUEBA 8s -set ZORVE_PRUEBA si
  grep -q ZORVE_PRUEBA "$casa/avisos.out"
}
espera escuchado
avisados() { grep -c 'message_type.*_NET_STARTUP_INFO_BEGIN' "$casa/avisos.out"; }

DESKTOP_STARTUP_ID=prueba-1_TIME1 segundo
espera panel_con_teclado
espera avisados
[ "$(avisados)" -eq 1 ] || fallo "the start was ended $(avisados) times"

xdotool key ctrl+comma
espera ajustes
arranca otra /usr/bin/xterm -geometry 100x40+200+100 -e sleep 300
otra() { xdotool search --onlyvisible --class '^XTerm$'; }
ajustes_con_teclado() { [ "$(xdotool getwindowfocus)" = "$(ajustes)" ]; }
espera otra
espera no ajustes_con_teclado
segundo
espera panel_con_teclado
xdotool key ctrl+comma
espera ajustes_con_teclado
xdotool key Escape
espera no ajustes

segundo
espera panel_con_teclado
xdotool type benchmark
xdotool key Return
espera test -s "$casa/entorno"
grep -qE '^zorve-[0-9]+-[0-9]+-.*_TIME[1-9][0-9]*$' "$casa/testigo" || fallo "the terminal's token: $(cat "$casa/testigo")"
! grep -E '^(DESKTOP_STARTUP_ID|XDG_ACTIVATION_TOKEN)=' "$casa/entorno" || fallo "the shell inherited the token"
