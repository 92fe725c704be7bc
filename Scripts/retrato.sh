#!/usr/bin/env bash
# Takes a picture of the panel on an X server of its own: retrato.sh BIN FILE [KIND [SCALE [LANGUAGE [KEYS...]]]]
# BIN is the folder with zorve, KIND one of casa-de-muestra.sh's, LANGUAGE "en" or "es", KEYS are xdotool's.
# SCALE may be a fraction. KEYS "escribe:TEXT" types TEXT, "puntero:X,Y" moves the pointer there, in points of the panel. FONDO=opaco leaves the compositor out; VENTANA=ajustes waits for the settings.
set -euo pipefail
bin=$(realpath "$1") fichero=$(realpath -m "$2") clase=${3:-lista} escala=${4:-1} idioma=${5:-en}
shift $(($# < 5 ? $# : 5))
aqui=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
casa=$(mktemp -d)
hijos=()
limpia() {
  kill "${hijos[@]}" 2>/dev/null || :
  wait 2>/dev/null || :
  rm -rf "$casa"
}
trap limpia EXIT

# espera SECONDS COMMAND...
espera() {
  local i veces=$(($1 * 20))
  shift
  for ((i = 0; i < veces; i++)); do
    "$@" >/dev/null 2>&1 && return 0
    sleep 0.05
  done
  echo "waited in vain for: $*" >&2
  return 1
}

"$aqui/casa-de-muestra.sh" "$casa" $$ "$clase"
mkdir -p "$casa/.config/com.sarnol.zorve" "$casa/run"
chmod 700 "$casa/run"
printf '{"zorve.idioma":"%s","zorve.avisoDeBandejaMostrado":true}\n' "$idioma" >"$casa/.config/com.sarnol.zorve/preferences.json"

# por_escala POINTS: in pixels.
por_escala() { awk -v n="$1" -v e="$escala" 'BEGIN { printf "%.0f", n * e }'; }

Xvfb -displayfd 3 -screen 0 "$(por_escala 640)x$(por_escala 720)x24" -nolisten tcp -noreset 3>"$casa/pantalla" 2>/dev/null &
hijos+=($!)
espera 20 test -s "$casa/pantalla"
DISPLAY=:$(cat "$casa/pantalla")
export DISPLAY
dbus-daemon --session --nofork --print-address=3 3>"$casa/bus" 2>/dev/null &
hijos+=($!)
espera 20 test -s "$casa/bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$casa/bus")
export DBUS_SESSION_BUS_ADDRESS
hsetroot -add '#43546b' -add '#1f2733' -gradient 180
if [ "${FONDO:-}" != opaco ]; then
  picom --backend xrender --config /dev/null >/dev/null 2>&1 &
  hijos+=($!)
  espera 20 xprop -root _NET_SUPPORTING_WM_CHECK
  sleep 0.3
fi
HOME=$casa XDG_CONFIG_HOME=$casa/.config XDG_RUNTIME_DIR=$casa/run QT_SCALE_FACTOR=$escala "$bin/zorve" 2>"$casa/zorve.err" &
hijos+=($!)
visible() { xdotool search --onlyvisible --name '^Zorve$'; }
espera 20 visible
puntero() {
  local x y
  read -r x y < <(xdotool getwindowgeometry --shell "$(visible | tail -n 1)" | awk -F= '{ v[$1] = $2 } END { print v["X"], v["Y"] }')
  xdotool mousemove $((x + $(por_escala "${1%,*}"))) $((y + $(por_escala "${1#*,}")))
}
# The pointer out of the way, so that no row is under it.
xdotool mousemove 2 2
sleep 0.6
for tecla in "$@"; do
  case "$tecla" in
  escribe:*) xdotool type "${tecla#escribe:}" ;;
  puntero:*) puntero "${tecla#puntero:}" ;;
  *) xdotool key "$tecla" ;;
  esac
  sleep 0.15
done
sleep 0.8
cat "$casa/zorve.err" >&2
mkdir -p "$(dirname "$fichero")"
read -r x y ancho alto < <(xdotool getwindowgeometry --shell "$(visible | tail -n 1)" | awk -F= '{ v[$1] = $2 } END { print v["X"], v["Y"], v["WIDTH"], v["HEIGHT"] }')
margen=$(por_escala 36)
import -window root -crop "$((ancho + 2 * margen))x$((alto + 2 * margen))+$((x - margen))+$((y - margen))" +repage "$fichero"
