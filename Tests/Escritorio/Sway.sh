#!/usr/bin/env bash
# Panel, settings and terminals under a Wayland compositor.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
con_panel() {
  escritorio_sway lista 'default_floating_border none' 'focus_on_window_activation focus'
  teclado
  WAYLAND_DEBUG=client zorve
  XDG_ACTIVATION_TOKEN=el-de-quien-llama segundo
  espera panel_con_teclado_en_sway
}
con_ajustes() {
  con_panel
  wtype -M ctrl , -m ctrl
  espera ajustes_con_teclado_en_sway
}
idioma_es() { [ "$(jq -r '."zorve.idioma"' "$home/.config/com.sarnol.zorve/preferences.json")" = "$1" ]; }

prueba_elPanelVienePorElTestigoDeQuienLlama() {
  con_panel
  espera grep -q 'xdg_activation_v1[@#].*activate("el-de-quien-llama"' "$home/zorve.err"
  panel_en_sway | jq -e '.type == "floating_con"' >/dev/null || fallo "the panel does not float"
}

prueba_escapeLoCierra() {
  con_panel
  wtype -k Escape
  espera no panel_en_sway
}

prueba_losAjustesLoSustituyen() {
  con_ajustes
  espera no panel_en_sway
}

# Three sections, the box, English, Español.
prueba_losAjustesSeLlevanConElTeclado() {
  con_ajustes
  wtype -k Tab -k Tab -k Tab -k Tab -k Tab -k Tab -k space
  espera idioma_es es
}

# Keys arrive in their order: what the language says has come after them.
prueba_controlMayusculasWNoCierraLosAjustesYControlWSi() {
  con_ajustes
  wtype -M ctrl -M shift w -m shift -m ctrl -k Tab -k Tab -k Tab -k Tab -k Tab -k Tab -k space
  espera idioma_es es
  ajustes_en_sway >/dev/null || fallo "Control+Shift+W closed the settings"
  wtype -M ctrl w -m ctrl
  espera no ajustes_en_sway
}

prueba_unaSesionSeAbreEnUnaTerminalConTestigoPropio() {
  escritorio_sway lista 'default_floating_border none' 'focus_on_window_activation focus'
  mkdir -p "$home/bin" "$home/src/bench/parser"
  cat >"$home/bin/foot" <<FIN
#!/bin/sh
printf '%s\n' "\$XDG_ACTIVATION_TOKEN" >"$home/testigo"
exec /usr/bin/foot "\$@"
FIN
  chmod +x "$home/bin/foot"
  export PATH=$home/bin:$PATH
  "$bin/zorvectl" choose foot
  teclado
  zorve
  segundo
  espera panel_con_teclado_en_sway
  wtype "benchmark" -s 300 -k Return
  espera con_teclado_en_sway foot
  espera no panel_en_sway
  [ -n "$(cat "$home/testigo")" ] || fallo "the terminal got no token"
}

prueba_controlQSale() {
  con_panel
  wtype -M ctrl q -m ctrl
  espera terminado "$zorve_pid"
}

casos "$@"
