#!/usr/bin/env bash
# What a screen reader learns of both windows: names, roles, states, the selected row; it can press an option, and an
# error is an alert. A change of language reaches it at once.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio avisos
lector
zorve
calla() { arbol && ! grep -qF "$1" "$casa/arbol"; }

muestra
espera dice 'text "Search sessions" [focused focusable editable]'
espera dice 'list "Sessions"'
primera='list item "Rewrite the history parser for streaming reads" \(working, ~/src/zorve, [^,]*, 42 prompts\)'
segunda='list item "Parser fails on lone surrogates" \(active, ~/src/zorve, [67]m, 12 prompts\)'
espera dice_algo "$primera \[selected selectable\]"
espera dice_algo "$segunda \[selectable\]"
# Going to a row has it read, though the keyboard stays in the field; typing is in the field again.
arranca oidas "$aqui/arbol.py" zorve oye
espera grep listening "$casa/oidas.out"
oida_al_final() { [ "$(tail -n 1 "$casa/oidas.out")" = "$1" ]; }
xdotool key Down
espera oida_al_final 'list item "Parser fails on lone surrogates"'
espera dice_algo "$primera \[selectable\]"
espera dice_algo "$segunda \[selected selectable\]"
xdotool type parser
espera oida_al_final 'text "Search sessions"'
xdotool key ctrl+a BackSpace
espera dice 'push button "Settings" (Settings (Ctrl+,)) [focusable]'
grep -qE '^ *alert "history: 2 of ' "$casa/arbol" || fallo "no notice is an alert: $(cat "$casa/arbol")"

xdotool key ctrl+comma
espera dice 'page tab "General" [focusable selected selectable]'
espera dice 'page tab "Terminal" [focusable selectable]'
espera dice 'check box "Open Zorve at login" [focusable]'
espera dice 'radio button "English" [focusable checked]'
espera calla 'list item'
# Three sections, three options, and round again.
for cada in General Terminal About 'Open Zorve at login' English Español General; do
  xdotool key Tab
  espera dice_algo "\"$cada\".*\[focused"
done
xdotool key Down
espera dice 'page tab "Terminal" [focused focusable selected selectable]'
xdotool key Up
pulsa_opcion Español
espera dice 'radio button "Español" [focusable checked]'
espera dice 'check box "Abrir Zorve al iniciar sesión" [focusable]'
espera dice 'page tab "Acerca de" [focusable selectable]'
pulsa_opcion 'Acerca de'
espera dice 'label "Zorve sin empaquetar" [focusable]'
espera dice 'label "Para cerrar Zorve: Ctrl+Q" [focusable]'
