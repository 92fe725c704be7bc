#!/usr/bin/env bash
# What is installed in a folder of its own: a valid desktop entry and the icons; a launcher of desktop entries
# starts the program over the bus, which shows its panel; the program knows its version.
export XDG_DATA_DIRS
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
prefijo=$home/instalado
XDG_DATA_DIRS=$prefijo/share:/usr/share
cmake --install "$bin/.." --prefix "$prefijo" >"$home/instala.out"
entrada=$prefijo/share/applications/com.sarnol.zorve.desktop
desktop-file-validate "$entrada" >"$home/valida.out" || fallo "the desktop entry: $(cat "$home/valida.out")"
[ ! -s "$home/valida.out" ] || fallo "the desktop entry: $(cat "$home/valida.out")"
for icono in scalable/apps/com.sarnol.zorve symbolic/apps/com.sarnol.zorve-symbolic; do
  [ -s "$prefijo/share/icons/hicolor/$icono.svg" ] || fallo "no icon $icono"
done
extension=$prefijo/share/gnome-shell/extensions/zorve-windows@sarnol.com
jq -e '.uuid == "zorve-windows@sarnol.com" and (."shell-version" | length > 0)' "$extension/metadata.json" >/dev/null ||
  fallo "the extension of GNOME Shell: $(cat "$extension/metadata.json")"
[ -s "$extension/extension.js" ] || fallo "no code of the extension"

escritorio lista
lector
dbus-update-activation-environment HOME XDG_CONFIG_HOME XDG_RUNTIME_DIR XDG_DATA_HOME LANG
gtk-launch com.sarnol.zorve
espera panel_visible
espera panel_con_teclado
servidor_del_nombre() {
  dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
    org.freedesktop.DBus.GetConnectionUnixProcessID string:com.sarnol.zorve | awk '/uint32/ { print $2 }'
}
pid=$(servidor_del_nombre)
[ "$(readlink "/proc/$pid/exe")" = "$prefijo/bin/zorve" ] || fallo "another program was started"

xdotool key ctrl+comma
espera ajustes
clase=$(xprop -id "$(ajustes)" WM_CLASS)
[ "$clase" = 'WM_CLASS(STRING) = "zorve", "com.sarnol.zorve"' ] || fallo "the window's class: $clase"
xprop -id "$(ajustes)" _NET_WM_ICON | grep Icon >/dev/null || fallo "the window has no icon"

# It knows its version.
pulsa_opcion About
version=$("$prefijo/bin/zorvectl" --version | grep -oE '[0-9]+\.[0-9]+\.[0-9]+')
espera dice "label \"Zorve $version\" [focusable]"

# Another prefix with a character that the entry cannot hold is refused.
! cmake --install "$bin/.." --prefix "$home/a\$b" >/dev/null 2>"$home/rechazo" || fallo "a prefix with a dollar was taken"
grep -q 'Choose another --prefix' "$home/rechazo" || fallo "the refusal does not say what to do"
xdotool key ctrl+q
espera terminado "$pid"
