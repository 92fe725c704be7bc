#!/usr/bin/env bash
# Under Wayland both windows are as much larger as the desktop's text is.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
con_texto_de_125() {
  escritorio_sway lista 'default_floating_border none'
  portal
  gsettings set org.gnome.desktop.interface text-scaling-factor 1.25
  teclado
  zorve
  segundo
  espera ventana_de_sway com.sarnol.zorve 550 700
}

prueba_elPanelYLosAjustesCrecenConElTexto() {
  con_texto_de_125
  wtype -M ctrl , -m ctrl
  espera ventana_de_sway com.sarnol.zorve 775 575
}

prueba_losAjustesAbiertosCambianConEl() {
  con_texto_de_125
  wtype -M ctrl , -m ctrl
  espera ventana_de_sway com.sarnol.zorve 775 575
  gsettings set org.gnome.desktop.interface text-scaling-factor 1
  espera ajustes_en_sway
}

prueba_elPanelAbiertoCambiaConEl() {
  con_texto_de_125
  gsettings set org.gnome.desktop.interface text-scaling-factor 1
  espera panel_en_sway
}

casos "$@"
