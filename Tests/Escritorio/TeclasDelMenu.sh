#!/usr/bin/env bash
# The icon's menu by keys.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
con_icono() {
  escritorio lista
  bandeja_xembed top
  zorve
  espera hay_icono_xembed
  read -r x y < <(centro "$(icono_xembed)")
}
abre_menu() {
  pulsa_en "$x" "$y" 3
  espera menu
}
# abre_los_ajustes KEYS...: in a menu of its own, these keys open them and the menu goes.
abre_los_ajustes() {
  con_icono
  abre_menu
  xdotool key "$@"
  espera ajustes
  espera no menu
}

prueba_abajoYReturnAbrenLosAjustes() { abre_los_ajustes Down Return; }
prueba_arribaDaLaVuelta() { abre_los_ajustes Up Up Return; }
prueba_finEInicioVanALosExtremos() { abre_los_ajustes End Home Return; }
prueba_losAtajosQueMuestraValen() { abre_los_ajustes ctrl+comma; }

prueba_escapeLoCierraYDejaElPanel() {
  con_icono
  muestra
  abre_menu
  xdotool key End Escape
  espera no menu
  panel_visible || fallo "the panel went with the menu"
}

prueba_laUltimaEntradaSale() {
  con_icono
  abre_menu
  xdotool key Home End Return
  espera terminado "$zorve_pid"
}

prueba_controlQSale() {
  con_icono
  abre_menu
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
}

casos "$@"
