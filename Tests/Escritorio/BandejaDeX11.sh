#!/usr/bin/env bash
# An XEmbed tray: the icon appears, a click toggles the panel, a right or Control click opens the menu and
# leaves the panel as it is, and the menu quits.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
bandeja_xembed top
zorve
espera hay_icono_xembed
# The tray is light, so the mark is dark.
espera hay_color "$(icono_xembed)" '#0c161b' 24x26+0+0
read -r x y < <(centro "$(icono_xembed)")

pulsa_en "$x" "$y"
espera panel_visible
pulsa_en "$x" "$y"
espera no panel_visible

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

# The key is asked for when the click arrives.
xdotool mousemove "$x" "$y" keydown Control_L click 1
espera menu
xdotool keyup Control_L
! panel_visible || fallo "a Control click opened the panel"
read -r mx my mancho malto < <(lugar "$(menu)")
pulsa_en $((mx + mancho / 2)) $((my + malto - 12))
espera terminado "$zorve_pid"
