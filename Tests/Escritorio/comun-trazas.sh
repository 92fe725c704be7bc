# shellcheck shell=bash
# shellcheck disable=SC2154 # what comun.sh sets
# The program under a tracer of its system calls. Sourced after comun.sh.

command -v strace >/dev/null || {
  echo "strace is missing" >&2
  exit 77
}

# zorve_trazado OPTIONS...: the program as strace's OPTIONS say, traced from its side: its own process stays ours.
zorve_trazado() {
  arranca zorve strace -D -f -qq -o "$home/trazas" "$@" "$bin/zorve"
  # shellcheck disable=SC2034 # the tests read it
  zorve_pid=$ultimo
  espera tiene_nombre com.sarnol.zorve
}
