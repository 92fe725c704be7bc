#!/usr/bin/env bash
# The icon is dark on a light bar and light on a dark one.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
claro='#f4f6fa' oscuro='#0c161b'

# en_barra_sn DARK COLOUR
en_barra_sn() {
  escritorio lista
  zorve
  barra_sn 6 "$1"
  espera hay_icono_sn
  espera hay_color "$(casilla_sn)" "$2" 24x26+0+0
}

prueba_enUnaBandejaOscuraEsClaro() {
  escritorio lista
  zorve
  bandeja_xembed top 0 --transparent true --alpha 0 --tint 0x202020
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" "$claro" 24x26+0+0
}

prueba_sigueALaBandejaQueTomaElLugarDeOtra() {
  escritorio lista
  zorve
  bandeja_xembed top 0 --transparent true --alpha 0 --tint 0x202020
  espera hay_icono_xembed
  kill "$ultimo"
  espera no hay_icono_xembed
  bandeja_xembed top
  espera hay_icono_xembed
  espera hay_color "$(icono_xembed)" "$oscuro" 24x26+0+0
}

prueba_enUnaBarraDeElementosOscuraEsClaro() { en_barra_sn true "$claro"; }
prueba_enUnaBarraDeElementosClaraEsOscuro() { en_barra_sn false "$oscuro"; }

casos "$@"
