# shellcheck shell=bash
# shellcheck disable=SC2154 # what comun.sh sets
# Tray hosts of both kinds, and where the program's icon and menu are in them. Sourced by comun.sh.

# bandeja_xembed [EDGE [MONITOR [OPTIONS...]]]: an XEmbed host, which not every release has.
bandeja_xembed() {
  command -v trayer >/dev/null || salta "trayer is not installed, which not every release has"
  arranca trayer trayer --edge "${1:-top}" --align right --widthtype request --heighttype pixel --height 26 \
    --SetDockType true --SetPartialStrut true --transparent false --monitor "${2:-0}" "${@:3}"
  espera con_bandeja_xembed
}
con_bandeja_xembed() { xprop -root _NET_CLIENT_LIST && xdotool search --class trayer; }
# The icon's window in an XEmbed tray.
icono_xembed() { xwininfo -root -tree | awk '/"Zorve": \("zorve"/ && !/ (440x560|620x460|1x1)\+/ { print $1; exit }'; }
hay_icono_xembed() { [ -n "$(icono_xembed)" ]; }

# barra_sn EDGE [DARK]: a bar whose one thing is a StatusNotifier host. EDGE is xfce4-panel's number of an edge (6 the
# top, 8 the bottom), DARK true or false.
barra_sn() {
  local canal=$home/.config/xfce4/xfconf/xfce-perchannel-xml
  mkdir -p "$canal"
  cat >"$canal/xfce4-panel.xml" <<FIN
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="${2:-true}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=$1;x=0;y=0"/>
      <property name="output-name" type="string" value="Automatic"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="26"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
FIN
  NO_AT_BRIDGE=1 arranca barra xfce4-panel --disable-wm-check
  # shellcheck disable=SC2034 # the tests read it
  barra=$ultimo
  espera tiene_nombre org.kde.StatusNotifierWatcher
}
# The host's own window; it is as wide as its icons.
casilla_sn() {
  local cada
  for cada in $(xdotool search --onlyvisible --class '^wrapper-2.0$' 2>/dev/null); do
    [ "$(lugar "$cada" | cut -d' ' -f3)" -gt 12 ] && echo "$cada" && return 0
  done
  return 1
}
# The host makes the place before the button in it: only what is drawn takes clicks. A bar of one colour has no icon.
hay_icono_sn() {
  local casilla
  casilla=$(casilla_sn) && [ "$(import -silent -window "$casilla" png:- | convert png:- -format %k info:)" -gt 12 ]
}
# The menu that the host draws, which is ours. Its tooltip is as high as a menu, but narrow.
menu_sn() {
  local cada ancho alto
  for cada in $(xdotool search --onlyvisible --class '^wrapper-2.0$' 2>/dev/null); do
    read -r _ _ ancho alto < <(lugar "$cada")
    [ "$alto" -gt 40 ] && [ "$ancho" -gt 100 ] && echo "$cada" && return 0
  done
  return 1
}
# The items that the host knows: the bus name and the path of each.
elementos_sn() {
  dbus-send --session --print-reply --dest=org.kde.StatusNotifierWatcher /StatusNotifierWatcher \
    org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierWatcher string:RegisteredStatusNotifierItems |
    sed -nE 's/.*string "([^"]*)".*/\1/p'
}
hay_elemento() { [ -n "$(elementos_sn)" ]; }

# The program's menu: a visible window of its own, neither panel nor settings, wider than an icon.
menu() {
  local cada ancho alto
  for cada in $(xdotool search --onlyvisible --class zorve 2>/dev/null); do
    read -r _ _ ancho alto < <(lugar "$cada")
    [ "$ancho $alto" = '440 560' ] || [ "$ancho $alto" = '620 460' ] || [ "$ancho" -lt 80 ] || {
      echo "$cada"
      return 0
    }
  done
  return 1
}
