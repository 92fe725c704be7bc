#!/usr/bin/env bash
# Return opens the selected session in a real xterm with a stand-in for the agent that notes its arguments and
# its directory; a click on a row opens that row.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio vacia
mkdir -p "$casa/src/uno" "$casa/src/dos" "$casa/bin"
cat >"$casa/bin/claude" <<FIN
#!/bin/sh
{ printf '%s\n' "\$PWD" "\$@"; echo .; } >>"$casa/abiertas"
sleep 60
FIN
chmod +x "$casa/bin/claude"
export PATH=$casa/bin:$PATH SHELL=/bin/sh
for cual in uno dos; do
  id=0000000$([ $cual = uno ] && echo 1 || echo 2)-0000-4000-8000-000000000000
  printf '{"display":"Sesion %s","timestamp":%d000,"project":"%s","sessionId":"%s"}\n' "$cual" \
    $(($(date +%s) - ${#cual} - $([ $cual = dos ] && echo 500 || echo 0))) "$casa/src/$cual" "$id" >>"$casa/.claude/history.jsonl"
  mkdir -p "$casa/.claude/projects/$cual"
  printf '{"type":"user","cwd":"%s"}\n' "$casa/src/$cual" >"$casa/.claude/projects/$cual/$id.jsonl"
done
preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
zorve
muestra
xdotool type uno
espera se_copia 00000001-0000-4000-8000-000000000000
xdotool key Return
abierta() { [ "$(tr '\n' ' ' <"$casa/abiertas")" = "$1" ]; }
espera abierta "$casa/src/uno -r 00000001-0000-4000-8000-000000000000 . "
espera no panel_visible
muestra
xdotool key BackSpace BackSpace BackSpace
# The title of the second row.
espera hay_color "$(panel)" '#f4f6fa' 300x25+44+121
read -r x y _ _ < <(lugar "$(panel)")
pulsa_en $((x + 200)) $((y + 59 + 56 + 28))
espera abierta "$casa/src/uno -r 00000001-0000-4000-8000-000000000000 . $casa/src/dos -r 00000002-0000-4000-8000-000000000000 . "
for cada in $(xdotool search --class xterm); do xdotool windowkill "$cada"; done
