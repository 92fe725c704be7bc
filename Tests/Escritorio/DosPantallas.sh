#!/usr/bin/env bash
# Two screens of different sizes: the panel opens on the one whose icon was clicked, wholly on it, beside the bar; asked
# for without an icon, on the one with the pointer.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista -screen 0 2240x1024x24
# The host of StatusNotifier items knows but monitors with an output.
monitor DER 960 720 1280 0 screen
monitor IZQ 1280 1024 0 0 none
izquierda="0 0 1280 1024" derecha="1280 0 2240 720"
zorve

# dentro_de LEFT TOP RIGHT BOTTOM: the panel is.
dentro_de() {
  local x y ancho alto
  read -r x y ancho alto < <(lugar "$(panel)")
  ((x >= $1 && y >= $2 && x + ancho <= $3 && y + alto <= $4)) || fallo "the panel at $x,$y is not within $*"
}
cierra() {
  xdotool key Escape
  espera no panel_visible
}

for cual in 0 1; do
  pantalla=$([ $cual = 0 ] && echo "$izquierda" || echo "$derecha")
  for borde in top bottom; do
    bandeja_xembed "$borde" "$cual"
    bandeja=$ultimo
    espera hay_icono_xembed
    espera hay_color "$(icono_xembed)" '#0c161b' 40x40+0+0
    read -r x y < <(centro "$(icono_xembed)")
    pulsa_en "$x" "$y"
    espera panel_con_teclado
    # shellcheck disable=SC2086 # four numbers
    dentro_de $pantalla
    read -r _ py _ palto < <(lugar "$(panel)")
    lejos=$([ $borde = top ] && echo $((py - y)) || echo $((y - py - palto)))
    ((lejos < 40)) || fallo "screen $cual, $borde: the panel is $lejos pixels from the icon"
    cierra
    kill "$bandeja"
    espera no con_bandeja_xembed
  done
done

barra_sn 6
espera hay_icono_sn
read -r x y < <(centro "$(casilla_sn)")
((x >= 1280)) || fallo "the bar stands at $x"
pulsa_en "$x" "$y"
espera panel_con_teclado
# shellcheck disable=SC2086
dentro_de $derecha
cierra

for pantalla in "$izquierda" "$derecha"; do
  read -r x y _ _ <<<"$pantalla"
  xdotool mousemove $((x + 30)) $((y + 700))
  "$bin/zorve"
  espera panel_con_teclado
  cierra
done
