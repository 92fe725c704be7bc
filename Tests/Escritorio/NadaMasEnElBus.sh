#!/usr/bin/env bash
# What the program has on the bus: its name with Activate, the tray item and its menu, and nothing else.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
pregunta() {
  gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus --method "org.freedesktop.DBus.$1" "${@:2}"
}
# de_zorve NAME: whether it is a name of the program's process.
de_zorve() { pregunta GetConnectionUnixProcessID "$1" 2>/dev/null | grep -q " $zorve_pid,"; }
en_una_barra() {
  escritorio lista
  barra_sn 6
  zorve
  espera hay_icono_sn
  nombres=()
  while read -r cada; do ! de_zorve "$cada" || nombres+=("$cada"); done < <(pregunta ListNames | grep -oE "'[^']+'" | tr -d "'")
}

prueba_susNombresSonElSuyoYElDelIcono() {
  local propios
  en_una_barra
  propios=$(printf '%s\n' "${nombres[@]}" | grep -v '^:' | sort | tr '\n' ' ')
  [[ $propios =~ ^com\.sarnol\.zorve\ (org\.kde\.StatusNotifierItem-$zorve_pid-1\ )?$ ]] || fallo "names: $propios"
}

# Each interface with its methods, signals and properties, of every object of every connection.
prueba_susInterfacesSonTres() {
  local visto
  en_una_barra
  visto=$(for cada in "${nombres[@]}"; do
    [[ $cada != :* ]] || gdbus introspect --session --dest "$cada" --object-path / --recurse
  done | grep -oE 'interface [^ ]+' | grep -v 'org.freedesktop.DBus.' | sort)
  [ "$visto" = 'interface com.canonical.dbusmenu
interface org.freedesktop.Application
interface org.kde.StatusNotifierItem' ] || fallo "exported: $visto"
}

prueba_laSuyaSoloTieneActivate() {
  local metodos
  en_una_barra
  metodos=$(gdbus introspect --session --dest com.sarnol.zorve --object-path /com/sarnol/zorve | sed -n '/interface org.freedesktop.Application/,/^  };/p' | grep -E '\(|;' | grep -vE '@|^  };' | tr -s ' ')
  [ "$metodos" = " Activate(in a{sv} datosDePlataforma);" ] || fallo "org.freedesktop.Application has more: $metodos"
}

casos "$@"
