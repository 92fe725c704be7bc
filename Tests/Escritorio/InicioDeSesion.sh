#!/usr/bin/env bash
# Start at login: the box of the settings, the autostart entry, and a session starter that runs it.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
caja='Open Zorve at login'
entrada=$home/.config/autostart/com.sarnol.zorve.desktop
encendida() { dice "check box \"$caja\" [focusable checked]"; }
apagada() { dice "check box \"$caja\" [focusable]"; }

abre_ajustes() {
  muestra
  xdotool key ctrl+comma
  espera ajustes
}
con_ajustes() {
  export XDG_CONFIG_DIRS=$home/nada
  escritorio lista
  lector
  zorve
  abre_ajustes
}
encendido() {
  con_ajustes
  pulsa_opcion "$caja"
  espera encendida
}
sale() {
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
}
# Whether a process of the program is in this home.
arrancado() {
  local cada
  for cada in $(pgrep -x zorve); do
    ! tr '\0' '\n' 2>/dev/null <"/proc/$cada/environ" | grep -qxF "HOME=$home" || return 0
  done
  return 1
}

prueba_encenderloEscribeUnaEntradaValidaConLaRutaDelPrograma() {
  encendido
  desktop-file-validate "$entrada"
  grep -qxF "Exec=\"$(realpath "$bin")/zorve\"" "$entrada" || fallo "the entry: $(cat "$entrada")"
}

prueba_apagarloQuitaLaEntrada() {
  encendido
  pulsa_opcion "$caja"
  espera apagada
  [ ! -e "$entrada" ] || fallo "the entry stays after it was switched off"
}

# A file stands where the folder should be.
prueba_loQueNoSePuedeEscribirSeDiceYLaCajaMuestraLoCierto() {
  con_ajustes
  : >"$home/.config/autostart"
  pulsa_opcion "$caja"
  espera dice_algo 'alert "Could not change the launch-at-login setting: .*\."$'
  espera apagada
}

prueba_unLogroBorraElFalloAnterior() {
  con_ajustes
  : >"$home/.config/autostart"
  pulsa_opcion "$caja"
  espera dice_algo 'alert "Could not change the launch-at-login setting: '
  rm "$home/.config/autostart"
  pulsa_opcion "$caja"
  espera encendida
  espera no dice_algo 'alert "'
}

prueba_unaSesionNuevaLoArrancaSinMostrarElPanel() {
  encendido
  sale
  dex --autostart
  espera tiene_nombre com.sarnol.zorve
  ! panel_visible || fallo "the panel opened at login"
}

prueba_unaEntradaQuitadaPorOtroSeSabeAlVolver() {
  encendido
  xdotool key Escape
  espera no ajustes
  rm "$entrada"
  abre_ajustes
  espera apagada
}

# The starter ends when it has started everything, another entry among it.
prueba_sinEntradaUnaSesionNuevaNoLoArranca() {
  encendido
  pulsa_opcion "$caja"
  espera apagada
  sale
  printf '[Desktop Entry]\nType=Application\nName=Otra\nExec=touch %s\n' "$home/otra" >"${entrada%/*}/otra.desktop"
  dex --autostart
  espera test -e "$home/otra"
  ! arrancado || fallo "a session without the entry starts it"
}

casos "$@"
