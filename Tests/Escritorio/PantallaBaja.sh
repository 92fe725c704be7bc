#!/usr/bin/env bash
# On a screen lower than the panel.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
panel() { ventana '440 442'; }
en_pantalla_baja() {
  local cx cy
  escritorio lista -screen 0 910x480x24
  bandeja_xembed bottom
  zorve
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 24x26+0+0
  read -r cx cy < <(centro "$(icono_xembed)")
  pulsa_en "$cx" "$cy"
  espera panel_con_teclado
  read -r x y ancho alto < <(lugar "$(panel)")
}

prueba_elPanelEsTanBajoComoDebe() {
  en_pantalla_baja
  ((y == 6 && y + alto == 448 && x + ancho <= 910)) || fallo "the panel is at $x,$y"
}

prueba_seLlegaALaUltimaFila() {
  en_pantalla_baja
  xdotool key --delay 30 Down Down Down Down Down Down Down Down Down Down
  espera copiado_es 11
}

prueba_elPieEstaEntero() {
  en_pantalla_baja
  xdotool mousemove $((x + ancho - 23)) $((y + alto - 19)) click 1
  espera ajustes
}

casos "$@"
