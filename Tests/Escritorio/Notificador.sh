#!/usr/bin/env bash
# A StatusNotifier host, with a real pointer.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
con_icono() {
  escritorio lista
  barra_sn 6
  zorve
  espera hay_icono_sn
  read -r x y < <(centro "$(casilla_sn)")
}
con_menu_del_anfitrion() {
  con_icono
  pulsa_en "$x" "$y"
  espera panel_con_teclado
  pulsa_en "$x" "$y" 3
  espera menu_sn
}

prueba_elIconoEstaUnaSolaVez() {
  con_icono
  ! hay_icono_xembed || fallo "an XEmbed icon beside the StatusNotifier item"
}

prueba_unClicCuelgaElPanelDeLaBarraYOtroLoEsconde() {
  local px py
  con_icono
  for _ in 1 2; do
    pulsa_en "$x" "$y"
    espera panel_visible
    espera panel_con_teclado
    read -r px py _ _ < <(lugar "$(panel)")
    ((py >= 27 && py <= 40)) || fallo "the panel stands at $py, not below the bar"
    ((px <= x)) || fallo "the panel stands at $px, not at the icon"
    pulsa_en "$x" "$y"
    espera no panel_visible
  done
}

# The host draws the menu on a right click.
prueba_elMenuDelAnfitrionDejaElPanel() {
  con_menu_del_anfitrion
  panel_visible || fallo "the menu took the panel away"
  xdotool key Escape
  espera no menu_sn
  panel_visible || fallo "closing the menu took the panel away"
}

prueba_suPrimeraEntradaAbreLosAjustesPorElPuntero() {
  local mx my mancho
  con_menu_del_anfitrion
  read -r mx my mancho _ < <(lugar "$(menu_sn)")
  pulsa_en $((mx + mancho / 2)) $((my + 14))
  espera ajustes
  ! panel_visible || fallo "the panel is beside the settings"
}

prueba_suUltimaEntradaSalePorElTeclado() {
  con_menu_del_anfitrion
  xdotool key Up Return
  espera terminado "$zorve_pid"
}

# We draw it on a Control click. The host tells of the click, not of the key: that one is held until the click arrived.
prueba_unClicConControlAbreNuestroMenuYElTecladoLoAnda() {
  con_icono
  xdotool mousemove "$x" "$y" keydown Control_L click 1
  espera menu
  xdotool keyup Control_L
  ! panel_visible || fallo "a Control click opened the panel"
  xdotool key Home Return
  espera ajustes
}

prueba_trasLosAjustesElIconoSigueRespondiendo() {
  con_icono
  muestra
  xdotool key ctrl+comma
  espera ajustes
  xdotool key ctrl+w
  espera no ajustes
  pulsa_en "$x" "$y"
  espera panel_visible
}

casos "$@"
