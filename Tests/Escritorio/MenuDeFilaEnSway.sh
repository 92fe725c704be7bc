#!/usr/bin/env bash
# A row's menu under a Wayland compositor, by the keyboard: what is chosen is done, and the panel keeps the keyboard.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$aqui/comun-gustos.sh"
escritorio_sway lista 'default_floating_border none' 'focus_on_window_activation focus'
teclado
lector
zorve
XDG_ACTIVATION_TOKEN=uno segundo
espera panel_con_teclado_en_sway
wtype -k Menu
sleep 0.5
wtype -k Down -k Return
espera dice_algo 'Copied: 00000001-5e55-4000-8000-000000000001'
panel_con_teclado_en_sway || fallo "the panel lost the keyboard"
wtype -M shift -k F10 -m shift
sleep 0.5
wtype -k Escape
sleep 0.3
panel_con_teclado_en_sway || fallo "Escape closed more than the menu"
wtype -k Escape
espera no panel_en_sway
