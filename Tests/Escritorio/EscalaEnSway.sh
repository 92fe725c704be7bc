#!/usr/bin/env bash
# Under Wayland both windows are as much larger as the desktop's text is, also while they are open.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio_sway lista 'default_floating_border none'
portal
gsettings set org.gnome.desktop.interface text-scaling-factor 1.25
teclado
zorve
segundo
espera ventana_de_sway com.sarnol.zorve 550 700
wtype -M ctrl , -m ctrl
espera ventana_de_sway com.sarnol.zorve 775 575
gsettings set org.gnome.desktop.interface text-scaling-factor 1
espera ajustes_en_sway
wtype -k Escape
espera no ajustes_en_sway
segundo
espera panel_en_sway
