#!/usr/bin/env bash
# The tray at each edge of the screen: the panel stands beside the bar and wholly on the free part.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

# en_el_borde EDGE LEFT TOP RIGHT BOTTOM: the bar there; the panel is within the free part that is named. Then its
# place is in x, y, ancho and alto.
en_el_borde() {
  local cx cy
  escritorio lista
  zorve
  bandeja_xembed "$1"
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 40x40+0+0
  read -r cx cy < <(centro "$(icono_xembed)")
  pulsa_en "$cx" "$cy"
  espera panel_visible
  espera panel_con_teclado
  read -r x y ancho alto < <(lugar "$(panel)")
  ((x >= $2 && y >= $3 && x + ancho <= $4 && y + alto <= $5)) || fallo "the panel at $x,$y leaves the free part $*"
}
no_esta_al_lado() { fallo "the panel at $x,$y is not beside the bar"; }

prueba_arribaQuedaDebajoDeLaBarra() {
  en_el_borde top 0 26 1280 800
  ((y <= 40)) || no_esta_al_lado
}

prueba_abajoQuedaEncimaDeLaBarra() {
  en_el_borde bottom 0 0 1280 774
  ((y + alto >= 760)) || no_esta_al_lado
}

prueba_aLaIzquierdaQuedaASuDerecha() {
  en_el_borde left 24 0 1280 800
  ((x <= 45)) || no_esta_al_lado
}

prueba_aLaDerechaQuedaASuIzquierda() {
  en_el_borde right 0 0 1256 800
  ((x + ancho >= 1235)) || no_esta_al_lado
}

prueba_sobreUnaBarraDeElementosQueNoDiceDondeEstaElIcono() {
  local cx cy
  escritorio lista
  zorve
  barra_sn 8
  espera hay_icono_sn
  read -r cx cy < <(centro "$(casilla_sn)")
  pulsa_en "$cx" "$cy"
  espera panel_con_teclado
  read -r x y _ alto < <(lugar "$(panel)")
  ((x >= 0 && y >= 0 && y + alto <= 773 && y + alto >= 755)) || fallo "the panel at $x,$y is not above the bar"
}

casos "$@"
