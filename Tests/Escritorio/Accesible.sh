#!/usr/bin/env bash
# What a screen reader learns of both windows: names, roles, states.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
primera='list item "Rewrite the history parser for streaming reads" \(working, ~/src/zorve, [^,]*, 42 prompts\)'
segunda='list item "Parser fails on lone surrogates" \(active, ~/src/zorve, [67]m, 12 prompts\)'
calla() { arbol && ! grep -qF "$1" "$home/arbol"; }
oida_al_final() { [ "$(tail -n 1 "$home/oidas.out")" = "$1" ]; }

con_panel() {
  escritorio avisos
  lector
  zorve
  muestra
  espera dice_algo "$primera \[selected selectable\]"
}
con_ajustes() {
  con_panel
  xdotool key ctrl+comma
  espera dice 'page tab "General" [focusable selected selectable]'
}

prueba_laBusquedaYLaListaTienenNombreYPapel() {
  con_panel
  espera dice 'text "Search sessions" [focused focusable editable]'
  espera dice 'list "Sessions"'
  espera dice 'push button "Settings" (Settings (Ctrl+,)) [focusable]'
}

prueba_cadaFilaDiceSuTituloEstadoRutaYEdad() {
  con_panel
  espera dice_algo "$segunda \[selectable\]"
}

prueba_unAvisoEsUnaAlerta() {
  con_panel
  espera dice_algo '^ *alert "history: 2 of '
}

# Going to a row has it read, though the keyboard stays in the field; typing is in the field again.
prueba_irAUnaFilaLaLee() {
  con_panel
  arranca oidas "$aqui/arbol.py" zorve oye
  espera grep listening "$home/oidas.out"
  xdotool key Down
  espera oida_al_final 'list item "Parser fails on lone surrogates"'
  espera dice_algo "$primera \[selectable\]"
  espera dice_algo "$segunda \[selected selectable\]"
}

prueba_alEscribirSeVuelveALaBusqueda() {
  con_panel
  arranca oidas "$aqui/arbol.py" zorve oye
  espera grep listening "$home/oidas.out"
  xdotool key Down
  espera oida_al_final 'list item "Parser fails on lone surrogates"'
  xdotool type parser
  espera oida_al_final 'text "Search sessions"'
}

prueba_lasSeccionesYOpcionesTienenPapelYEstado() {
  con_ajustes
  espera dice 'page tab "Terminal" [focusable selectable]'
  espera dice 'check box "Open Zorve at login" [focusable]'
  espera dice 'radio button "English" [focusable checked]'
}

prueba_delPanelEscondidoNoSeDiceNada() {
  con_ajustes
  espera calla 'list item'
}

# Three sections, three options, and round again.
prueba_elTabuladorPasaPorTodoEnOrden() {
  local cada
  con_ajustes
  for cada in General Terminal About 'Open Zorve at login' English Español General; do
    xdotool key Tab
    espera dice_algo "\"$cada\".*\[focused"
  done
}

prueba_lasFlechasCambianDeSeccion() {
  con_ajustes
  xdotool key Tab
  espera dice_algo '"General".*\[focused'
  xdotool key Down
  espera dice 'page tab "Terminal" [focused focusable selected selectable]'
}

prueba_unaOpcionPulsadaCambiaElIdiomaDeTodo() {
  con_ajustes
  pulsa_opcion Español
  espera dice 'radio button "Español" [focusable checked]'
  espera dice 'check box "Abrir Zorve al iniciar sesión" [focusable]'
  espera dice 'page tab "Acerca de" [focusable selectable]'
}

prueba_acercaDeDiceLaVersionYComoSeCierra() {
  con_ajustes
  pulsa_opcion About
  espera dice_algo 'label "Zorve .*" \[focusable\]'
  espera dice 'label "To quit Zorve: Ctrl+Q" [focusable]'
}

casos "$@"
