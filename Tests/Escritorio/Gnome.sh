#!/usr/bin/env bash
# Under GNOME, with our extension: icon, menu on one click, panel on two and under the icon, typing, Escape, a click on
# the wallpaper; terminals come to the front from behind, minimised and from another workspace, by the helper and by
# Return in the panel; the settings have a frame of their own and their switch works.
# shellcheck source=Tests/Escritorio/comun-gnome.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gnome.sh"
instala_la_extension
escritorio_gnome lista ubuntu-appindicators@ubuntu.com "$uuid"
espera tiene_nombre com.sarnol.zorve.Windows
base
zorve
espera cambiado "$barra"
caja=$(cambiado "$barra")
read -r icono_x icono_y <<<"$(centro_de "$caja")"
panel_abierto() { tiene_el_teclado "$zorve_pid"; }
# Whole, right below the bar, and with the icon above it.
panel_bajo_el_icono() {
  local caja ancho alto x y
  caja=$(cambiado 1280x760+0+33) || return 1
  IFS='x+' read -r ancho alto x y <<<"$caja"
  [ "$ancho" -ge 430 ] && [ "$ancho" -le 450 ] && [ "$alto" -ge 550 ] && [ "$y" -le 42 ] &&
    [ "$x" -le "$icono_x" ] && [ $((x + ancho)) -ge "$icono_x" ]
}
panel_cerrado() { ! tiene_ventana "$zorve_pid"; }

base
mando move "$icono_x" "$icono_y"
mando click
espera cambiado 580x100+700+40
mando key esc
espera no cambiado 580x100+700+40

mando double
espera panel_abierto
espera panel_bajo_el_icono
mando type benchmark
mando key ctrl+c
espera portapapeles_es 00000004-5e55-4000-8000-000000000004
mando key esc
espera panel_cerrado

mando move 300 700
segundo
espera panel_abierto
mando click
espera panel_cerrado

agente
arranca uno foot "$home/bin/claude" uno
uno_pid=$ultimo
espera tiene_ventana "$uno_pid"
arranca dos foot "$home/bin/claude" dos
dos_pid=$ultimo
espera tiene_el_teclado "$dos_pid"
registra 11 uno
registra 12 dos
[ "$("$bin/zorve-terminal" desktop)" = gnome ] || fallo "the extension is not seen"
enfoca foot uno
llega_en_gnome uno a
enfoca foot dos
llega_en_gnome dos b
mando key super+h
espera no tiene_el_teclado "$dos_pid"
enfoca foot dos
llega_en_gnome dos c
mando key super+alt+right
espera no tiene_el_teclado "$dos_pid"
enfoca foot uno
llega_en_gnome uno d

# por_el_panel N NAME KEY
por_el_panel() {
  segundo
  espera panel_abierto
  mando key ctrl+a
  mando type "sesion $2"
  espera copia_en_gnome "$1"
  mando key return
  espera panel_cerrado
  llega_en_gnome "$2" "$3"
}
copia_en_gnome() {
  mando key ctrl+c
  sleep 0.1
  portapapeles_es "$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")"
}
por_el_panel 12 dos e
por_el_panel 11 uno f

# On a workspace without windows.
mando key super+alt+right super+alt+right
espera no tiene_el_teclado "$uno_pid"
base
segundo
espera panel_abierto
mando key ctrl+comma
# With shadow and title 656 by 534 at most; white as a frame of the toolkit's would be, nowhere.
ajustes_en_su_marco() {
  local caja ancho alto
  caja=$(cambiado 1280x760+0+33) || return 1
  IFS='x+' read -r ancho alto _ <<<"$caja"
  [ "$ancho" -ge 618 ] && [ "$ancho" -le 656 ] && [ "$alto" -ge 496 ] && [ "$alto" -le 534 ] || return 1
  [ "$(convert "$home/foto.png" -crop "$caja" +repage -alpha set -fuzz 1% -transparent white -alpha extract -negate \
    -format '%[fx:round(mean*w*h)]' info:)" -lt 50 ]
}
espera ajustes_en_su_marco
# The section Terminal; back from there the section before it, the button that closes, the switch.
mando key tab down shift+tab shift+tab shift+tab space
espera no tiene_nombre com.sarnol.zorve.Windows
[ "$("$bin/zorve-terminal" desktop)" = 'gnome off' ] || fallo "the extension is off and is seen"
! dicho=$(enfoca foot uno 2>&1) || fallo "a foot window came without the extension"
[[ $dicho == *"only through Zorve's extension"* ]] || fallo "without the extension: $dicho"
mando key space
espera tiene_nombre com.sarnol.zorve.Windows
espera tiene_el_teclado "$zorve_pid"
mando key tab space
espera panel_cerrado
enfoca foot dos
llega_en_gnome dos g
