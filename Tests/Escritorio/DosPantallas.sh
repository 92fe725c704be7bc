#!/usr/bin/env bash
# Two screens of different sizes: where the panel comes up.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
izquierda="0 0 1280 1024" derecha="1280 0 2240 720"

# The host of StatusNotifier items knows but monitors with an output.
con_dos_pantallas() {
  escritorio lista -screen 0 2240x1024x24
  monitor DER 960 720 1280 0 screen
  monitor IZQ 1280 1024 0 0 none
  zorve
}

# dentro_de LEFT TOP RIGHT BOTTOM: the panel is.
dentro_de() {
  local x y ancho alto
  read -r x y ancho alto < <(lugar "$(panel)")
  ((x >= $1 && y >= $2 && x + ancho <= $3 && y + alto <= $4)) || fallo "the panel at $x,$y is not within $*"
}

# junto_a_la_bandeja SCREEN EDGE LEFT TOP RIGHT BOTTOM: a click on the icon there; the panel is beside it, in that part.
junto_a_la_bandeja() {
  local x y py palto lejos
  con_dos_pantallas
  bandeja_xembed "$2" "$1"
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 40x40+0+0
  read -r x y < <(centro "$(icono_xembed)")
  pulsa_en "$x" "$y"
  espera panel_con_teclado
  dentro_de "${@:3}"
  read -r _ py _ palto < <(lugar "$(panel)")
  lejos=$([ "$2" = top ] && echo $((py - y)) || echo $((y - py - palto)))
  ((lejos < 40)) || fallo "the panel is $lejos pixels from the icon"
}

# bajo_el_puntero LEFT TOP RIGHT BOTTOM: asked for without a click, with the pointer there.
bajo_el_puntero() {
  con_dos_pantallas
  xdotool mousemove $(($1 + 30)) $(($2 + 700))
  segundo
  espera panel_con_teclado
  dentro_de "$@"
}

# shellcheck disable=SC2086 # four numbers
prueba_enLaPrimeraBajoLaBarraDeArriba() { junto_a_la_bandeja 0 top $izquierda; }
# shellcheck disable=SC2086
prueba_enLaPrimeraSobreLaBarraDeAbajo() { junto_a_la_bandeja 0 bottom $izquierda; }
# shellcheck disable=SC2086
prueba_enLaSegundaBajoLaBarraDeArriba() { junto_a_la_bandeja 1 top $derecha; }
# shellcheck disable=SC2086
prueba_enLaSegundaSobreLaBarraDeAbajo() { junto_a_la_bandeja 1 bottom $derecha; }
# shellcheck disable=SC2086
prueba_sinClicEnLaPrimeraSiAhiEstaElPuntero() { bajo_el_puntero $izquierda; }
# shellcheck disable=SC2086
prueba_sinClicEnLaSegundaSiAhiEstaElPuntero() { bajo_el_puntero $derecha; }

prueba_enLaDeLaBarraDeElementosDondeSePulso() {
  local x y
  con_dos_pantallas
  barra_sn 6
  espera hay_icono_sn
  read -r x y < <(centro "$(casilla_sn)")
  ((x >= 1280)) || fallo "the bar stands at $x"
  pulsa_en "$x" "$y"
  espera panel_con_teclado
  # shellcheck disable=SC2086
  dentro_de $derecha
}

casos "$@"
