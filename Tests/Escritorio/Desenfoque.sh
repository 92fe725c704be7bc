#!/usr/bin/env bash
# Blur behind the panel, on a compositor that says whether it blurs.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"
region=_KDE_NET_WM_BLUR_BEHIND_REGION
pedido() { xprop -id "$(panel)" -notype "$region" | sed -nE "s/^$region = (.*)/\1/p"; }
hay_pedido() { [ -n "$(pedido)" ]; }
con_compositor() {
  escritorio lista
  portal
  compositor
}
que_desenfoca() {
  con_compositor
  xprop -root -f "$region" 32c -set "$region" 0
  zorve
  muestra
  espera hay_pedido
}

prueba_sinQuienDesenfoqueNoSePide() {
  con_compositor
  zorve
  muestra
  no hay_pedido || fallo "blur is asked for that nobody offers: $(pedido)"
}

# The rectangles of one row each at the corners: the first begins within the radius, the widest is the panel's width.
prueba_sePideDentroDelContornoRedondeado() {
  que_desenfoca
  pedido | tr ',' '\n' | awk 'NR == 1 { x = $1 } NR == 2 { y = $1 } NR % 4 == 3 && $1 > ancho { ancho = $1 }
    END { exit !(x > 2 && x <= 14 && y <= 1 && ancho == 440) }' || fallo "the shape is $(pedido)"
}

prueba_conAltoContrasteYaNoSePide() {
  que_desenfoca
  gsettings set org.gnome.desktop.a11y.interface high-contrast true
  espera no hay_pedido
}

casos "$@"
