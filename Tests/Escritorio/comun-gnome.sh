# shellcheck shell=bash
# What the tests under GNOME share beside comun.sh: a GNOME Shell of their own without a screen, with keys, clicks and
# pictures by gnome.py. The shell and the bus are an ordinary user's: root becomes one.

# shellcheck source=Tests/Escritorio/comun-salta.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-salta.sh"
[ -z "${solo_con_all:-}" ] || [ "${ZORVE_LARGOS:-no}" = si ] || salta "tests that take long run with --all"
for programa in gnome-shell Xwayland gdbus; do
  command -v "$programa" >/dev/null || salta "$programa is not installed"
done
[ -d /usr/share/gnome-shell/extensions/ubuntu-appindicators@ubuntu.com ] ||
  salta "gnome-shell-extension-appindicator is not installed"
if [ "$(id -u)" -eq 0 ]; then exec setpriv --reuid 65534 --regid 65534 --clear-groups bash "$0"; fi
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
uuid=zorve-windows@sarnol.com
extensiones=$home/.local/share/gnome-shell/extensions

version_de_gnome() { gnome-shell --version | grep -oE '[0-9]+' | head -n 1; }

# instala_la_extension: ours, for this user, in the form that this shell takes.
instala_la_extension() {
  local forma=45
  [ "$(version_de_gnome)" -ge 45 ] || forma=42
  cmake "-DFORMA=$forma" "-DDESTINO=$extensiones/$uuid" -P "$raiz/Packaging/Linux/gnome/extension.cmake"
}

# escritorio_gnome KIND [EXTENSION...]: a whole session over a made-up home with these extensions on.
escritorio_gnome() {
  local encendidas
  home "$1"
  shift
  encendidas=$(printf "'%s'," "$@")
  mkdir -p "$home/.config/glib-2.0/settings"
  cat >"$home/.config/glib-2.0/settings/keyfile" <<FIN
[org/gnome/shell]
welcome-dialog-last-shown-version='99'
disable-user-extensions=false
enabled-extensions=[${encendidas%,}]
[org/gnome/desktop/interface]
enable-animations=false
enable-hot-corners=false
[org/gnome/desktop/lockdown]
disable-lock-screen=true
[org/gnome/mutter]
dynamic-workspaces=false
[org/gnome/desktop/wm/preferences]
num-workspaces=3
FIN
  export GSETTINGS_BACKEND=keyfile XDG_SESSION_TYPE=wayland XDG_CURRENT_DESKTOP=GNOME LIBGL_ALWAYS_SOFTWARE=1 NO_AT_BRIDGE=1
  bus
  # Without a system bus the shell ends.
  export DBUS_SYSTEM_BUS_ADDRESS=$DBUS_SESSION_BUS_ADDRESS
  unset DISPLAY
  arranca gnome gnome-shell --headless --virtual-monitor 1280x800 --wayland
  espera grep -q 'Shell started at' "$home/gnome.err" "$home/gnome.out"
  WAYLAND_DISPLAY=$(sed -n "s/.*Using Wayland display name '\(.*\)'.*/\1/p" "$home"/gnome.{out,err} | head -n 1)
  DISPLAY=$(sed -n 's/.*Using public X11 display \(:[0-9]*\).*/\1/p' "$home"/gnome.{out,err} | head -n 1)
  XAUTHORITY=$(find "$home/run" -name '.mutter-Xwaylandauth.*' | head -n 1)
  export WAYLAND_DISPLAY DISPLAY XAUTHORITY
  dbus-update-activation-environment WAYLAND_DISPLAY DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE HOME \
    XDG_CONFIG_HOME XDG_DATA_HOME XDG_RUNTIME_DIR GSETTINGS_BACKEND LANG NO_AT_BRIDGE LIBGL_ALWAYS_SOFTWARE
  coproc mando_de_gnome { exec python3 "$aqui/gnome.py" 2>"$home/mando.err"; }
  hijos+=("$mando_de_gnome_PID")
  responde || fallo "no driver: $(cat "$home/mando.err")"
  fuera_del_resumen
  # A first key makes the seat's keyboard; the pointer out of the way.
  mando key shift
  mando move 1260 780
}

responde() {
  local respuesta
  read -r -t 60 respuesta <&"${mando_de_gnome[0]}" || return 1
  [ "$respuesta" = ok ] || fallo "the driver: $respuesta"
}

# mando ORDER...: one order to gnome.py, done when it returns.
mando() {
  echo "$*" >&"${mando_de_gnome[1]}"
  responde || fallo "the driver does not answer: $*"
}

# Asked of the shell: newer ones leave X11 programs without an answer while a Wayland window has the keyboard.
portapapeles_es() {
  mando paste "$home/copiado"
  [ "$(cat "$home/copiado")" = "$1" ]
}

del_shell() {
  gdbus call --session --dest org.gnome.Shell --object-path /org/gnome/Shell --method "$@"
}
# It starts in the overview.
fuera_del_resumen() {
  del_shell org.freedesktop.DBus.Properties.Set org.gnome.Shell OverviewActive '<false>' >/dev/null
}

# ventanas_de PID: what our extension tells of that process.
ventanas_de() {
  gdbus call --session --dest com.sarnol.zorve.Windows --object-path /com/sarnol/zorve/Windows \
    --method com.sarnol.zorve.Windows.List "[$1]"
}
tiene_ventana() { ventanas_de "$1" | grep -q '(uint32'; }
tiene_el_teclado() { ventanas_de "$1" | grep -q 'true)'; }

# foto: the whole screen in $home/foto.png.
foto() { mando shot "$home/foto.png"; }
# pixeles COLOUR AREA: how many of AREA (WxH+X+Y) are of about this colour on a new picture.
pixeles() {
  foto
  convert "$home/foto.png" -crop "$2" +repage -alpha set -fuzz 6% -transparent "$1" -alpha extract -negate \
    -format '%[fx:round(mean*w*h)]' info:
}

# enfoca TERMINAL NAME: the helper brings that session of the stand-in to the front.
enfoca() {
  "$bin/zorve-terminal" focus "$1" "$(ps -o tty= -p "$(cat "$home/teclas/$2.pid")" | tr -d ' ')"
}
# llega_en_gnome NAME KEY: a key press arrives at that session and at no other.
llega_en_gnome() {
  local antes
  antes=$(teclas_ajenas "$1")
  mando key "$2" return
  espera termina_en "$1" "$2"
  [ "$(teclas_ajenas "$1")" = "$antes" ] || fallo "the key for $1 arrived elsewhere"
}

# base: what later pictures are compared with, once nothing moves.
base() { espera base_quieta; }
base_quieta() {
  mando shot "$home/base.png"
  sleep 0.7
  ! cambiado "$pantalla"
}
pantalla=1280x800+0+0
# cambiado AREA: what of AREA has changed since, as WxH+X+Y on the screen; fails where nothing has.
cambiado() {
  local area=$1 caja
  foto
  caja=$(convert "$home/base.png" "$home/foto.png" -crop "$area" +repage -compose difference -composite \
    -threshold 4% -trim -format '%wx%h%O' info: 2>/dev/null) || return 1
  [[ $caja != 1x1* && $caja != *-1* ]] || return 1
  awk -F'[x+]' -v o="$area" 'BEGIN { split(o, a, /[x+]/) } { printf "%dx%d+%d+%d\n", $1, $2, $3 + a[3], $4 + a[4] }' <<<"$caja"
}
# The right of the shell's bar.
# shellcheck disable=SC2034 # the tests read it
barra=580x27+700+0
# centro_de WxH+X+Y: x y
centro_de() { awk -F'[x+]' '{ print int($3 + $1 / 2), int($4 + $2 / 2) }' <<<"$1"; }
# In place of comun.sh's: what the shell said, and with ZORVE_FOTOS the pictures.
cuenta_lo_visto() {
  echo "--- what the shell wrote" >&2
  grep -vE 'libmutter|accountsservice|xkbcomp|^$' "$home/gnome.err" | tail -n 20 >&2 || :
  echo "--- what zorve wrote" >&2
  tail -n 20 "$home"/zorve.err >&2 || :
  if [ -n "${ZORVE_FOTOS:-}" ]; then
    foto || :
    cp "$home"/*.png "$ZORVE_FOTOS" || :
  fi
}
