#!/usr/bin/env bash
# The settings window and zorvectl tell each other: a choice made in one is seen by the other. The window is centred,
# built once, keeps its section, and loads at each showing; its keys close it and quit.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio lista
lector
con_pocas_terminales
abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
  espera panel_o_ajustes_con_teclado
}
elegida() { "$bin/zorvectl" terminals --json | jq -r '.eleccion // "-"'; }
elegida_es() { [ "$(elegida)" = "$1" ]; }

abre_ajustes
primera=$(ajustes)
read -r x y _ _ < <(lugar "$primera")
((x >= 320 && x <= 340 && y >= 145 && y <= 195)) || fallo "the window stands at $x,$y and not in the middle"
pulsa_opcion Terminal
espera dice 'radio button "Whichever Zorve picks" (today: xterm, the system'"'"'s) [focusable checked]'
# Who says so stands below.
espera dice_algo 'label "The system.s terminal is the one named by .*TERMINAL'
pulsa_opcion kitty
espera dice 'radio button "kitty" [focusable checked]'
espera elegida_es kitty
xdotool key Escape
espera no ajustes

"$bin/zorvectl" choose xterm >/dev/null
abre_ajustes
[ "$(ajustes)" = "$primera" ] || fallo "another window was built"
espera dice 'page tab "Terminal" [focusable selected selectable]'
espera dice 'radio button "xterm" [focusable checked]'
espera dice 'radio button "kitty" [focusable]'
# Minimised, it comes back.
xdotool windowminimize "$primera"
espera no ajustes
muestra
xdotool key ctrl+comma
espera ajustes
espera panel_o_ajustes_con_teclado
xdotool key ctrl+shift+w
sleep 0.2
ajustes >/dev/null || fallo "Control+Shift+W closed the window"
xdotool key ctrl+w
espera no ajustes

"$bin/zorvectl" choose --auto >/dev/null
abre_ajustes
espera dice_algo 'radio button "Whichever Zorve picks".*\[focusable checked\]'
pulsa_opcion General
pulsa_opcion Español
espera dice 'page tab "Acerca de" [focusable selectable]'
# A choice that is gone: nothing is marked, and an alert says what to do.
preferencias '{"zorve.idioma":"es","zorve.terminalElegida":"com.no.existe","ajena":{"de":[1,2.50]}}'
xdotool key Escape
espera no ajustes
abre_ajustes
pulsa_opcion Terminal
espera dice_algo 'alert "'
espera dice_algo 'radio button "La que decida Zorve" \[focusable\]'
pulsa_opcion kitty
espera elegida_es kitty
espera no dice_algo 'alert "'
jq -e '.ajena.de == [1,2.5]' "$casa/.config/com.sarnol.zorve/preferences.json" >/dev/null || fallo "a setting of others was lost"
xdotool key ctrl+shift+q
sleep 0.2
! terminado "$zorve_pid" || fallo "Control+Shift+Q quit"
xdotool key ctrl+q
espera terminado "$zorve_pid"
