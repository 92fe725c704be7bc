#!/usr/bin/env bash
# homebrew.sh RELEASE OUT: fills the cask (the application) and the formula (zorvectl) from a release file that
# lanzamiento.sh wrote, and writes both below the folder OUT.
set -euo pipefail
aqui=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
lanzamiento=${1:?usage: homebrew.sh RELEASE OUT}
salida=${2:?usage: homebrew.sh RELEASE OUT}

valor() {
  local hallado
  hallado=$(sed -nE "s/^$1=(.+)$/\1/p" "$lanzamiento")
  [ -n "$hallado" ] || { echo "homebrew.sh: $lanzamiento has no $1" >&2; exit 1; }
  printf '%s' "$hallado"
}

rellena() {
  local texto clave dato
  texto=$(<"$1")
  for clave in VERSION SITIO IMAGEN SUMA_DE_IMAGEN FUENTES SUMA_DE_FUENTES; do
    dato=$(valor "$clave")
    texto=${texto//"@$clave@"/$dato}
  done
  printf '%s\n' "$texto" >"$2"
}

mkdir -p "$salida/Casks" "$salida/Formula"
rellena "$aqui/homebrew/zorve.rb.in" "$salida/Casks/zorve.rb"
rellena "$aqui/homebrew/zorvectl.rb.in" "$salida/Formula/zorvectl.rb"
