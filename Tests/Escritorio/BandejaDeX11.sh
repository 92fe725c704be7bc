#!/usr/bin/env bash
# An XEmbed tray, with a real pointer.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

# The tray is light, so the mark is dark.
con_icono() {
  escritorio lista
  bandeja_xembed top
  zorve
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 24x26+0+0
  read -r x y < <(centro "$(icono_xembed)")
}

prueba_unClicMuestraElPanelYOtroLoEsconde() {
  con_icono
  pulsa_en "$x" "$y"
  espera panel_visible
  pulsa_en "$x" "$y"
  espera no panel_visible
}

prueba_elBotonDerechoAbreElMenuYDejaElPanel() {
  con_icono
  pulsa_en "$x" "$y"
  espera panel_visible
  pulsa_en "$x" "$y" 3
  espera menu
  panel_visible || fallo "the menu took the panel away"
  xdotool key Escape
  espera no menu
  panel_visible || fallo "closing the menu took the panel away"
  pulsa_en "$x" "$y"
  espera no panel_visible
}

# The key is asked for when the click arrives.
prueba_unClicConControlAbreElMenuYSuUltimaEntradaSale() {
  local mx my mancho malto
  con_icono
  xdotool mousemove "$x" "$y" keydown Control_L click 1
  espera menu
  xdotool keyup Control_L
  ! panel_visible || fallo "a Control click opened the panel"
  read -r mx my mancho malto < <(lugar "$(menu)")
  pulsa_en $((mx + mancho / 2)) $((my + malto - 12))
  espera terminado "$zorve_pid"
}

casos "$@"
