#!/usr/bin/env bash
# Where the host answers a single click with the menu, the menu begins with an entry that opens the panel.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
del_menu() {
  gdbus call --session --dest "$(elementos_sn | cut -d/ -f1)" --object-path /MenuBar --method "com.canonical.dbusmenu.$1" "${@:2}"
}
entradas() { del_menu GetLayout 0 -- -1 '[]' | grep -oE "'label': <'[^']*'>" | sed -E "s/.*<'(.*)'>/\1/" | tr '\n' ' '; }
entradas_son() { [ "$(entradas)" = "$1" ]; }
# The name of the desktop alone says nothing about its tray.
con_anfitrion_de_menus() {
  escritorio lista
  arranca menus /usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service
  menus=$ultimo
  espera tiene_nombre org.kde.StatusNotifierWatcher
  export XDG_CURRENT_DESKTOP=Other
  zorve
  espera hay_elemento
  espera entradas_son 'Zorve Settings… Quit Zorve '
}

prueba_laPrimeraEntradaAbreElPanel() {
  local id
  con_anfitrion_de_menus
  id=$(del_menu GetLayout 0 -- -1 '[]' | grep -oE "\([0-9]+, \{[^}]*'Zorve'" | grep -oE '^\([0-9]+' | tr -d '(')
  del_menu Event "$id" clicked "<''>" 0 >/dev/null
  espera panel_con_teclado
}

prueba_conOtroAnfitrionYaNoHaceFalta() {
  con_anfitrion_de_menus
  kill "$menus"
  espera no tiene_nombre org.kde.StatusNotifierWatcher
  export XDG_CURRENT_DESKTOP=Budgie:GNOME
  barra_sn 6
  espera hay_elemento
  espera entradas_son 'Settings… Quit Zorve '
}

casos "$@"
