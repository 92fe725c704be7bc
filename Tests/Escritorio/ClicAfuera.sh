#!/usr/bin/env bash
# Who has the keyboard when the panel goes, and what makes it go.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

victima() { xdotool search --onlyvisible --name '^victima$'; }
tiene_victima() { [ "$(xdotool getwindowfocus)" = "$v" ] || [ "$(xdotool getactivewindow)" = "$v" ]; }
activa_victima() { xdotool windowactivate "$v" && tiene_victima; }
# The panel over a window that had the keyboard.
sobre_otra_ventana() {
  escritorio lista
  arranca victima xterm -T victima -geometry 40x10+800+500 -e cat
  espera victima
  v=$(victima | head -n 1)
  espera activa_victima
  zorve
  muestra
}

prueba_escapeDevuelveElTecladoAQuienLoTenia() {
  sobre_otra_ventana
  xdotool key Escape
  espera no panel_visible
  espera tiene_victima
}

prueba_unClicEnElFondoLoEsconde() {
  sobre_otra_ventana
  pulsa_en 60 760
  espera no panel_visible
}

prueba_unClicEnOtraVentanaLoEscondeYLeDaElTeclado() {
  local x y
  sobre_otra_ventana
  read -r x y < <(centro "$v")
  pulsa_en "$x" "$y"
  espera no panel_visible
  espera tiene_victima
}

prueba_unClicDentroNoLoEsconde() {
  local x y
  sobre_otra_ventana
  read -r x y _ < <(lugar "$(panel)")
  pulsa_en $((x + 200)) $((y + 30))
  # Typed after it, this is seen after it.
  xdotool type surrog
  espera copiado_es 2
  panel_visible || fallo "a click inside closed it"
}

casos "$@"
