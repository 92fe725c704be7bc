#!/usr/bin/env bash
# The settings closed by the window manager.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
clase() { xprop -id "$(ajustes)" WM_CLASS; }
clase_es_la_suya() { [[ $(clase) == *'"zorve", "com.sarnol.zorve"' ]]; }

prueba_alVolverTienenOtraVezSuClaseDeVentana() {
  escritorio lista
  zorve
  for _ in 1 2 3; do
    muestra
    xdotool key ctrl+comma
    espera ajustes
    espera panel_o_ajustes_con_teclado
    clase_es_la_suya || fallo "the settings' class is $(clase)"
    xdotool key alt+F4
    espera no ajustes
  done
}

casos "$@"
