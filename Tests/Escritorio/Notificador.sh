#!/usr/bin/env bash
# A StatusNotifier host: the item registers, a click toggles the panel, which hangs below the bar.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
arranca panel xfce4-panel --disable-wm-check
espera tiene_nombre org.kde.StatusNotifierWatcher
zorve
registrado() {
  dbus-send --session --print-reply --dest=org.kde.StatusNotifierWatcher /StatusNotifierWatcher \
    org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierWatcher string:RegisteredStatusNotifierItems |
    grep -q StatusNotifierItem
}
espera registrado
! hay_icono_xembed || fallo "an XEmbed icon beside the StatusNotifier item"
item=$(dbus-send --session --print-reply --dest=org.kde.StatusNotifierWatcher /StatusNotifierWatcher \
  org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierWatcher string:RegisteredStatusNotifierItems |
  sed -nE 's/.*string "([^"]*)".*/\1/p')
activa() {
  dbus-send --session --print-reply --dest="${item%%/*}" "/${item#*/}" org.kde.StatusNotifierItem.Activate int32:0 int32:0
}
xdotool mousemove 1160 12
activa
espera panel_visible
espera panel_con_teclado
read -r x y ancho alto < <(lugar "$(panel)")
((y >= 24 && y <= 48)) || fallo "the panel stands at $y, not below the bar"
((x > 800 && x + ancho <= 1280)) || fallo "the panel stands at $x, not at the pointer"
activa
espera no panel_visible
