#!/usr/bin/env bash
# A change of language is seen at once everywhere, and after the next start.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
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

con_ajustes() {
  escritorio vacia
  lector
  barra_sn 6
  zorve
  muestra
  xdotool key ctrl+comma
  espera dice 'panel "STARTUP"'
}
a_espanol() {
  con_ajustes
  pulsa_opcion Español
  espera dice 'panel "INICIO"'
}

prueba_primeroTodoEstaEnIngles() {
  con_ajustes
  busca_el_icono
  espera menu_dice 'Settings…'
  espera menu_dice 'Quit Zorve'
  espera ayuda_dice "'Zorve'"
}

prueba_losAjustesCambianEnElActo() {
  a_espanol
  espera dice 'page tab "Acerca de" [focusable selectable]'
}

prueba_elMenuDelIconoCambiaEnElActo() {
  a_espanol
  busca_el_icono
  espera menu_dice 'Ajustes…'
  espera menu_dice 'Salir de Zorve'
}

prueba_elPanelLoMuestraAlVolver() {
  a_espanol
  xdotool key Escape
  espera no ajustes
  muestra
  espera dice_algo 'label "sin sesiones"'
  espera dice_algo 'push button "Ajustes" \(Ajustes \(Ctrl\+,\)\)'
}

prueba_elSiguienteArranqueLoRecuerda() {
  a_espanol
  xdotool key Escape
  espera no ajustes
  muestra
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
  zorve
  busca_el_icono
  espera menu_dice 'Ajustes…'
}

casos "$@"
