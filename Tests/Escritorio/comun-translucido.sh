# shellcheck shell=bash
# The translucent panel beside the opaque one: over a backdrop of the glass's own dark both must look the same. Two
# desktops, one with a compositor, get the same keys; the screens are compared as they were painted, in parts.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
base='#030709'
declare -A pantallas buses

# mundo NAME SCALE: a desktop and the program on it.
mundo() {
  rm -f "$home/pantalla" "$home/bus"
  servidor -screen 0 960x1180x24
  bus
  pantallas[$1]=$DISPLAY buses[$1]=$DBUS_SESSION_BUS_ADDRESS
  gestor
  hsetroot -solid "$base"
  [ "$1" = opaco ] || compositor
  lector
  xdotool mousemove 2 2
  QT_SCALE_FACTOR=$2 zorve
}

# en WORLD COMMAND...
en() { DISPLAY=${pantallas[$1]} DBUS_SESSION_BUS_ADDRESS=${buses[$1]} "${@:2}"; }
en_los_dos() {
  en translucido "$@"
  en opaco "$@"
}

abierto() { ventana "$tamano" >/dev/null; }
abre() {
  en_los_dos segundo
  en translucido espera abierto
  en opaco espera abierto
}

# foto WORLD: what the X server's screen shows of the panel, without its outline and corners.
foto() {
  local x y ancho alto borde
  read -r x y ancho alto < <(en "$1" lugar "$(en "$1" ventana "$tamano")")
  borde=$((ancho / 70))
  en "$1" import -silent -window root \
    -crop "$((ancho - 2 * borde))x$((alto - 2 * borde))+$((x + borde))+$((y + borde))" +repage "$home/$1.ppm"
}

foto_translucida() { foto translucido; }

# Twice the rounding of eight bits; a hole is five times as far off. Counted by hand: newer versions of compare sum up
# how far pixels differ instead.
iguales() {
  local distintos
  foto_translucida
  foto opaco
  distintos=$(convert "$home/translucido.ppm" "$home/opaco.ppm" -compose difference -composite -separate \
    -evaluate-sequence max -threshold 1.2% -format '%[fx:round(mean*w*h)]' info:)
  echo "$distintos" >"$home/distintos"
  [ "$distintos" = 0 ]
}

relee() { en_los_dos xdotool key ctrl+r; }

# Until both carets, which blink, are seen in the same half. A minute that ends between the two pictures is read anew.
son_iguales() {
  local vez
  for ((vez = 0; vez < 60; vez++)); do
    if iguales; then
      echo "$1 at $escala: the same"
      return
    fi
    [ -z "${ZORVE_FOTOS:-}" ] || cp "$home"/{translucido,opaco}.ppm "$ZORVE_FOTOS"
    [ "$vez" -ne 30 ] || relee
  done
  fallo "$1 at $escala: $(cat "$home/distintos") pixels differ"
}

# estado NAME XDOTOOL...: the keys, then the comparison.
estado() {
  en_los_dos xdotool "${@:2}"
  sleep 0.4
  son_iguales "$1"
}

# apunta X Y: the pointer there, in points of the panel.
apunta() {
  local x y ancho
  read -r x y ancho _ < <(lugar "$(ventana "$tamano")")
  xdotool mousemove $((x + $1 * ancho / 440)) $((y + $2 * ancho / 440))
}

en_espanol() {
  en "$1" xdotool key ctrl+comma
  en "$1" espera dice_algo '"Español"'
  en "$1" pulsa_opcion Español
  en "$1" espera dice 'panel "INICIO"'
  en "$1" xdotool key Escape
}

recorre() {
  abre
  sleep 0.5
  son_iguales "shown"
  estado "moving" key Down Down Down
  estado "moving back" key Up
  estado "typing" type parser
  estado "nothing found" type zzz
  estado "typing less" key --repeat 9 --delay 20 BackSpace
  en_los_dos apunta 200 200
  estado "hovering" sleep 0
  en_los_dos apunta 200 330
  estado "hovering elsewhere" sleep 0
  estado "scrolling" click --repeat 3 5
  estado "scrolling back" click --repeat 5 4
  echo '{' >>"$home/.claude/history.jsonl"
  estado "band coming" key ctrl+r
  sed -i '$d' "$home/.claude/history.jsonl"
  estado "band going" key ctrl+r
  en_los_dos xdotool mousemove 2 2
}

# compara_a SCALE: every state, the program drawn at that scale.
compara_a() {
  escala=$1
  tamano=$(awk -v e="$escala" 'BEGIN { print 440 * e, 560 * e }')
  home lista
  mundo translucido "$escala"
  mundo opaco "$escala"
  recorre
  en_espanol translucido
  en_espanol opaco
  abre
  son_iguales "in Spanish"
}
