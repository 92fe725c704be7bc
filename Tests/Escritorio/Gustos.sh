#!/usr/bin/env bash
# What the person asks of every program, through the real portal: high contrast makes both windows opaque with square
# corners and strong lines, at once, and goes again; less motion stops the blinking caret; Xft.dpi enlarges all.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio lista
portal
hsetroot -solid '#ff0000'
compositor
zorve
muestra
esquina_roja() { [ "$(cuantos_pixeles_de_pantalla '#ff0000' "2x2+$1")" -ge 1 ]; }
cuantos_pixeles_de_pantalla() { cuantos_pixeles root "$1" "$2"; }
read -r x y _ _ < <(lugar "$(panel)")
espera esquina_roja "$x+$y"
gsettings set org.gnome.desktop.a11y.interface high-contrast true
espera no esquina_roja "$x+$y"
xdotool key ctrl+comma
espera ajustes
# The outline of the option that is marked: the accent itself, not a fifth of it.
borde_fuerte() { [ "$(cuantos_pixeles "$(ajustes)" '#2dd4bf' 430x460+170+0)" -gt 700 ]; }
espera borde_fuerte
gsettings set org.gnome.desktop.a11y.interface high-contrast false
espera no borde_fuerte
xdotool key Escape
muestra
espera esquina_roja "$x+$y"

# The caret stands still.
gsettings set org.gnome.desktop.interface enable-animations false
sleep 0.3
hay_cursor() { hay_color "$(panel)" '#2dd4bf' 20x55+44+0; }
for ((i = 0; i < 14; i++)); do
  hay_cursor || fallo "the caret blinks"
  sleep 0.1
done
xdotool key ctrl+q
espera terminado "$zorve_pid"

echo 'Xft.dpi: 120' | xrdb -merge
zorve
segundo
espera ventana '550 700'
xdotool key ctrl+comma
espera ventana '775 575'
