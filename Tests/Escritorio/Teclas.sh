#!/usr/bin/env bash
# The panel's keys, by real key events.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

con_panel() {
  escritorio lista
  zorve
  muestra
}

prueba_loEscritoAlAparecerElPanelNoSePierde() {
  escritorio lista
  zorve
  for _ in 1 2 3; do
    segundo
    espera panel_visible
    xdotool type --delay 1 surrog
    espera copiado_es 2
    xdotool key BackSpace BackSpace BackSpace BackSpace BackSpace BackSpace Up
    espera copiado_es 1
    xdotool key Escape
    espera no panel_visible
  done
}

prueba_lasFlechasVanDeFilaEnFilaYNoPasanDeLaPrimera() {
  con_panel
  xdotool key Home Up
  espera copiado_es 1
  xdotool key Down Down
  espera copiado_es 3
  xdotool key Up
  espera copiado_es 2
  xdotool key Up Up Up
  espera copiado_es 1
}

prueba_sinFilaElegidaNoSeCopiaNada() {
  con_panel
  xdotool key Down
  espera copiado_es 2
  xdotool type zzzz
  # Who hears Control+Comma has heard Control+C before it.
  xdotool key ctrl+c ctrl+comma
  espera ajustes
  portapapeles_es 00000002-5e55-4000-8000-000000000002 || fallo "copied without a selection"
}

prueba_loBuscadoQuedaAlVolverYLoQueSeEscribeLoSustituye() {
  con_panel
  xdotool type surrog
  espera copiado_es 2
  xdotool key Escape
  espera no panel_visible
  muestra
  espera copiado_es 2
  xdotool type "draw the tray"
  espera copiado_es 5
}

prueba_unaFlechaConservaLoBuscado() {
  con_panel
  xdotool type surro
  espera copiado_es 2
  xdotool key Escape
  espera no panel_visible
  muestra
  xdotool key Right
  xdotool type gx
  xdotool key BackSpace
  espera copiado_es 2
}

prueba_refrescarTraeUnaSesionNueva() {
  local id=000000aa-5e55-4000-8000-000000000000
  con_panel
  espera copiado_es 1
  printf '{"display":"Completely new","timestamp":%d000,"project":"/srv/x","sessionId":"%s"}\n' \
    $(($(date +%s) + 5)) "$id" >>"$home/.claude/history.jsonl"
  mkdir -p "$home/.claude/projects/-srv-x"
  printf '{"type":"user","cwd":"/srv/x"}\n' >"$home/.claude/projects/-srv-x/$id.jsonl"
  xdotool type completely
  xdotool key --clearmodifiers ctrl+r
  espera se_copia "$id"
}

prueba_controlComaAbreLosAjustesYEscondeElPanel() {
  con_panel
  xdotool key ctrl+comma
  espera ajustes
  espera no panel_visible
}

prueba_controlQSale() {
  con_panel
  xdotool key ctrl+q
  espera terminado "$zorve_pid"
}

casos "$@"
