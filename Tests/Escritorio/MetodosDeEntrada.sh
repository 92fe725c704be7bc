#!/usr/bin/env bash
# What is composed of several keys reaches the search: by the compose key, by a dead key, by an input method.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio vacia
# sesion N TITLE
sesion() {
  local id
  id=$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")
  printf '{"display":"%s","timestamp":%d000,"project":"/srv/x","sessionId":"%s"}\n' "$2" $(($(date +%s) - $1)) "$id" >>"$casa/.claude/history.jsonl"
  mkdir -p "$casa/.claude/projects/-srv-x"
  printf '{"type":"user","cwd":"/srv/x"}\n' >"$casa/.claude/projects/-srv-x/$id.jsonl"
}
sesion 1 "Un cafe"
sesion 2 "Precio en €"
sesion 3 "한글 검색"
# A keyboard that has these keys, so that none is put in its place for one press.
setxkbmap -layout us -variant intl -option compose:menu
export QT_IM_MODULE=compose
zorve
muestra
# As a person types: of keys that arrived all at once a composed letter was seen before those that precede it.
xdotool key --delay 100 Multi_key c equal
espera copiado_es 2
xdotool key --delay 100 BackSpace c a f dead_acute e
espera copiado_es 1
xdotool key ctrl+q
espera terminado "$zorve_pid"

arranca ibus ibus-daemon --panel disable
hay_motor() { ibus engine hangul && [ "$(ibus engine)" = hangul ]; }
espera hay_motor
export QT_IM_MODULE=ibus
zorve
muestra
# It begins with Latin letters: what it does not compose arrives as it is.
xdotool type --delay 100 prec
espera copiado_es 2
xdotool key --delay 100 BackSpace BackSpace BackSpace BackSpace shift+space
xdotool type --delay 100 gksrmf
xdotool key space
espera copiado_es 3
