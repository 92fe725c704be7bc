#!/usr/bin/env bash
# Pictures of every section of the settings in both languages, of an error, of the keyboard's place, and of both windows
# under high contrast are about the stored ones. They are compared small, so that fonts may differ. RETRATOS=guarda
# stores them anew; RETRATOS_EN=FOLDER keeps them in full size.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
guardados=$aqui/../Datos/retratos
peor=0.02
mal=0

# fotografia NAME WINDOW: as it is now, in full size and small.
fotografia() {
  import -silent -window "$2" "$home/grande.png"
  convert "$home/grande.png" -strip -resize 155x115! "$home/$1.png"
}
distancia() { compare -metric RMSE "$home/$1.png" "$guardados/ajustes-$1.png" null: 2>&1 | sed -E 's/.*\((.*)\)/\1/' || :; }
cerca() { awk -v d="$1" -v p="$peor" 'BEGIN { exit !(d ~ /^[0-9]/ && d <= p) }'; }

# retrato NAME [WINDOW]: the settings as they are now, or that window. A caret comes and goes: what differs is looked at
# again for as long as it blinks.
retrato() {
  local ventana lejos i
  ventana=${2:-$(ajustes)}
  sleep 0.3
  fotografia "$1" "$ventana"
  [ -z "${RETRATOS_EN:-}" ] || cp "$home/grande.png" "$RETRATOS_EN/ajustes-$1.png"
  if [ "${RETRATOS:-}" = guarda ]; then
    cp "$home/$1.png" "$guardados/ajustes-$1.png"
    return
  fi
  for i in 1 2 3 4 5 6 7 8 9; do
    lejos=$(distancia "$1")
    echo "$1, look $i: $lejos"
    cerca "$lejos" && return
    sleep 0.15
    fotografia "$1" "$ventana"
  done
  mal=1
}

escritorio lista
lector
portal
con_pocas_terminales
xdotool mousemove 2 2
muestra
xdotool key ctrl+comma
espera ajustes
espera dice 'page tab "General" [focusable selected selectable]'
retrato general-en
pulsa_opcion Terminal
espera dice_algo 'radio button "Whichever Zorve picks".*checked'
retrato terminal-en
pulsa_opcion About
retrato acerca-en
pulsa_opcion General
pulsa_opcion Español
retrato general-es
pulsa_opcion Terminal
retrato terminal-es
pulsa_opcion 'Acerca de'
retrato acerca-es
pulsa_opcion Terminal
pulsa_opcion kitty
xdotool key Tab Tab Tab Tab Tab
espera dice_algo 'focused.*checked'
retrato foco-es

gsettings set org.gnome.desktop.a11y.interface high-contrast true
retrato contraste-es
: >"$home/.config/autostart"
pulsa_opcion General
pulsa_opcion 'Abrir Zorve al iniciar sesión'
espera dice_algo 'alert "No se pudo'
retrato contraste-banda-es
gsettings set org.gnome.desktop.a11y.interface high-contrast false
retrato banda-es
xdotool key Escape
espera no ajustes
gsettings set org.gnome.desktop.a11y.interface high-contrast true
muestra
retrato contraste-panel-es "$(panel)"
exit "$mal"
