#!/usr/bin/env bash
# A tray that comes after the program, of both kinds.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

# conmuta X Y: a click shows the panel, another one hides it.
conmuta() {
  pulsa_en "$1" "$2"
  espera panel_visible
  espera panel_con_teclado
  pulsa_en "$1" "$2"
  espera no panel_visible
}

# The program has its name on the bus last of all that it does at its start.
sin_bandeja() {
  escritorio lista
  zorve
}

prueba_laDeXembedTieneIconoCadaVezQueLlega() {
  local bandeja x y
  sin_bandeja
  for _ in 1 2; do
    bandeja_xembed top
    bandeja=$ultimo
    espera hay_icono_xembed
    espera hay_color "$(icono_xembed)" '#0c161b' 40x40+0+0
    read -r x y < <(centro "$(icono_xembed)")
    conmuta "$x" "$y"
    kill -9 "$bandeja"
    espera no con_bandeja_xembed
    espera no hay_icono_xembed
  done
}

prueba_cuandoSeVaElProgramaSigueRespondiendo() {
  sin_bandeja
  bandeja_xembed top
  espera hay_icono_xembed
  kill -9 "$ultimo"
  espera no con_bandeja_xembed
  muestra
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
}

prueba_laDeElementosTieneIconoCadaVezQueLlega() {
  local senal x y
  sin_bandeja
  for senal in 15 9; do
    barra_sn 6
    espera hay_icono_sn
    read -r x y < <(centro "$(casilla_sn)")
    conmuta "$x" "$y"
    kill -"$senal" "$barra"
    espera terminado "$barra"
    espera no tiene_nombre org.kde.StatusNotifierWatcher
  done
}

casos "$@"
