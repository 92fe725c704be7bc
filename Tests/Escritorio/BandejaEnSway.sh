#!/usr/bin/env bash
# Under Wayland, an icon in the bar's tray.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
# The bar runs beside the compositor, since that one may be another user, whom the bus does not know.
con_icono() {
  escritorio_sway lista 'default_floating_border none' 'focus_on_window_activation focus' \
    'bar {' 'id abajo' 'swaybar_command true' 'tray_output *' '}'
  arranca barra swaybar -b abajo -s "$SWAYSOCK"
  espera tiene_nombre org.kde.StatusNotifierWatcher
  teclado
  WAYLAND_DEBUG=client zorve
  espera hay_elemento
  elemento=$(elementos_sn)
}
pide() {
  gdbus call --session --dest "${elemento%%/*}" --object-path "/${elemento#*/}" \
    --method "org.kde.StatusNotifierItem.$1" "${@:2}" >/dev/null
}

prueba_unClicAbreElPanelConElTestigoDeLaBarra() {
  con_icono
  pide ProvideXdgActivationToken del-clic
  pide Activate 0 0
  espera panel_con_teclado_en_sway
  espera grep -q 'xdg_activation_v1[@#].*activate("del-clic"' "$home/zorve.err"
}

prueba_otroClicLoCierra() {
  con_icono
  pide Activate 0 0
  espera panel_con_teclado_en_sway
  pide Activate 0 0
  espera no panel_en_sway
}

prueba_seCierraCuandoOtraVentanaTieneElTeclado() {
  con_icono
  pide Activate 0 0
  espera panel_con_teclado_en_sway
  arranca otra foot sleep 300
  espera con_teclado_en_sway foot
  espera no panel_en_sway
}

casos "$@"
