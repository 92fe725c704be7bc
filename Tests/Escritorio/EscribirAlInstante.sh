#!/usr/bin/env bash
# Who clicks the icon and types on loses nothing: every letter is in the search.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

# teclea X Y: clicks there and types a tenth of a second later.
teclea() {
  xdotool mousemove "$1" "$2" click 1 sleep 0.1 type --delay 1 surrog
  espera copiado_es 2
  xdotool key ctrl+a BackSpace Up Up
  espera copiado_es 1
}

prueba_nadaSePierdeTrasUnClicEnUnaBandejaDeX11() {
  escritorio lista
  bandeja_xembed top
  zorve
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" '#0c161b' 24x26+0+0
  read -r x y < <(centro "$(icono_xembed)")
  teclea "$x" "$y"
}

prueba_nadaSePierdeTrasUnClicEnUnaBarraDeElementos() {
  escritorio lista
  barra_sn 6
  zorve
  espera hay_icono_sn
  read -r x y < <(centro "$(casilla_sn)")
  teclea "$x" "$y"
}

casos "$@"
