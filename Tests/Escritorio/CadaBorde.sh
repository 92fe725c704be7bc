#!/usr/bin/env bash
# With the tray at each edge the panel stands beside the bar and wholly on the free part of the screen.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
zorve
for borde in top bottom left right; do
  bandeja_xembed "$borde"
  bandeja=$ultimo
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 40x40+0+0
  read -r cx cy < <(centro "$(icono_xembed)")
  pulsa_en "$cx" "$cy"
  espera panel_visible
  espera panel_con_teclado
  read -r x y ancho alto < <(lugar "$(panel)")
  case "$borde" in
  top) libre="0 26 1280 800" ;;
  bottom) libre="0 0 1280 774" ;;
  left) libre="24 0 1280 800" ;;
  right) libre="0 0 1256 800" ;;
  esac
  read -r l a r b <<<"$libre"
  ((x >= l && y >= a && x + ancho <= r && y + alto <= b)) ||
    fallo "$borde: the panel at $x,$y leaves the free part $libre"
  case "$borde" in
  top) [ "$y" -le 40 ] ;;
  bottom) [ $((y + alto)) -ge 760 ] ;;
  left) [ "$x" -le 45 ] ;;
  right) [ $((x + ancho)) -ge 1235 ] ;;
  esac || fallo "$borde: the panel at $x,$y is not beside the bar"
  xdotool key Escape
  espera no panel_visible
  kill "$bandeja"
  espera no con_bandeja_xembed
done
# The same for a StatusNotifier host, which does not tell where its icon is.
barra_sn 8
espera hay_icono_sn
read -r cx cy < <(centro "$(casilla_sn)")
pulsa_en "$cx" "$cy"
espera panel_con_teclado
read -r x y _ alto < <(lugar "$(panel)")
((x >= 0 && y >= 0 && y + alto <= 773 && y + alto >= 755)) || fallo "the panel at $x,$y is not above the bar"
