#!/usr/bin/env bash
# The very first start shows the panel by itself; without a tray it says so, once.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
rm "$casa/.config/com.sarnol.zorve/preferences.json"
zorve
espera panel_visible
avisa() { hay_color "$(panel)" '#2dd4bf' 40x90+10+58; }
espera avisa
xdotool key Escape
espera no panel_visible
xdotool mousemove 5 5
muestra
sleep 0.3
! avisa || fallo "the notice is still there"
xdotool key ctrl+q
espera terminado "$zorve_pid"
zorve
sleep 3.5
! panel_visible || fallo "the second start showed the panel"
muestra
sleep 0.3
! avisa || fallo "the notice came twice"
