#!/usr/bin/env bash
# The panel on the desktop and the panel in a terminal, over one home.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-gustos.sh"

# en_el_escritorio: the rows that a screen reader is told of, as TITLE (STATE, PATH, AGE, PROMPTS), without their help.
en_el_escritorio() {
  arbol && sed -nE 's/^ *list item "(.*)" \(([^()]* prompts)[^()]*\)( \[.*)?$/\1 (\2)/p' "$home/arbol"
}
# en_la_terminal: the same of the cells: a line TITLE AGE, a line PATH [· STATE] PROMPTS.
en_la_terminal() {
  tmux -S "$home/run/tmux" capture-pane -p -t panel | sed -E 's/^▌/ /' | awk '
    /^  [^ ]+ .*  +[^ ]+$/ {
      linea = $0
      sub(/^  [^ ]+ /, "", linea)
      edad = linea
      sub(/.*  +/, "", edad)
      sub(/  +[^ ]+$/, "", linea)
      titulo = linea
      next
    }
    /^    .* prompts$/ && titulo != "" {
      linea = substr($0, 5)
      cuenta = linea
      sub(/.*  +/, "", cuenta)
      sub(/  +[0-9]+ prompts$/, "", linea)
      estado = ""
      if (match(linea, / · [^ ]+$/)) {
        estado = substr(linea, RSTART)
        sub(/ · /, "", estado)
        estado = estado ", "
        linea = substr(linea, 1, RSTART - 1)
      }
      print titulo " (" estado linea ", " edad ", " cuenta ")"
      titulo = ""
    }'
}
# Those in sight on the desktop; the terminal is high enough for all.
dicen_lo_mismo() {
  en_el_escritorio >"$home/escritorio" && en_la_terminal >"$home/terminal" &&
    [ "$(wc -l <"$home/escritorio")" -ge 7 ] &&
    diff "$home/escritorio" <(head -n "$(wc -l <"$home/escritorio")" "$home/terminal") >"$home/distinto"
}

# las_dos_caras LANGUAGE
las_dos_caras() {
  escritorio lista
  preferencias "{\"app.zorve.panelMostradoEnPrimerArranque\":true,\"zorve.avisoDeBandejaMostrado\":true,\"zorve.idioma\":\"$1\"}"
  lector
  zorve
  muestra
  tmux -f /dev/null -S "$home/run/tmux" new-session -d -s panel -x 120 -y 50 "$bin/zorvectl panel"
  hijos+=("$(tmux -S "$home/run/tmux" display-message -p -t panel '#{pid}')")
  espera dicen_lo_mismo
}

prueba_lasMismasFilasYPalabrasEnIngles() { las_dos_caras en; }
prueba_lasMismasFilasYPalabrasEnEspanol() { las_dos_caras es; }

prueba_unaBusquedaDejaLasMismasFilas() {
  las_dos_caras en
  xdotool type surrog
  tmux -S "$home/run/tmux" send-keys -t panel -l surrog
  espera quedan_las_mismas
}
quedan_las_mismas() { [ "$(en_el_escritorio | wc -l)" -eq 1 ] && diff <(en_el_escritorio) <(en_la_terminal); }

casos "$@"
