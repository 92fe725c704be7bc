#!/usr/bin/env bash
# Under GNOME without our extension, with --all alone: X11 windows come by the X way, GNOME's own terminals by the leave
# of the key press in the panel, and of others it is said what is missing.
solo_con_all=si
# shellcheck source=Tests/Escritorio/comun-gnome.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gnome.sh"
for programa in kgx gnome-terminal; do
  command -v "$programa" >/dev/null || salta "$programa is not installed"
done
export SHELL=/bin/sh
escritorio_gnome vacia ubuntu-appindicators@ubuntu.com
# GNOME Terminal names its sessions only with its search provider on.
printf '[org/gnome/terminal/legacy]\nshell-integration-enabled=true\n' >>"$home/.config/glib-2.0/settings/keyfile"
agente
base
zorve
espera cambiado "$barra"
read -r icono_x icono_y <<<"$(centro_de "$(cambiado "$barra")")"

# abre TERMINAL N NAME: a window of it, seen, with the stand-in as the running session N.
abre() {
  base
  "$bin/zorve-terminal" open "$1" "$home" "'$home/bin/claude' $3" || fallo "$1 does not open"
  registra "$2" "$3"
  espera cambiado 1280x760+0+33
  base
}
# Whole, right of the terminals.
panel_a_la_vista() {
  local ancho alto
  IFS='x+' read -r ancho alto _ <<<"$(cambiado 1280x760+0+33)"
  [ "${ancho:-0}" -ge 430 ] && [ "$alto" -ge 550 ]
}
# por_el_icono N NAME KEY: the panel by a double click on the icon, the session by Return, then a key for it. No key is
# pressed before the panel is there, since it would be typed into a terminal.
por_el_icono() {
  base
  mando move "$icono_x" "$icono_y"
  mando double
  espera panel_a_la_vista
  mando type "sesion $2"
  base
  mando key ctrl+c
  espera portapapeles_es "$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")"
  mando key return
  espera cambiado 1280x760+0+33
  base
  llega_en_gnome "$2" "$3"
}

[ "$("$bin/zorve-terminal" desktop)" = 'gnome off' ] ||
  fallo "the desktop is taken for: $("$bin/zorve-terminal" desktop)"
abre xterm 1 uno
abre xterm 2 dos
enfoca xterm uno
llega_en_gnome uno a
enfoca xterm dos
llega_en_gnome dos b

abre org.gnome.Terminal 3 tres
abre org.gnome.Console 4 cuatro
por_el_icono 3 tres c
por_el_icono 4 cuatro d

abre foot 5 cinco
enfoca xterm uno
! dicho=$(enfoca foot cinco 2>&1) || fallo "a foot window came without the extension"
[[ $dicho == *"only through Zorve's extension"* ]] || fallo "without the extension: $dicho"
llega_en_gnome uno e
