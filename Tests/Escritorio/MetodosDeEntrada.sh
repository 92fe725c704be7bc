#!/usr/bin/env bash
# What is composed of several keys reaches the search.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# sesion N TITLE
sesion() {
  local id
  id=$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")
  printf '{"display":"%s","timestamp":%d000,"project":"/srv/x","sessionId":"%s"}\n' "$2" $(($(date +%s) - $1)) "$id" >>"$home/.claude/history.jsonl"
  mkdir -p "$home/.claude/projects/-srv-x"
  printf '{"type":"user","cwd":"/srv/x"}\n' >"$home/.claude/projects/-srv-x/$id.jsonl"
}
# con_teclado_internacional INPUT_METHOD: a keyboard that has these keys, so that none is put in its place for one press.
con_teclado_internacional() {
  escritorio vacia
  sesion 1 "Un cafe"
  sesion 2 "Precio en €"
  sesion 3 "한글 검색"
  setxkbmap -layout us -variant intl -option compose:menu
  export QT_IM_MODULE=$1
}

# As a person types: of keys that arrived all at once a composed letter was seen before those that precede it.
prueba_porLaTeclaDeComponer() {
  con_teclado_internacional compose
  zorve
  muestra
  xdotool key --delay 100 Multi_key c equal
  espera copiado_es 2
}

prueba_porUnaTeclaMuerta() {
  con_teclado_internacional compose
  zorve
  muestra
  xdotool key --delay 100 c a f dead_acute e
  espera copiado_es 1
}

hay_motor() { ibus engine hangul && [ "$(ibus engine)" = hangul ]; }

prueba_porUnMetodoDeEntradaQueTambienDejaPasarLoQueNoCompone() {
  con_teclado_internacional ibus
  arranca ibus ibus-daemon --panel disable
  espera hay_motor
  zorve
  muestra
  # It begins with Latin letters.
  xdotool type --delay 100 prec
  espera copiado_es 2
  xdotool key --delay 100 BackSpace BackSpace BackSpace BackSpace shift+space
  xdotool type --delay 100 gksrmf
  xdotool key space
  espera copiado_es 3
}

casos "$@"
