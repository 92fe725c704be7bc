# shellcheck shell=bash
# shellcheck disable=SC2154 # what comun.sh sets
# Sessions of a stand-in for the agent, and what is typed into them. Sourced by comun.sh.

# agente: a stand-in for the agent; run with a name, it notes its process and, line by line, what it is typed.
agente() {
  mkdir -p "$home/bin" "$home/teclas"
  cat >"$home/bin/claude" <<FIN
#!/bin/sh
: >"$home/teclas/\$1"
echo \$\$ >"$home/teclas/\$1.pid.nuevo"
mv "$home/teclas/\$1.pid.nuevo" "$home/teclas/\$1.pid"
while read -r linea; do echo "\$linea" >>"$home/teclas/\$1"; done
FIN
  chmod +x "$home/bin/claude"
}
# registra N NAME: the stand-in with that name is the running session N, titled "Sesion NAME".
registra() {
  espera test -s "$home/teclas/$2.pid"
  apunta "$1" "$2" "$(cat "$home/teclas/$2.pid")"
}
# apunta N NAME PID: that process is the running session N.
apunta() {
  local id
  id=$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")
  mkdir -p "$home/.claude/projects/p" "$home/.claude/sessions"
  printf '{"display":"Sesion %s","timestamp":%d000,"project":"%s","sessionId":"%s"}\n' \
    "$2" $(($(date +%s) - $1)) "$home" "$id" >>"$home/.claude/history.jsonl"
  printf '{"type":"user","cwd":"%s"}\n' "$home" >"$home/.claude/projects/p/$id.jsonl"
  printf '{"pid":%d,"sessionId":"%s","cwd":"%s","status":"idle"}\n' "$3" "$id" "$home" >"$home/.claude/sessions/$1.json"
}
# elige N NAME: the panel comes up and session N is its selected row.
elige() {
  muestra
  xdotool key ctrl+a
  xdotool type --delay 1 "sesion $2"
  espera copiado_es "$1"
}
teclas_ajenas() { for cada in "$home"/teclas/*.pid; do [ "$cada" = "$home/teclas/$1.pid" ] || cat "${cada%.pid}"; done; }
termina_en() { [ "$(tail -n 1 "$home/teclas/$1")" = "$2" ]; }
# llega NAME KEY: a key press arrives at that session and at no other.
llega() {
  local antes
  antes=$(teclas_ajenas "$1")
  xdotool key "$2" Return
  espera termina_en "$1" "$2"
  [ "$(teclas_ajenas "$1")" = "$antes" ] || fallo "the key for $1 arrived elsewhere"
}
