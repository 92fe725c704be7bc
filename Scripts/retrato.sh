#!/usr/bin/env bash
# Takes a picture of the panel on an X server of its own: retrato.sh BIN FILE [KIND [SCALE [LANGUAGE [KEYS...]]]]
# BIN is the folder with zorve, KIND one of home-de-muestra.sh's, LANGUAGE "en" or "es", KEYS are xdotool's.
# SCALE may be a fraction. KEYS "escribe:TEXT" types TEXT, "puntero:X,Y" moves the pointer there, in points of the panel.
# FONDO=opaco leaves the compositor out, FONDO=blanco has everything behind the panel white.
# shellcheck disable=SC2154 # what comun.sh sets
set -euo pipefail
ZORVE_BIN=$(realpath "$1")
fichero=$(realpath -m "$2") clase=${3:-lista} escala=${4:-1} idioma=${5:-en}
shift $(($# < 5 ? $# : 5))
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/../Tests/Escritorio/comun.sh"

# por_escala POINTS: in pixels.
por_escala() { awk -v n="$1" -v e="$escala" 'BEGIN { printf "%.0f", n * e }'; }
visible() { xdotool search --onlyvisible --name '^Zorve$'; }
mostrada() { visible | tail -n 1; }
# Two pictures, one after the other, that are the same.
quieta() {
  local antes=${foto:-}
  foto=$(import -window root rgb:- | cksum)
  [ "$foto" = "$antes" ] || { sleep 0.1; return 1; }
}
puntero() {
  local x y
  read -r x y _ < <(lugar "$(mostrada)")
  xdotool mousemove $((x + $(por_escala "${1%,*}"))) $((y + $(por_escala "${1#*,}")))
}

home "$clase"
preferencias "{\"zorve.idioma\":\"$idioma\",\"app.zorve.panelMostradoEnPrimerArranque\":true,\"zorve.avisoDeBandejaMostrado\":true}"
servidor -screen 0 "$(por_escala 640)x$(por_escala 720)x24"
bus
if [ "${FONDO:-}" = blanco ]; then hsetroot -solid '#ffffff'; else hsetroot -add '#43546b' -add '#1f2733' -gradient 180; fi
[ "${FONDO:-}" = opaco ] || compositor
export QT_SCALE_FACTOR=$escala
zorve
segundo
espera visible
# The pointer out of the way, so that no row is under it.
xdotool mousemove 2 2
espera quieta
for tecla in "$@"; do
  case "$tecla" in
  escribe:*) xdotool type "${tecla#escribe:}" ;;
  puntero:*) puntero "${tecla#puntero:}" ;;
  *) xdotool key "$tecla" ;;
  esac
  espera quieta
done
# Help texts come up after a rest.
[[ "$*" != *puntero:* ]] || { sleep 1; espera quieta; }
cat "$home/zorve.err" >&2
mkdir -p "$(dirname "$fichero")"
read -r x y ancho alto < <(lugar "$(mostrada)")
margen=$(por_escala 36)
import -window root -crop "$((ancho + 2 * margen))x$((alto + 2 * margen))+$((x - margen))+$((y - margen))" +repage "$fichero"
