#!/usr/bin/env bash
# Fills a folder as the home directory of somebody who works with the agent: home-de-muestra.sh DIR PID [KIND]
# PID is a process that lives as long as the sessions are to count as running. KIND: "lista" (the default),
# "avisos" (damaged lines too), "vacia" (no session), or a number of sessions.
# shellcheck disable=SC2088 # "~" is expanded by the script itself
set -euo pipefail
home=$1 pid=$2 clase=${3:-lista}
agente=$home/.claude
mkdir -p "$agente/projects" "$agente/sessions"
: >"$agente/history.jsonl"
ahora=$(date +%s)

# sesion AGO DIRECTORY PROMPTS TITLE: AGO in seconds; a title "-" leaves the first prompt to stand for one.
numero=0
sesion() {
  local hace=$1 carpeta=$2 cuantos=$3 titulo=$4 i
  numero=$((numero + 1))
  id=$(printf '%08d-5e55-4000-8000-%012d' "$numero" "$numero")
  carpeta=${carpeta/#CASA/$home}
  for ((i = 1; i <= cuantos; i++)); do
    printf '{"display":"%s","timestamp":%d000,"project":"%s","sessionId":"%s"}\n' \
      "${titulo/#-/Why does the parser keep the first title?}" $((ahora - hace - (cuantos - i) * 60)) "$carpeta" "$id"
  done >>"$agente/history.jsonl"
  local proyecto=$agente/projects/${carpeta//\//-}
  # What lies outside the home is not ours to make: such a directory counts as gone.
  [[ $carpeta != "$home"/* ]] || mkdir -p "$carpeta"
  mkdir -p "$proyecto"
  {
    printf '{"type":"user","cwd":"%s","sessionId":"%s"}\n' "$carpeta" "$id"
    [ "$titulo" = - ] || printf '{"type":"ai-title","aiTitle":"%s","sessionId":"%s"}\n' "$titulo" "$id"
  } >"$proyecto/$id.jsonl"
  touch -d "@$((ahora - hace))" "$proyecto/$id.jsonl"
}

# viva STATUS: the session made last is running.
viva() {
  printf '{"pid":%d,"sessionId":"%s","cwd":"%s","status":"%s"}\n' "$pid" "$id" "$home" "$1" >"$agente/sessions/$id.json"
}

lista() {
  sesion 2 "CASA/src/zorve" 42 "Rewrite the history parser for streaming reads"
  viva busy
  sesion 362 "CASA/src/zorve" 12 "Parser fails on lone surrogates"
  viva idle
  sesion 7300 "CASA/trabajo/señales" 7 "Añadir pruebas del parser y documentar los casos límite"
  sesion 18100 "CASA/src/bench/parser" 31 "Benchmark the parser against a bare read"
  sesion 90000 "CASA/src/parser" 3 "Draw the tray icon for light and dark bars"
  sesion 260000 "/srv/team/it's complicated" 1 -
  sesion 1040000 "CASA/src/fuzz" 88 "Review parser fuzz corpus 🧪"
  sesion 1300000 "CASA/src/web" 5 "إصلاح البحث في قائمة الجلسات"
  sesion 1500000 "CASA/src/site" 19 "Move the docs to one page"
  sesion 2000000 "CASA/src/infra" 64 "Rotate the build cache before it fills the disk"
  sesion 2600000 "CASA/src/zorve" 9 "Name every seam of the platform layer"
}

muchas() {
  local i
  for ((i = 0; i < clase; i++)); do sesion $((i * 97)) "CASA/src/proyecto$((i % 37))" 1 "Session number $i of a long list"; done
}

case "$clase" in
lista) lista ;;
avisos)
  lista
  printf '{"display":"x","timestamp":1,"project":"","sessionId":""}\nnot json\n' >>"$agente/history.jsonl"
  printf 'not json\n' >"$agente/sessions/roto.json"
  ;;
vacia) ;;
*) muchas ;;
esac
