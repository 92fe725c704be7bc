# shellcheck shell=bash
# What the tests under sway share beside comun.sh: a compositor of their own without a screen.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

# shellcheck disable=SC2010,SC2012,SC2086 # a handful of names that sway chooses
primero() { ls -d "$home"/sway/$1 2>/dev/null | grep -v '\.lock$' | head -n 1; }
hay_primero() { [ -n "$(primero "$1")" ]; }

# como_persona COMMAND...: sway refuses to be root, and then is somebody else.
como_persona() {
  [ "$(id -u)" -ne 0 ] || set -- setpriv --reuid 65534 --regid 65534 --clear-groups "$@"
  XDG_RUNTIME_DIR=$home/sway exec "$@"
}

# escritorio_sway KIND [CONFIG...]: a whole desktop over a made-up home; CONFIG are lines of sway's configuration.
escritorio_sway() {
  home "$1"
  shift
  bus
  unset DISPLAY
  export WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman XDG_SESSION_TYPE=wayland
  mkdir -m 700 "$home/sway"
  [ "$(id -u)" -ne 0 ] || chown 65534:65534 "$home/sway"
  chmod 711 "$home"
  printf '%s\n' 'output HEADLESS-1 resolution 1280x800' 'xwayland disable' "$@" >"$home/sway.conf"
  arranca sway como_persona sway -c "$home/sway.conf"
  espera hay_primero 'wayland-?'
  espera hay_primero 'sway-ipc*'
  WAYLAND_DISPLAY=$(primero 'wayland-?')
  SWAYSOCK=$(primero 'sway-ipc*')
  export WAYLAND_DISPLAY SWAYSOCK
}

# The keyboard that stays when each of wtype's own goes again.
teclado() {
  arranca teclado wtype -s 600000
  sleep 0.2
}

# ventana_de_sway APP_ID WIDTH HEIGHT: that window as one line of JSON.
ventana_de_sway() {
  swaymsg -r -t get_tree | jq -ec --arg a "$1" --argjson w "$2" --argjson h "$3" \
    'first(.. | objects | select(.app_id? == $a and .window_rect.width == $w and .window_rect.height == $h))'
}
panel_en_sway() { ventana_de_sway com.sarnol.zorve 440 560; }
ajustes_en_sway() { ventana_de_sway com.sarnol.zorve 620 460; }
panel_con_teclado_en_sway() { panel_en_sway | jq -e .focused; }
ajustes_con_teclado_en_sway() { ajustes_en_sway | jq -e .focused; }
con_teclado_en_sway() { swaymsg -r -t get_tree | jq -e --arg a "$1" 'any(.. | objects; .app_id? == $a and .focused)'; }
