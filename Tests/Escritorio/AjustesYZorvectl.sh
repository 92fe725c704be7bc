#!/usr/bin/env bash
# The settings window, and zorvectl beside it: a choice made in one is seen by the other.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"

abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
  espera panel_o_ajustes_con_teclado
}
cierra_ajustes() {
  xdotool key Escape
  espera no ajustes
}
con_ajustes() {
  escritorio lista
  lector
  con_pocas_terminales
  abre_ajustes
}
elegida() { "$bin/zorvectl" terminals --json | jq -r '.eleccion // "-"'; }
elegida_es() { [ "$(elegida)" = "$1" ]; }

prueba_laVentanaEstaEnMedioDeLaPantalla() {
  local x y
  con_ajustes
  read -r x y _ _ < <(lugar "$(ajustes)")
  ((x >= 320 && x <= 340 && y >= 145 && y <= 195)) || fallo "the window stands at $x,$y and not in the middle"
}

prueba_diceQuienNombraLaTerminalDelSistema() {
  con_ajustes
  pulsa_opcion Terminal
  espera dice 'radio button "Whichever Zorve picks" (today: xterm, the system'"'"'s) [focusable checked]'
  espera dice_algo 'label "The system.s terminal is the one named by .*TERMINAL'
}

prueba_loElegidoEnLaVentanaLoSabeZorvectl() {
  con_ajustes
  pulsa_opcion Terminal
  espera dice_algo 'radio button "kitty"'
  pulsa_opcion kitty
  espera dice 'radio button "kitty" [focusable checked]'
  espera elegida_es kitty
}

prueba_loElegidoConZorvectlSeVeAlVolverALaMismaVentanaYSeccion() {
  local primera
  con_ajustes
  primera=$(ajustes)
  pulsa_opcion Terminal
  cierra_ajustes
  "$bin/zorvectl" choose xterm >/dev/null
  abre_ajustes
  [ "$(ajustes)" = "$primera" ] || fallo "another window was built"
  espera dice 'page tab "Terminal" [focusable selected selectable]'
  espera dice 'radio button "xterm" [focusable checked]'
  espera dice 'radio button "kitty" [focusable]'
  cierra_ajustes
  "$bin/zorvectl" choose --auto >/dev/null
  abre_ajustes
  espera dice_algo 'radio button "Whichever Zorve picks".*\[focusable checked\]'
}

prueba_minimizadaVuelve() {
  con_ajustes
  xdotool windowminimize "$(ajustes)"
  espera no ajustes
  abre_ajustes
}

prueba_controlWLaCierraYControlMayusculasWNo() {
  con_ajustes
  # Typed after it, this is seen after it.
  xdotool key ctrl+shift+w Tab
  espera dice_algo 'page tab "General".*\[focused'
  ajustes >/dev/null || fallo "Control+Shift+W closed the window"
  xdotool key ctrl+w
  espera no ajustes
}

prueba_controlQSaleYControlMayusculasQNo() {
  con_ajustes
  xdotool key ctrl+shift+q Tab
  espera dice_algo 'page tab "General".*\[focused'
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
}

prueba_unaEleccionQueYaNoExisteSeDiceYNadaEstaMarcado() {
  con_ajustes
  cierra_ajustes
  preferencias '{"zorve.idioma":"en","zorve.terminalElegida":"com.no.existe","ajena":{"de":[1,2.50]}}'
  abre_ajustes
  pulsa_opcion Terminal
  espera dice_algo 'alert "'
  espera dice_algo 'radio button "Whichever Zorve picks" \[focusable\]'
}

prueba_elegirOtraQuitaElAvisoYDejaLoAjeno() {
  con_ajustes
  cierra_ajustes
  preferencias '{"zorve.terminalElegida":"com.no.existe","ajena":{"de":[1,2.50]}}'
  abre_ajustes
  pulsa_opcion Terminal
  espera dice_algo 'alert "'
  pulsa_opcion kitty
  espera elegida_es kitty
  espera no dice_algo 'alert "'
  jq -e '.ajena.de == [1,2.5]' "$home/.config/com.sarnol.zorve/preferences.json" >/dev/null ||
    fallo "a setting of others was lost"
}

casos "$@"
