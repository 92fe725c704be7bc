#!/usr/bin/env bash
# A second start shows the first one's panel and ends, or says that the first one does not answer; D-Bus activation
# shows it too; the bus offers nothing else; arguments are refused.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
zorve
! panel_visible || fallo "a later start opened the panel by itself"
segundo
espera panel_visible
xdotool key Escape
espera no panel_visible
gdbus call --session --dest com.sarnol.zorve --object-path /com/sarnol/zorve \
  --method org.freedesktop.Application.Activate '{}' >/dev/null
espera panel_visible
metodos=$(dbus-send --session --print-reply --dest=com.sarnol.zorve /com/sarnol/zorve \
  org.freedesktop.DBus.Introspectable.Introspect | grep -oE '<interface name="[^"]*"|method name="[^"]*"')
[ "$(grep -c 'interface name="org.freedesktop.Application"' <<<"$metodos")" -eq 1 ] || fallo "not exported: $metodos"
! grep 'interface' <<<"$metodos" | grep -vE 'org.freedesktop.(Application|DBus.(Properties|Introspectable|Peer))"' ||
  fallo "more is exported: $metodos"
kill -STOP "$zorve_pid"
! segundo 2>"$casa/segundo.err" || fallo "a second start takes a first one that hangs for shown"
kill -CONT "$zorve_pid"
grep -q 'does not answer' "$casa/segundo.err" || fallo "the second start says: $(cat "$casa/segundo.err")"
! "$bin/zorve" algo 2>/dev/null || fallo "an argument was taken"
kill -0 "$zorve_pid" || fallo "the first one is gone"
