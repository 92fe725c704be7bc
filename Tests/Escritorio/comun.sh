# shellcheck shell=bash
# What the desktop tests share. Each runs on an X server, a session bus and in a home of its own; everything
# that it starts ends with it. Sourced with the program's folder in ZORVE_BIN.
set -euo pipefail
aqui=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
raiz=$(realpath "$aqui/../..")
bin=${ZORVE_BIN:?the folder that holds zorve}
home=$(mktemp -d)
hijos=()

limpia() {
  local estado=$?
  [ "$estado" -eq 0 ] || [ "$estado" -eq 77 ] || cuenta_lo_visto
  termina_hijos
  rm -rf "$home"
  exit "$estado"
}
trap limpia EXIT

# Whoever has not ended some seconds after it was asked to is named and killed.
termina_hijos() {
  local fin=$((SECONDS + 5)) cada
  kill "${hijos[@]}" 2>/dev/null || :
  for cada in "${hijos[@]}"; do
    until terminado "$cada" || [ "$SECONDS" -ge "$fin" ]; do sleep 0.05; done
    terminado "$cada" || echo "killed, it did not end: $(tr '\0' ' ' <"/proc/$cada/cmdline")" >&2
    kill -9 "$cada" 2>/dev/null || :
  done
  wait 2>/dev/null || :
}

cuenta_lo_visto() {
  echo "--- windows" >&2
  xwininfo -root -tree 2>/dev/null | grep -E '"|[0-9]+x[0-9]+' | head -n 40 >&2 || :
  echo "--- what zorve wrote" >&2
  tail -n 40 "$home"/zorve.err >&2 || :
  if [ -n "${ZORVE_FOTOS:-}" ]; then import -window root "$ZORVE_FOTOS/$(basename "$0" .sh).png" || :; fi
}

# It also says which lines of the test led there.
fallo() {
  local nivel=0
  echo "failed: $*" >&2
  while caller "$nivel"; do nivel=$((nivel + 1)); done >&2
  exit 1
}

# espera COMMAND...: until it succeeds; fails after half a minute.
espera() {
  local fin=$((SECONDS + 30))
  until "$@" >/dev/null 2>&1; do
    [ "$SECONDS" -lt "$fin" ] || fallo "waited in vain for: $*"
    sleep 0.05
  done
}

no() { ! "$@"; }

# arranca NAME COMMAND...: in the background, what it writes in $home/NAME.err.
arranca() {
  local nombre=$1
  shift
  "$@" >"$home/$nombre.out" 2>"$home/$nombre.err" &
  hijos+=($!)
  ultimo=$!
}

# servidor [SCREENS]: the X server; SCREENS are Xvfb's.
servidor() {
  [ $# -gt 0 ] || set -- -screen 0 1280x800x24
  Xvfb -displayfd 3 "$@" -nolisten tcp -noreset 3>"$home/pantalla" 2>/dev/null &
  hijos+=($!)
  espera test -s "$home/pantalla"
  DISPLAY=:$(cat "$home/pantalla")
  export DISPLAY
}

# monitor NAME WIDTH HEIGHT X Y OUTPUT: a part of the server's screen that counts as one.
monitor() { xrandr --setmonitor "$1" "$2/300x$3/200+$4+$5" "$6" >/dev/null; }

bus() {
  dbus-daemon --session --nofork --print-address=3 3>"$home/bus" 2>/dev/null &
  hijos+=($!)
  espera test -s "$home/bus"
  DBUS_SESSION_BUS_ADDRESS=$(cat "$home/bus")
  export DBUS_SESSION_BUS_ADDRESS
}

# escritorio [KIND [SCREENS...]]: a whole desktop over a made-up home; the panel has been shown before.
escritorio() {
  local clase=${1:-lista}
  [ $# -eq 0 ] || shift
  home "$clase"
  servidor "$@"
  bus
  gestor
}

# home KIND: the made-up home, and an environment that knows no other.
home() {
  mkdir -p "$home/run" "$home/.config/com.sarnol.zorve"
  chmod 700 "$home/run"
  export HOME=$home XDG_CONFIG_HOME=$home/.config XDG_RUNTIME_DIR=$home/run XDG_DATA_HOME=$home/.local/share
  # Not the file-sharing service, which would mount a folder in the home.
  mkdir -p "$XDG_DATA_HOME/dbus-1/services"
  printf '[D-BUS Service]\nName=org.freedesktop.portal.Documents\nExec=%s\n' "$aqui/documentos.py" \
    >"$XDG_DATA_HOME/dbus-1/services/org.freedesktop.portal.Documents.service"
  unset XDG_CURRENT_DESKTOP XDG_SESSION_TYPE WAYLAND_DISPLAY LC_ALL
  export LANG=C.UTF-8
  "$raiz/Scripts/home-de-muestra.sh" "$home" $$ "$1"
  preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true}'
}

hay_gestor() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
# A window manager that ends while the server is still starting is started again.
hay_gestor_o_empieza() {
  hay_gestor && return
  if terminado "$gestor_pid"; then empieza_gestor; fi
  return 1
}
empieza_gestor() {
  arranca openbox openbox
  gestor_pid=$ultimo
}
gestor() {
  empieza_gestor
  espera hay_gestor_o_empieza
}

# compositor: windows are translucent from here on. Without tracking what changed: over an unaccelerated server recent
# versions then draw the backdrop over all that lies between two changes.
compositor() {
  arranca picom picom --backend xrender --no-use-damage --config /dev/null
  espera hay_compositor
}
hay_compositor() { xprop -root _NET_WM_CM_S0 | grep -q 'window id' || xdotool search --name picom; }

preferencias() { printf '%s\n' "$1" >"$home/.config/com.sarnol.zorve/preferences.json"; }

tiene_nombre() {
  dbus-send --session --print-reply --dest=org.freedesktop.DBus /org/freedesktop/DBus \
    org.freedesktop.DBus.NameHasOwner "string:$1" | grep -q 'boolean true'
}

zorve() {
  arranca zorve "$bin/zorve"
  # shellcheck disable=SC2034 # the tests read it
  zorve_pid=$ultimo
  espera tiene_nombre com.sarnol.zorve
}

segundo() { timeout 20 "$bin/zorve"; }

# ventana SIZE: the program's visible window of that size; the tray icon has the same name.
ventana() {
  local cada
  for cada in $(xdotool search --onlyvisible --name '^Zorve$' 2>/dev/null); do
    [[ $(lugar "$cada") == *" $1" ]] && echo "$cada" && return 0
  done
  return 1
}
panel() { ventana '440 560'; }
ajustes() { ventana '620 460'; }
panel_visible() { panel >/dev/null; }
panel_con_teclado() { [ "$(xdotool getwindowfocus)" = "$(panel)" ]; }
panel_o_ajustes_con_teclado() { xdotool getwindowfocus getwindowname | grep -qx Zorve; }
muestra() {
  segundo
  espera panel_visible
  espera panel_con_teclado
}
terminado() { ! kill -0 "$1" 2>/dev/null; }

# lugar WINDOW: x y width height.
lugar() {
  xdotool getwindowgeometry --shell "$1" | awk -F= '{ v[$1] = $2 } END { print v["X"], v["Y"], v["WIDTH"], v["HEIGHT"] }'
}
centro() {
  local x y ancho alto
  read -r x y ancho alto < <(lugar "$1")
  echo "$((x + ancho / 2)) $((y + alto / 2))"
}
pulsa_en() { xdotool mousemove "$1" "$2" click "${3:-1}"; }

portapapeles() { timeout 2 xclip -selection clipboard -o; }
portapapeles_es() { [ "$(portapapeles)" = "$1" ]; }

# cuantos_pixeles WINDOW COLOUR AREA: how many pixels of AREA (WxH+X+Y) are of about this colour.
cuantos_pixeles() {
  import -silent -window "$1" -crop "$3" +repage png:- |
    convert png:- -alpha set -fuzz 6% -transparent "$2" -alpha extract -negate -format '%[fx:round(mean*w*h)]' info:
}
hay_color() { [ "$(cuantos_pixeles "$1" "$2" "$3")" -gt 3 ]; }

# se_copia ID: Control+C copies it.
se_copia() {
  xdotool key --clearmodifiers ctrl+c
  sleep 0.1
  portapapeles_es "$1"
}
# copiado_es N: Control+C copies the identifier of the sample's session N.
copiado_es() { se_copia "$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")"; }

# casos "$@": at the end of a script of several tests, each a function prueba_SENTENCE with a desktop of its own: runs
# the one that is named, or each by itself.
casos() {
  local cada mal=0
  if [ $# -gt 0 ]; then
    "prueba_$1"
    return
  fi
  for cada in $(compgen -A function prueba_); do
    echo "${cada#prueba_}" >&2
    bash "$0" "${cada#prueba_}" || mal=1
  done
  return "$mal"
}

# shellcheck source=Tests/Escritorio/comun-salta.sh
. "$aqui/comun-salta.sh"
# shellcheck source=Tests/Escritorio/comun-bandejas.sh
. "$aqui/comun-bandejas.sh"
# shellcheck source=Tests/Escritorio/comun-sesiones.sh
. "$aqui/comun-sesiones.sh"
