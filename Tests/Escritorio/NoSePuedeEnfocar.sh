#!/usr/bin/env bash
# A running session without a controlling terminal: Return shows the notice and the panel stays.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
escritorio lista
setsid sleep 300 </dev/null >/dev/null 2>&1 &
suelta=$!
hijos+=("$suelta")
sed -i "s/\"pid\":[0-9]*/\"pid\":$suelta/" "$casa"/.claude/sessions/*.json
preferencias '{"app.zorve.panelMostradoEnPrimerArranque":true,"zorve.avisoDeBandejaMostrado":true,"zorve.terminalElegida":"xterm"}'
zorve
muestra
xdotool mousemove 5 5
espera copiado_es 1
avisa() { hay_color "$(panel)" '#2dd4bf' 20x60+16+62; }
xdotool key Escape
espera no panel_visible
muestra
xdotool key Return
espera avisa
panel_visible || fallo "the panel closed"
