#!/usr/bin/env bash
# A row's menu: by the secondary button, by the key for it and by Shift+F10; what its entries do; in both languages, for
# a screen reader too. The panel stays, and a primary click opens as ever.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$aqui/comun-gustos.sh"

# en_la_fila N BUTTON: a click on row N of those in sight.
en_la_fila() {
  local x y
  read -r x y _ < <(lugar "$(panel)")
  xdotool mousemove $((x + 200)) $((y + 59 + ($1 - 1) * 56 + 28))
  sleep 0.3
  xdotool click "$2"
}
elige_en_el_menu() {
  espera menu
  xdotool key "$@"
  espera no menu
}
empieza() {
  escritorio lista
  zorve
  muestra
}

prueba_elBotonSecundarioEligeLaFilaYAbreSuMenu() {
  empieza
  en_la_fila 2 3
  elige_en_el_menu Down Return
  espera portapapeles_es 00000002-5e55-4000-8000-000000000002
  panel_visible || fallo "the panel went with the menu"
  espera panel_con_teclado
}

prueba_laTeclaDelMenuYMayusculasF10AbrenElDeLaElegida() {
  empieza
  xdotool key Down Down
  xdotool key Menu
  elige_en_el_menu Down Return
  espera portapapeles_es 00000003-5e55-4000-8000-000000000003
  xdotool key shift+F10
  elige_en_el_menu Down Down Return
  espera portapapeles_es "cd '$home/trabajo/señales' && claude -r '00000003-5e55-4000-8000-000000000003'"
  xdotool key shift+F10
  elige_en_el_menu Escape
  panel_visible || fallo "the panel went with the menu"
}

prueba_elDirectorioSePideAlGestorDeArchivos() {
  empieza
  arranca gestor-de-archivos "$aqui/gestor-de-archivos.py" "$home/pedidos"
  espera tiene_nombre org.freedesktop.FileManager1
  xdotool key Menu
  elige_en_el_menu End Return
  espera grep -qx "file://$home/src/zorve" "$home/pedidos"
}

oye() { grep -qxF "$1" "$home/oidos.out"; }
oye_otra_fila() {
  xdotool key Down
  sleep 0.2
  grep -q 'list item' "$home/oidos.out"
}

prueba_elMenuHablaEspanolYLoLeeUnLector() {
  home lista
  preferencias '{"zorve.idioma":"es","app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true}'
  servidor
  bus
  gestor
  lector
  arranca oidos "$aqui/arbol.py" zorve oye
  zorve
  muestra
  # Nothing is heard before the listener listens.
  espera oye_otra_fila
  xdotool key Menu
  espera oye 'menu item "Abrir"'
  xdotool key Down Down
  espera oye 'menu item "Copiar el comando que la reanuda"'
  xdotool key End
  espera oye 'menu item "Mostrar el directorio"'
}

casos "$@"
