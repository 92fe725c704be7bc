#!/usr/bin/env bash
# The panel's pictures are about the stored ones: full, empty, searching, with errors, in Spanish, at 150 and 200 %, and
# without a compositor. They are compared small, so that fonts may differ. RETRATOS=guarda stores them anew.
set -euo pipefail
aqui=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
guardados=$aqui/../Datos/retratos
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
peor=0.025
mal=0

# retrato NAME ARGUMENTS...: retrato.sh's, from KIND on.
retrato() {
  local nombre=$1 distancia
  shift
  "$aqui/../../Scripts/retrato.sh" "${ZORVE_BIN:?}" "$tmp/grande.png" "$@"
  convert "$tmp/grande.png" -strip -resize 128x158! "$tmp/$nombre.png"
  if [ "${RETRATOS:-}" = guarda ]; then
    cp "$tmp/$nombre.png" "$guardados/$nombre.png"
    return
  fi
  distancia=$(compare -metric RMSE "$tmp/$nombre.png" "$guardados/$nombre.png" null: 2>&1 | sed -E 's/.*\((.*)\)/\1/') || :
  echo "$nombre: $distancia"
  awk -v d="$distancia" -v p="$peor" 'BEGIN { exit !(d ~ /^[0-9]/ && d <= p) }' || mal=1
}

mkdir -p "$guardados"
retrato lista lista 1 en Down
retrato vacia vacia 1 en
retrato busqueda lista 1 en escribe:parser
retrato avisos avisos 1 en
retrato espanol lista 1 es
retrato doble lista 2 en Down
retrato mediado lista 1.5 en Down
FONDO=opaco retrato opaco lista 1 en
exit "$mal"
