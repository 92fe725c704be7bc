#!/usr/bin/env bash
# Settings that are damaged or cannot be written: the window says so in its band and shows what is in force, and the
# file stays byte for byte as it was.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio lista
lector
con_pocas_terminales
archivo=$casa/.config/com.sarnol.zorve/preferences.json
abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
}
intacto() { cmp "$casa/antes" "$archivo" || fallo "the settings were overwritten"; }

preferencias '{"zorve.idioma":"en", "mío": '
cp "$archivo" "$casa/antes"
abre_ajustes
espera dice_algo 'alert ".*preferences.json: the file is not a JSON object. Correct or delete it'
# The language holds for this run, and the band says that it is not kept.
pulsa_opcion Español
espera dice 'radio button "Español" [focusable checked]'
espera dice_algo 'alert ".*preferences.json'
intacto
pulsa_opcion English
pulsa_opcion Terminal
pulsa_opcion kitty
sleep 0.3
espera dice_algo 'alert ".*preferences.json'
intacto
xdotool key Escape
espera no ajustes

# Mended by hand, it is read again at the next showing.
# The notice of a missing tray, three seconds after the start, has nothing to note in it.
preferencias '{"zorve.terminalElegida":"kitty","zorve.avisoDeBandejaMostrado":true}'
cp "$archivo" "$casa/antes"
abre_ajustes
espera dice 'radio button "kitty" [focusable checked]'
espera no dice_algo 'alert "'
xdotool key Escape
espera no ajustes

# Where nothing can be written, not even by root.
mv "$casa/.config/com.sarnol.zorve" "$casa/.config/aparte"
ln -s /proc/self "$casa/.config/com.sarnol.zorve"
abre_ajustes
pulsa_opcion xterm
espera dice_algo 'alert ".*preferences.json'
espera no dice 'radio button "xterm" [focusable checked]'
cmp "$casa/antes" "$casa/.config/aparte/preferences.json" || fallo "the settings were lost"
