#!/usr/bin/env bash
# A click on the desktop, on another window or another window's taking the keyboard closes the panel, and the
# click does its work there; Escape gives the keyboard back to whoever had it.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
arranca victima xterm -T victima -geometry 40x10+800+500 -e cat
victima() { xdotool search --onlyvisible --name '^victima$'; }
espera victima
v=$(victima | head -n 1)
tiene_victima() { [ "$(xdotool getwindowfocus)" = "$v" ] || [ "$(xdotool getactivewindow)" = "$v" ]; }
activa_victima() { xdotool windowactivate "$v" && tiene_victima; }
espera activa_victima
zorve
muestra
xdotool key Escape
espera no panel_visible
espera tiene_victima
xdotool type "despues"
muestra
pulsa_en 60 760
espera no panel_visible
muestra
read -r x y < <(centro "$v")
pulsa_en "$x" "$y"
espera no panel_visible
espera tiene_victima
muestra
read -r x y ancho alto < <(lugar "$(panel)")
pulsa_en $((x + 200)) $((y + 30))
sleep 0.5
panel_visible || fallo "a click inside closed it"
