#!/usr/bin/env bash
# A change of language is seen at once in the settings, in the tray's menu, in the panel, and after the next start.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
escritorio vacia
lector
barra_sn 6
# Where the icon is on the bus: its service and its path.
busca_el_icono() {
  espera hay_icono_sn
  elemento=$(elementos_sn)
  servicio=${elemento%%/*}
}
propiedad() {
  gdbus call --session --dest "$servicio" --object-path "/${elemento#*/}" \
    --method org.freedesktop.DBus.Properties.Get org.kde.StatusNotifierItem "$1"
}
menu_del_icono() {
  gdbus call --session --dest "$servicio" --object-path "$(propiedad Menu | grep -oE "/[^']*")" \
    --method com.canonical.dbusmenu.GetLayout -- 0 -1 '["label"]'
}
menu_dice() { menu_del_icono | grep -F -- "$1"; }
ayuda_dice() { propiedad ToolTip | grep -F -- "$1"; }
en_ingles() { espera menu_dice 'Settings…' && espera menu_dice 'Quit Zorve' && espera ayuda_dice "'Zorve'"; }
en_espanol() { espera menu_dice 'Ajustes…' && espera menu_dice 'Salir de Zorve' && espera ayuda_dice "'Zorve'"; }

zorve
busca_el_icono
en_ingles
muestra
espera dice_algo 'label "no sessions"'
xdotool key ctrl+comma
espera ajustes
espera dice 'panel "STARTUP"'
pulsa_opcion Español
espera dice 'panel "INICIO"'
espera dice 'page tab "Acerca de" [focusable selectable]'
en_espanol
xdotool key Escape
espera no ajustes
muestra
espera dice_algo 'label "sin sesiones"'
espera dice_algo 'push button "Ajustes" \(Ajustes \(Ctrl\+,\)\)'
xdotool key ctrl+q
espera terminado "$zorve_pid"

zorve
busca_el_icono
en_espanol
