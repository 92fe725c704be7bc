#!/usr/bin/env bash
# The icon is dark on a light bar and light on a dark one, in either kind of tray, and follows a tray that takes the
# other's place.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
claro='#f4f6fa' oscuro='#0c161b'

zorve
bandeja_xembed top 0 --transparent true --alpha 0 --tint 0x202020
bandeja=$ultimo
espera hay_icono_xembed
espera hay_color "$(icono_xembed)" "$claro" 24x26+0+0
kill "$bandeja"
espera no hay_icono_xembed
bandeja_xembed top
espera hay_icono_xembed
espera hay_color "$(icono_xembed)" "$oscuro" 24x26+0+0
kill "$zorve_pid" "$ultimo"
espera no con_bandeja_xembed

zorve
for de in true false; do
  barra_sn 6 "$de"
  espera hay_icono_sn
  espera hay_color "$(casilla_sn)" "$([ $de = true ] && echo "$claro" || echo "$oscuro")" 24x26+0+0
  quita_barra_sn
done
