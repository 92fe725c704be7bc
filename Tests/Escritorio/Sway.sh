#!/usr/bin/env bash
# Under a Wayland compositor: the panel opens with the keyboard by the token of whoever asked, filters and closes;
# the settings take keys and close; a session opens in a terminal, which gets a token of its own.
# shellcheck source=Tests/Escritorio/comun-sway.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-sway.sh"
escritorio_sway lista 'default_floating_border none' 'focus_on_window_activation focus'
mkdir -p "$casa/bin"
cat >"$casa/bin/foot" <<FIN
#!/bin/sh
printf '%s\n' "\$XDG_ACTIVATION_TOKEN" >"$casa/testigo"
exec /usr/bin/foot "\$@"
FIN
chmod +x "$casa/bin/foot"
export PATH=$casa/bin:$PATH
"$bin/zorvectl" choose foot
teclado
WAYLAND_DEBUG=client zorve
activada_con() { grep -q "xdg_activation_v1[@#].*activate(\"$1\"" "$casa/zorve.err"; }

XDG_ACTIVATION_TOKEN=el-de-quien-llama segundo
espera panel_con_teclado_en_sway
espera activada_con el-de-quien-llama
panel_en_sway | jq -e '.type == "floating_con"' >/dev/null || fallo "the panel does not float"
wtype -k Escape
espera no panel_en_sway

segundo
espera panel_con_teclado_en_sway
wtype -M ctrl , -m ctrl
espera ajustes_con_teclado_en_sway
espera no panel_en_sway
idioma_es() { [ "$(jq -r '."zorve.idioma"' "$casa/.config/com.sarnol.zorve/preferences.json")" = "$1" ]; }
# Three sections, the box, English, Español.
wtype -k Tab -k Tab -k Tab -k Tab -k Tab -k Tab -k space
espera idioma_es es
wtype -M ctrl -M shift w -m shift -m ctrl
sleep 0.3
ajustes_en_sway >/dev/null || fallo "Control+Shift+W closed the settings"
wtype -M ctrl w -m ctrl
espera no ajustes_en_sway

segundo
espera panel_con_teclado_en_sway
wtype "benchmark"
sleep 0.3
wtype -k Return
espera con_teclado_en_sway foot
espera no panel_en_sway
[ -n "$(cat "$casa/testigo")" ] || fallo "the terminal got no token"

segundo
espera panel_con_teclado_en_sway
wtype -M ctrl q -m ctrl
espera terminado "$zorve_pid"
