#!/usr/bin/env bash
# Start at login: the box writes an autostart entry with the program's absolute path, which a session starter runs; it
# is removed again; a failure shows its band, and the box what is really so.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
export XDG_CONFIG_DIRS=$casa/nada
escritorio lista
lector
zorve
abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
}
sale() {
  xdotool key ctrl+q
  espera no tiene_nombre com.sarnol.zorve
}
caja='Open Zorve at login'
entrada=$casa/.config/autostart/com.sarnol.zorve.desktop

# A file stands where the folder should be.
: >"$casa/.config/autostart"
abre_ajustes
pulsa_opcion "$caja"
espera dice_algo 'alert "Could not change the launch-at-login setting: .*\."$'
espera dice "check box \"$caja\" [focusable]"
rm "$casa/.config/autostart"
pulsa_opcion "$caja"
espera dice "check box \"$caja\" [focusable checked]"
espera no dice_algo 'alert "'
desktop-file-validate "$entrada"
grep -qxF "Exec=\"$(realpath "$bin")/zorve\"" "$entrada" || fallo "the entry: $(cat "$entrada")"
sale

dex --autostart
espera tiene_nombre com.sarnol.zorve
! panel_visible || fallo "the panel opened at login"
abre_ajustes
espera dice "check box \"$caja\" [focusable checked]"
# Removed behind the window's back: the next showing knows.
xdotool key Escape
espera no ajustes
rm "$entrada"
abre_ajustes
espera dice "check box \"$caja\" [focusable]"
pulsa_opcion "$caja"
espera dice "check box \"$caja\" [focusable checked]"
pulsa_opcion "$caja"
espera dice "check box \"$caja\" [focusable]"
[ ! -e "$entrada" ] || fallo "the entry stays after it was switched off"
sale
dex --autostart
sleep 0.5
! tiene_nombre com.sarnol.zorve || fallo "a session without the entry starts it"
