#!/usr/bin/env bash
# Every key of the panel, by real key events; what is typed at once after the panel appears is not lost.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
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
muestra
xdotool key Home Up
copiado_es 1 || fallo "up from the first row moved"
xdotool key Down Down
espera copiado_es 3
xdotool key Up
espera copiado_es 2
xdotool type "zzzz"
xdotool key ctrl+c
sleep 0.2
portapapeles_es 00000002-5e55-4000-8000-000000000002 || fallo "copied without a selection"
xdotool key Escape
espera no panel_visible
muestra
xdotool key ctrl+c BackSpace BackSpace BackSpace BackSpace Up Up Up Up Up Up Up Up
espera copiado_es 1
# A session that did not exist before comes in with a refresh.
id=000000aa-5e55-4000-8000-000000000000
printf '{"display":"Completely new","timestamp":%d000,"project":"/srv/x","sessionId":"%s"}\n' $(($(date +%s) + 5)) "$id" >>"$casa/.claude/history.jsonl"
mkdir -p "$casa/.claude/projects/-srv-x"
printf '{"type":"user","cwd":"/srv/x"}\n' >"$casa/.claude/projects/-srv-x/$id.jsonl"
xdotool type "completely"
! portapapeles_es "$id" || fallo "it is there already"
copia_nueva() {
  xdotool key --clearmodifiers ctrl+r
  sleep 0.2
  xdotool key --clearmodifiers ctrl+c
  sleep 0.1
  portapapeles_es "$id"
}
espera copia_nueva
xdotool key ctrl+comma
espera ajustes
espera no panel_visible
espera panel_o_ajustes_con_teclado
xdotool key ctrl+shift+w
ajustes >/dev/null || fallo "Control+Shift+W closed the settings"
xdotool key ctrl+w
espera no ajustes
muestra
xdotool key ctrl+q
espera terminado "$zorve_pid"
