#!/usr/bin/env bash
# Under sway no state of the panel lets the bare backdrop through: what is painted in parts has the glass below it.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
chillon='#ff00ff'

# Pixels of about the backdrop's colour inside the outline and the corners.
huecos() {
  local x y
  read -r x y < <(panel_en_sway | jq -r '"\(.rect.x + .window_rect.x) \(.rect.y + .window_rect.y)"')
  grim -t ppm -g "$((x + 6)),$((y + 6)) 428x548" "$home/panel.ppm"
  convert "$home/panel.ppm" -alpha set -fuzz 30% -transparent "$chillon" -alpha extract -negate \
    -format '%[fx:round(mean*w*h)]' info:
}

# estado NAME WTYPE...: the keys; then the panel is whole.
estado() {
  local cuantos
  wtype "${@:2}"
  sleep 0.4
  cuantos=$(huecos)
  [ "$cuantos" = 0 ] || fallo "$1 at $escala: $cuantos pixels of the backdrop"
}

recorre() {
  segundo
  espera panel_con_teclado_en_sway
  estado "shown" -s 100
  estado "moving" -k Down -k Down -k Down
  estado "moving back" -k Up
  estado "typing" parser
  estado "nothing found" zzz
  estado "typing anew" -M ctrl a -m ctrl b
  estado "typing less" -k BackSpace
  echo '{' >>"$home/.claude/history.jsonl"
  estado "band coming" -M ctrl r -m ctrl
  sed -i '$d' "$home/.claude/history.jsonl"
  estado "band going" -M ctrl r -m ctrl
  wtype -k Escape
  espera no panel_en_sway
}

# sin_huecos SCALE
sin_huecos() {
  escala=$1
  escritorio_sway lista "output * bg $chillon solid_color" 'default_floating_border none'
  teclado
  zorve
  swaymsg output HEADLESS-1 resolution 1600x1400 scale "$escala" >/dev/null
  recorre
  ! grep 'Binding loop' "$home/zorve.err" || fallo "the views ask for their own sizes in a circle"
}

prueba_aEscalaUnoNoHayHuecos() { sin_huecos 1; }
prueba_aEscalaUnoYMedioNoHayHuecos() { sin_huecos 1.5; }
prueba_aEscalaDosNoHayHuecos() { sin_huecos 2; }

casos "$@"
