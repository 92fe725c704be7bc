#!/usr/bin/env bash
# Where the host answers a single click with the menu, the menu begins with an entry that opens the panel; where it does
# not there are two entries, and an XEmbed icon has two as well.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
entradas() {
  gdbus call --session --dest "$(elementos_sn | cut -d/ -f1)" --object-path /MenuBar \
    --method com.canonical.dbusmenu.GetLayout 0 -- -1 '[]' | grep -oE "'label': <'[^']*'>" | sed -E "s/.*<'(.*)'>/\1/" | tr '\n' ' '
}
entradas_son() { [ "$(entradas)" = "$1" ]; }
anfitrion=/usr/libexec/ayatana-indicator-application/ayatana-indicator-application-service
arranca menus "$anfitrion"
menus=$ultimo
espera tiene_nombre org.kde.StatusNotifierWatcher
# The name of the desktop alone says nothing about its tray.
export XDG_CURRENT_DESKTOP=Other
zorve
espera hay_elemento
espera entradas_son 'Zorve Settings… Quit Zorve '
id=$(gdbus call --session --dest "$(elementos_sn | cut -d/ -f1)" --object-path /MenuBar \
  --method com.canonical.dbusmenu.GetLayout 0 -- -1 '[]' | grep -oE "\([0-9]+, \{[^}]*'Zorve'" | grep -oE '^\([0-9]+' | tr -d '(')
gdbus call --session --dest "$(elementos_sn | cut -d/ -f1)" --object-path /MenuBar \
  --method com.canonical.dbusmenu.Event "$id" clicked "<''>" 0 >/dev/null
espera panel_con_teclado
xdotool key Escape
espera no panel_visible

# Another host takes its place.
kill "$menus"
espera no tiene_nombre org.kde.StatusNotifierWatcher
export XDG_CURRENT_DESKTOP=Budgie:GNOME
barra_sn 6
espera hay_elemento
espera entradas_son 'Settings… Quit Zorve '
