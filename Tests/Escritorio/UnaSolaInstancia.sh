#!/usr/bin/env bash
# There is one program a session bus, and what a second start does.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"

con_una() {
  escritorio lista
  zorve
}

prueba_unArranquePosteriorNoAbreElPanel() {
  con_una
  ! panel_visible || fallo "a later start opened the panel by itself"
}

prueba_elSegundoArranqueMuestraElPanelDelPrimero() {
  con_una
  segundo
  espera panel_visible
}

prueba_laActivacionPorElBusMuestraElPanel() {
  con_una
  gdbus call --session --dest com.sarnol.zorve --object-path /com/sarnol/zorve \
    --method org.freedesktop.Application.Activate '{}' >/dev/null
  espera panel_visible
}

prueba_elBusNoOfreceNadaMas() {
  local metodos
  con_una
  metodos=$(dbus-send --session --print-reply --dest=com.sarnol.zorve /com/sarnol/zorve \
    org.freedesktop.DBus.Introspectable.Introspect | grep -oE '<interface name="[^"]*"|method name="[^"]*"')
  [ "$(grep -c 'interface name="org.freedesktop.Application"' <<<"$metodos")" -eq 1 ] || fallo "not exported: $metodos"
  ! grep 'interface' <<<"$metodos" | grep -vE 'org.freedesktop.(Application|DBus.(Properties|Introspectable|Peer))"' ||
    fallo "more is exported: $metodos"
}

prueba_siElPrimeroNoContestaElSegundoLoDice() {
  con_una
  kill -STOP "$zorve_pid"
  ! segundo 2>"$home/segundo.err" || fallo "a second start takes a first one that hangs for shown"
  kill -CONT "$zorve_pid"
  grep -q 'does not answer' "$home/segundo.err" || fallo "the second start says: $(cat "$home/segundo.err")"
}

prueba_noTomaArgumentos() {
  con_una
  ! "$bin/zorve" algo 2>/dev/null || fallo "an argument was taken"
  kill -0 "$zorve_pid" || fallo "the first one is gone"
}

casos "$@"
