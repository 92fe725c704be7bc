#!/usr/bin/env bash
# A finished session opens in a real xterm with a stand-in for the agent, which notes its arguments and directory.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
uno=00000001-5e55-4000-8000-000000000001 dos=00000002-5e55-4000-8000-000000000002

# apunta_terminada N NAME: a finished session in the folder NAME.
apunta_terminada() {
  local id
  id=$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")
  mkdir -p "$home/src/$2" "$home/.claude/projects/$2"
  printf '{"display":"Sesion %s","timestamp":%d000,"project":"%s","sessionId":"%s"}\n' "$2" \
    $(($(date +%s) - 500 * $1)) "$home/src/$2" "$id" >>"$home/.claude/history.jsonl"
  printf '{"type":"user","cwd":"%s"}\n' "$home/src/$2" >"$home/.claude/projects/$2/$id.jsonl"
}
con_dos_terminadas() {
  escritorio vacia
  lector
  mkdir -p "$home/bin"
  cat >"$home/bin/claude" <<FIN
#!/bin/sh
{ printf '%s\n' "\$PWD" "\$@"; echo .; } >>"$home/abiertas"
exec sleep 60
FIN
  chmod +x "$home/bin/claude"
  export PATH=$home/bin:$PATH SHELL=/bin/sh
  apunta_terminada 1 uno
  apunta_terminada 2 dos
  preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
  zorve
  muestra
}
abierta() { [ "$(tr '\n' ' ' <"$home/abiertas")" = "$1" ]; }
cierra_xterm() { for cada in $(xdotool search --class xterm); do xdotool windowkill "$cada"; done; }

prueba_returnAbreLaSesionElegidaEnSuDirectorio() {
  con_dos_terminadas
  xdotool type uno
  espera copiado_es 1
  xdotool key Return
  espera abierta "$home/src/uno -r $uno . "
  espera no panel_visible
  cierra_xterm
}

prueba_unClicAbreLaSesionDeEsaFila() {
  local x y
  con_dos_terminadas
  espera dice_algo 'list item "Sesion dos"'
  read -r x y _ _ < <(lugar "$(panel)")
  pulsa_en $((x + 200)) $((y + 59 + 56 + 28))
  espera abierta "$home/src/dos -r $dos . "
  espera no panel_visible
  cierra_xterm
}

casos "$@"
