#!/usr/bin/env bash
# What the person asks of every program, through the real portal.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
contraste() { gsettings set org.gnome.desktop.a11y.interface high-contrast "$1"; }
sobre_fondo_rojo() {
  escritorio lista
  portal
  hsetroot -solid '#ff0000'
  compositor
  zorve
  muestra
}
esquina_roja() { [ "$(cuantos_pixeles root '#ff0000' "2x2+$1")" -ge 1 ]; }

prueba_conAltoContrasteElPanelEsOpacoYDeEsquinasRectas() {
  local x y
  sobre_fondo_rojo
  read -r x y _ _ < <(lugar "$(panel)")
  espera esquina_roja "$x+$y"
  contraste true
  espera no esquina_roja "$x+$y"
  contraste false
  espera esquina_roja "$x+$y"
}

# The outline of the option that is marked: the accent itself, not a fifth of it.
borde_fuerte() { [ "$(cuantos_pixeles "$(ajustes)" '#2dd4bf' 430x460+170+0)" -gt 700 ]; }

prueba_conAltoContrasteLosAjustesTienenBordesFuertes() {
  sobre_fondo_rojo
  xdotool key ctrl+comma
  espera ajustes
  espera no borde_fuerte
  contraste true
  espera borde_fuerte
  contraste false
  espera no borde_fuerte
}

hay_cursor() { hay_color "$(panel)" '#2dd4bf' 20x55+44+0; }
# A caret that blinks is away for half of each second.
fijo_un_rato() {
  local hasta=$(($(date +%s%N) + 1500000000))
  while [ "$(date +%s%N)" -lt "$hasta" ]; do hay_cursor || return 1; done
}

prueba_sinAnimacionesElCursorNoParpadea() {
  sobre_fondo_rojo
  espera hay_cursor
  espera no hay_cursor
  gsettings set org.gnome.desktop.interface enable-animations false
  espera fijo_un_rato
}

prueba_lasVentanasCrecenConElTextoDelEscritorio() {
  escritorio lista
  echo 'Xft.dpi: 120' | xrdb -merge
  zorve
  segundo
  espera ventana '550 700'
  xdotool key ctrl+comma
  espera ventana '775 575'
}

casos "$@"
