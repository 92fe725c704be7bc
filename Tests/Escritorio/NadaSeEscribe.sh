#!/usr/bin/env bash
# Every system call of a whole run: the panel, a search, a copy, an opening, the settings. Nothing is written below the
# agent's folder, no secret there is opened, and no socket leads out of the machine.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-trazas.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-trazas.sh"
escritorio vacia
agente
export PATH=$home/bin:$PATH SHELL=/bin/sh
preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
arranca una xterm -geometry 40x8+700+20 -e "$home/bin/claude" una
registra 1 una
apunta 2 acabada 4194304
for cada in secreto.key sessions/1.key sessions/.key projects/p/x.key; do echo secreto >"$home/.claude/$cada"; done
huella() { find "$home/.claude" -printf '%p %m %s %T@ %C@\n' | sort | sha256sum; }
antes=$(huella)
zorve_trazado -y -s 4096
elige 2 acabada
xdotool key --clearmodifiers ctrl+r
elige 1 una
xdotool key Return
espera no panel_visible
elige 2 acabada
xdotool key Return
espera test -s "$home/teclas/-r.pid"
muestra
xdotool key ctrl+comma
espera ajustes
xdotool key ctrl+q
espera terminado "$zorve_pid"
[ "$(huella)" = "$antes" ] || fallo "something changed below the agent's folder"

bajo=$(grep -cF "$home/.claude" "$home/trazas")
[ "$bajo" -gt 100 ] || fallo "only $bajo calls below the agent's folder were seen"
# The opened terminal's shell and the agent are not ours to watch: a child counts until it becomes another program.
propias() {
  awk -v bin="$bin/" '
    { pid = $1 }
    / execve\("/ { ajeno[pid] = index($0, "execve(\"" bin) == 0 && /= 0$/ }
    !ajeno[pid]' "$home/trazas"
}
propias >"$home/propias"
escritas=$(grep -F "$home/.claude" "$home/propias" | grep -E 'O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND| (mkdir|rmdir|unlink|rename|link|symlink|chmod|fchmod|chown|fchown|truncate|ftruncate|utime|mknod|setxattr|write|pwrite)[a-z0-9]*\(' || :)
[ -z "$escritas" ] || fallo "written below the agent's folder: $(head -n 3 <<<"$escritas")"
if grep -E '\.key["'"'"'>]' "$home/propias" >&2; then fallo "a secret was touched"; fi
if grep -E 'AF_INET|AF_PACKET|AF_BLUETOOTH' "$home/propias" >&2; then fallo "a socket leads out of the machine"; fi
