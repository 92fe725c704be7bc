# shellcheck shell=bash
# What the desktop tests share. Each runs on an X server, a session bus and in a home of its own; everything
# that it starts ends with it. Sourced with the program's folder in ZORVE_BIN.
set -euo pipefail
aqui=$(realpath "$(dirname "${BASH_SOURCE[0]}")")
raiz=$(realpath "$aqui/../..")
bin=${ZORVE_BIN:?the folder that holds zorve}
casa=$(mktemp -d)
hijos=()

limpia() {
  local estado=$?
  [ "$estado" -eq 0 ] || cuenta_lo_visto
  termina_hijos
  rm -rf "$casa"
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
  tail -n 40 "$casa"/zorve.err >&2 || :
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

# arranca NAME COMMAND...: in the background, what it writes in $casa/NAME.err.
arranca() {
  local nombre=$1
  shift
  "$@" >"$casa/$nombre.out" 2>"$casa/$nombre.err" &
  hijos+=($!)
  ultimo=$!
}

# servidor [SCREENS]: the X server; SCREENS are Xvfb's.
servidor() {
  [ $# -gt 0 ] || set -- -screen 0 1280x800x24
  Xvfb -displayfd 3 "$@" -nolisten tcp -noreset 3>"$casa/pantalla" 2>/dev/null &
  hijos+=($!)
  espera test -s "$casa/pantalla"
  DISPLAY=:$(cat "$casa/pantalla")
  export DISPLAY
}

# monitor NAME WIDTH HEIGHT X Y OUTPUT: a part of the server's screen that counts as one.
monitor() { xrandr --setmonitor "$1" "$2/300x$3/200+$4+$5" "$6" >/dev/null; }

bus() {
  dbus-daemon --session --nofork --print-address=3 3>"$casa/bus" 2>/dev/null &
  hijos+=($!)
  espera test -s "$casa/bus"
  DBUS_SESSION_BUS_ADDRESS=$(cat "$casa/bus")
  export DBUS_SESSION_BUS_ADDRESS
}

# escritorio [KIND [SCREENS...]]: a whole desktop over a made-up home; the panel has been shown before.
escritorio() {
  local clase=${1:-lista}
  [ $# -eq 0 ] || shift
  hogar "$clase"
  servidor "$@"
  bus
  gestor
}

# hogar KIND: the made-up home, and an environment that knows no other.
hogar() {
  mkdir -p "$casa/run" "$casa/.config/com.sarnol.zorve"
  chmod 700 "$casa/run"
  export HOME=$casa XDG_CONFIG_HOME=$casa/.config XDG_RUNTIME_DIR=$casa/run XDG_DATA_HOME=$casa/.local/share
  unset XDG_CURRENT_DESKTOP XDG_SESSION_TYPE WAYLAND_DISPLAY LC_ALL
  export LANG=C.UTF-8
  "$raiz/Scripts/casa-de-muestra.sh" "$casa" $$ "$1"
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

preferencias() { printf '%s\n' "$1" >"$casa/.config/com.sarnol.zorve/preferences.json"; }

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

portapapeles() { xclip -selection clipboard -o; }
portapapeles_es() { [ "$(portapapeles)" = "$1" ]; }

# cuantos_pixeles WINDOW COLOUR AREA: how many pixels of AREA (WxH+X+Y) are of about this colour.
cuantos_pixeles() {
  import -silent -window "$1" -crop "$3" +repage png:- |
    convert png:- -alpha set -fuzz 6% -transparent "$2" -alpha extract -negate -format '%[fx:round(mean*w*h)]' info:
}
hay_color() { [ "$(cuantos_pixeles "$1" "$2" "$3")" -gt 3 ]; }

# Tray hosts. bandeja_xembed [EDGE [MONITOR [OPTIONS...]]]
bandeja_xembed() {
  arranca trayer trayer --edge "${1:-top}" --align right --widthtype request --heighttype pixel --height 26 \
    --SetDockType true --SetPartialStrut true --transparent false --monitor "${2:-0}" "${@:3}"
  espera con_bandeja_xembed
}
con_bandeja_xembed() { xprop -root _NET_CLIENT_LIST && xdotool search --class trayer; }
# The icon's window in an XEmbed tray.
icono_xembed() { xwininfo -root -tree | awk '/"Zorve": \("zorve"/ && !/ (440x560|620x460|1x1)\+/ { print $1; exit }'; }
hay_icono_xembed() { [ -n "$(icono_xembed)" ]; }

# barra_sn EDGE [DARK]: a bar whose one thing is a StatusNotifier host. EDGE is xfce4-panel's number of an edge (6 the
# top, 8 the bottom), DARK true or false.
barra_sn() {
  local canal=$casa/.config/xfce4/xfconf/xfce-perchannel-xml
  mkdir -p "$canal"
  cat >"$canal/xfce4-panel.xml" <<FIN
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfce4-panel" version="1.0">
  <property name="configver" type="int" value="2"/>
  <property name="panels" type="array">
    <value type="int" value="1"/>
    <property name="dark-mode" type="bool" value="${2:-true}"/>
    <property name="panel-1" type="empty">
      <property name="position" type="string" value="p=$1;x=0;y=0"/>
      <property name="output-name" type="string" value="Automatic"/>
      <property name="position-locked" type="bool" value="true"/>
      <property name="length" type="uint" value="100"/>
      <property name="size" type="uint" value="26"/>
      <property name="plugin-ids" type="array"><value type="int" value="1"/></property>
    </property>
  </property>
  <property name="plugins" type="empty">
    <property name="plugin-1" type="string" value="systray"/>
  </property>
</channel>
FIN
  NO_AT_BRIDGE=1 arranca barra xfce4-panel --disable-wm-check
  barra=$ultimo
  espera tiene_nombre org.kde.StatusNotifierWatcher
}
# The host's own window; it is as wide as its icons.
casilla_sn() {
  local cada
  for cada in $(xdotool search --onlyvisible --class '^wrapper-2.0$' 2>/dev/null); do
    [ "$(lugar "$cada" | cut -d' ' -f3)" -gt 12 ] && echo "$cada" && return 0
  done
  return 1
}
# The host makes the place before the button in it: only what is drawn takes clicks. A bar of one colour has no icon.
hay_icono_sn() {
  local casilla
  casilla=$(casilla_sn) && [ "$(import -silent -window "$casilla" png:- | convert png:- -format %k info:)" -gt 12 ]
}
# The menu that the host draws, which is ours.
menu_sn() {
  local cada alto
  for cada in $(xdotool search --onlyvisible --class '^wrapper-2.0$' 2>/dev/null); do
    read -r _ _ _ alto < <(lugar "$cada")
    [ "$alto" -gt 40 ] && echo "$cada" && return 0
  done
  return 1
}
# Its settings daemon ends too: it would not read the next bar's file.
quita_barra_sn() {
  local ajustador
  ajustador=$(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
    --method org.freedesktop.DBus.GetConnectionUnixProcessID org.xfce.Xfconf | grep -oE '[0-9]+' | tail -n 1)
  kill "$barra"
  espera terminado "$barra"
  kill "$ajustador"
  espera terminado "$ajustador"
  espera no tiene_nombre org.kde.StatusNotifierWatcher
}
# The items that the host knows: the bus name and the path of each.
elementos_sn() {
  dbus-send --session --print-reply --dest=org.kde.StatusNotifierWatcher /StatusNotifierWatcher \
    org.freedesktop.DBus.Properties.Get string:org.kde.StatusNotifierWatcher string:RegisteredStatusNotifierItems |
    sed -nE 's/.*string "([^"]*)".*/\1/p'
}
hay_elemento() { [ -n "$(elementos_sn)" ]; }

# copiado_es N: Control+C copies the identifier of the sample's session N.
copiado_es() {
  xdotool key --clearmodifiers ctrl+c
  sleep 0.1
  portapapeles_es "$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")"
}
# The program's menu: a visible window of its own, neither panel nor settings, wider than an icon.
menu() {
  local cada ancho alto
  for cada in $(xdotool search --onlyvisible --class zorve 2>/dev/null); do
    read -r _ _ ancho alto < <(lugar "$cada")
    [ "$ancho $alto" = '440 560' ] || [ "$ancho $alto" = '620 460' ] || [ "$ancho" -lt 80 ] || {
      echo "$cada"
      return 0
    }
  done
  return 1
}

# agente: a stand-in for the agent; run with a name, it notes its process and, line by line, what it is typed.
agente() {
  mkdir -p "$casa/bin" "$casa/teclas"
  cat >"$casa/bin/claude" <<FIN
#!/bin/sh
: >"$casa/teclas/\$1"
echo \$\$ >"$casa/teclas/\$1.pid.nuevo"
mv "$casa/teclas/\$1.pid.nuevo" "$casa/teclas/\$1.pid"
while read -r linea; do echo "\$linea" >>"$casa/teclas/\$1"; done
FIN
  chmod +x "$casa/bin/claude"
}
# registra N NAME: the stand-in with that name is the running session N, titled "Sesion NAME".
registra() {
  espera test -s "$casa/teclas/$2.pid"
  apunta "$1" "$2" "$(cat "$casa/teclas/$2.pid")"
}
# apunta N NAME PID: that process is the running session N.
apunta() {
  local id
  id=$(printf '%08d-5e55-4000-8000-%012d' "$1" "$1")
  mkdir -p "$casa/.claude/projects/p" "$casa/.claude/sessions"
  printf '{"display":"Sesion %s","timestamp":%d000,"project":"%s","sessionId":"%s"}\n' \
    "$2" $(($(date +%s) - $1)) "$casa" "$id" >>"$casa/.claude/history.jsonl"
  printf '{"type":"user","cwd":"%s"}\n' "$casa" >"$casa/.claude/projects/p/$id.jsonl"
  printf '{"pid":%d,"sessionId":"%s","cwd":"%s","status":"idle"}\n' "$3" "$id" "$casa" >"$casa/.claude/sessions/$1.json"
}
# elige N NAME: the panel comes up and session N is its selected row.
elige() {
  muestra
  xdotool key ctrl+a
  xdotool type --delay 1 "sesion $2"
  espera copiado_es "$1"
}
teclas_ajenas() { for cada in "$casa"/teclas/*.pid; do [ "$cada" = "$casa/teclas/$1.pid" ] || cat "${cada%.pid}"; done; }
termina_en() { [ "$(tail -n 1 "$casa/teclas/$1")" = "$2" ]; }
# llega NAME KEY: a key press arrives at that session and at no other.
llega() {
  local antes
  antes=$(teclas_ajenas "$1")
  xdotool key "$2" Return
  espera termina_en "$1" "$2"
  [ "$(teclas_ajenas "$1")" = "$antes" ] || fallo "the key for $1 arrived elsewhere"
}
