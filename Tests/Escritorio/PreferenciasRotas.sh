#!/usr/bin/env bash
# Settings that are damaged or cannot be written: the window says so in its band and shows what is in force, and the
# file stays byte for byte as it was.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
archivo=$home/.config/com.sarnol.zorve/preferences.json
abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
}
intacto() { cmp "$home/antes" "$archivo" || fallo "the settings were overwritten"; }

# con_ajustes_de TEXT: the program over this file.
con_ajustes_de() {
  escritorio lista
  lector
  preferencias "$1"
  cp "$archivo" "$home/antes"
  con_pocas_terminales
  abre_ajustes
}
con_ajustes_rotos() {
  con_ajustes_de '{"zorve.idioma":"en", "mío": '
  espera dice_algo 'alert ".*preferences.json: the file is not a JSON object. Correct or delete it'
}

prueba_unosRotosSeDicenYQuedanComoEstan() {
  con_ajustes_rotos
  intacto
}

prueba_elIdiomaValeParaEstaVezYSeDiceQueNoSeGuarda() {
  con_ajustes_rotos
  pulsa_opcion Español
  espera dice 'radio button "Español" [focusable checked]'
  espera dice_algo 'alert ".*preferences.json'
  intacto
}

prueba_unaTerminalQueNoSePuedeGuardarSeDice() {
  con_ajustes_rotos
  pulsa_opcion Terminal
  espera dice_algo 'radio button "kitty"'
  pulsa_opcion kitty
  espera dice_algo 'alert ".*Zorve .*preferences.json'
  intacto
}

prueba_arregladosAManoSeLeenAlVolver() {
  con_ajustes_rotos
  xdotool key Escape
  espera no ajustes
  # The notice of a missing tray, three seconds after the start, has nothing to note in it.
  preferencias '{"zorve.terminalElegida":"kitty","zorve.avisoDeBandejaMostrado":true}'
  abre_ajustes
  pulsa_opcion Terminal
  espera dice 'radio button "kitty" [focusable checked]'
  espera no dice_algo 'alert "'
}

# Where nothing can be written, not even by root.
prueba_dondeNoSePuedeEscribirSeDiceYNadaSePierde() {
  con_ajustes_de '{"zorve.terminalElegida":"kitty","zorve.avisoDeBandejaMostrado":true,"app.zorve.panelMostradoEnPrimerArranque":true}'
  mv "$home/.config/com.sarnol.zorve" "$home/.config/aparte"
  ln -s /proc/self "$home/.config/com.sarnol.zorve"
  pulsa_opcion Terminal
  espera dice 'radio button "kitty" [focusable checked]'
  pulsa_opcion xterm
  espera dice_algo 'alert ".*preferences.json'
  espera no dice 'radio button "xterm" [focusable checked]'
  cmp "$home/antes" "$home/.config/aparte/preferences.json" || fallo "the settings were lost"
}

casos "$@"
