#!/usr/bin/env bash
# Checks that the arrows between the layers run one way, that the portable folders ask for no system, that every
# source has a header of its name, that no headers include each other in a circle, that no two types of one
# namespace share a name, and that the mains leave their assembly to the one maker.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mal=0
# dice WHY FINDINGS: says so, unless there are none.
dice() {
  [ -n "$2" ] || return 0
  printf '%s:\n%s\n' "$1" "$2" >&2
  mal=1
}

# prohibe FOLDER PATTERN WHY [BUT]: no source of the folder may have a line that matches, unless it matches BUT.
prohibe() {
  local hallados
  hallados=$(grep -nE --directories=skip --include='*.h' --include='*.cpp' --include='*.mm' -- "$2" "${1%/}"/* |
    grep -vE -- "${4:-^$}" || :)
  dice "$3" "$hallados"
}

incluye='^[[:space:]]*#[[:space:]]*(include|import) "'
sistemas='^[[:space:]]*#[[:space:]]*(if|ifdef|ifndef|elif).*(__APPLE__|__linux__|__unix__|_WIN32|__FreeBSD__|TARGET_OS_)'
toolkits='^[[:space:]]*#[[:space:]]*(include|import)[[:space:]]*<(Q[A-Z]|Qt|AppKit|Foundation|Cocoa|X11|xcb|dbus|gio|glib)'
posix='^[[:space:]]*#[[:space:]]*include[[:space:]]*<(unistd|fcntl|spawn|dirent|signal|pwd|sys/.*)\.h>'
# What a platform implements of the layer above it.
costuras='ZorveApp/(Despachador|InicioDeSesion|Portapapeles)\.h"'

for carpeta in Sources/ZorveCore Sources/ZorveCore/*/ Sources/ZorveApp; do
  prohibe "$carpeta" "$sistemas" "$carpeta asks which system it is built for"
  prohibe "$carpeta" "$toolkits" "$carpeta includes a toolkit"
  prohibe "$carpeta" "$posix" "$carpeta calls the system without a seam"
done
for carpeta in Sources/ZorveCore Sources/ZorveCore/*/; do
  prohibe "$carpeta" "$incluye(ZorveApp|ZorvePlatform|ZorveTerminal|ZorveTui|zorvectl)/" "$carpeta includes a layer above it"
done
prohibe Sources/ZorveApp "$incluye(ZorvePlatform|ZorveTerminal|ZorveTui|zorvectl|ZorveApp/(Qt|AppKit))/" \
  'ZorveApp includes a layer above it'
for carpeta in Sources/ZorvePlatform Sources/ZorvePlatform/*/; do
  prohibe "$carpeta" "$incluye(ZorveTerminal|ZorveTui|zorvectl)/" "$carpeta includes a main's folder"
  prohibe "$carpeta" "${incluye}ZorveApp/" "$carpeta includes more of the application than its seams" "$costuras"
done
prohibe Sources/ZorveTerminal "$incluye(ZorveApp|ZorveTui|zorvectl)/" 'The helper includes the application'
prohibe Sources/ZorveX11 "$incluye(ZorveCore|ZorveApp|ZorvePlatform|ZorveTerminal|ZorveTui|zorvectl)/" \
  'ZorveX11 includes another layer'
for carpeta in Sources/ZorveCore/ Sources/ZorveCore/*/ Sources/ZorveApp Sources/ZorvePlatform/ Sources/ZorvePlatform/*/; do
  prohibe "$carpeta" "$incluye(ZorveX11)/" "$carpeta asks an X server"
done
# The face in terminals serves both systems; of the library of terminals one file knows.
prohibe Sources/ZorveTui "$incluye(ZorveX11|ZorveTerminal|zorvectl|ZorveApp/(Qt|AppKit)|ZorvePlatform/(Linux|MacOS))/" \
  'The face in terminals includes what is not its own'
prohibe Sources/ZorveTui "$sistemas" 'The face in terminals asks which system it is built for'
dice 'The library of terminals is for Consola.cpp alone' \
  "$(grep -lE '^#include <(curses|ncurses|term)\.h>' Sources/ZorveTui/* Sources/zorvectl/* | grep -v '/Consola.cpp$' || :)"
prohibe Sources/zorvectl "$incluye(ZorveX11|ZorveTerminal|ZorveApp/(Qt|AppKit))/" "zorvectl includes another main's folder"
for carpeta in Sources/ZorveApp/Qt Sources/ZorveApp/Qt/*/; do
  prohibe "$carpeta" "$incluye(ZorveTerminal|ZorveTui|zorvectl|ZorveApp/AppKit|ZorvePlatform/MacOS)/" \
    "$carpeta includes what is not its own"
done
prohibe Sources/ZorveApp/AppKit "$incluye(ZorveTerminal|ZorveTui|zorvectl|ZorveApp/Qt|ZorvePlatform/Linux)/" \
  'The AppKit front end includes what is not its own'

# Terminals are put together in one place: every main asks it and names none of the parts.
piezas='\b(terminalesDeLinux|anfitrionasDeLinux|fuentesDelSistema|ManejadorLinux|ManejadorMac|AplicacionesLinux|AplicacionesMac|todas)\('
for carpeta in Sources/ZorveApp/Qt Sources/ZorveApp/AppKit Sources/zorvectl; do
  prohibe "$carpeta" "$piezas" "$carpeta puts terminals together by itself"
  grep -qE '\bserviciosDeTerminal\(' "$carpeta"/* 2>/dev/null ||
    dice 'A main without serviciosDeTerminal' "$carpeta"
done
# A front end sees the panel and the settings, not the models behind them.
for carpeta in Sources/ZorveApp/Qt Sources/ZorveApp/Qt/*/ Sources/ZorveApp/AppKit Sources/ZorveTui; do
  prohibe "$carpeta" '\bModeloDe(Vista|Ajustes)\b' "$carpeta reaches for a model"
done

# A platform's file may implement a header of the folder above it: ServiciosDeTerminalLinux.cpp.
sin_cabecera() {
  local fuente base
  while IFS= read -r fuente; do
    base=${fuente%.*}
    [ -e "$base.h" ] && continue
    base=$(basename "$base")
    base=${base%Linux}
    base=${base%Mac}
    [ -e "Sources/ZorvePlatform/$base.h" ] || printf '%s\n' "$fuente"
  done < <(find Sources \( -name '*.cpp' -o -name '*.mm' \) ! -name 'main.*' ! -path 'Sources/zorvectl/Orden*')
}
dice 'Sources without a header of their name' "$(sin_cabecera)"

# circulos: headers that include each other, one edge a line for tsort, which names what goes round.
circulos() {
  local cabecera
  find Sources -name '*.h' | while IFS= read -r cabecera; do
    sed -nE "s,^[[:space:]]*#[[:space:]]*(include|import) \"(Zorve[^\"]*|zorvectl/[^\"]*)\".*,${cabecera#Sources/} \2,p" \
      "$cabecera"
  done | tsort 2>&1 >/dev/null | sed 's/^tsort: //' || :
}
dice 'Headers include each other in a circle' "$(circulos)"

# gemelos: NAMESPACE TYPE of every class, struct and enumeration that more than one header of the layers defines.
gemelos() {
  find Sources -name '*.h' -exec awk '
    FNR == 1 { espacio = ""; dentro = 0 }
    /^namespace [A-Za-z_:]+ \{/ { espacio = (espacio == "" ? "" : espacio "::") $2 }
    /^}  \/\/ namespace/ { sub(/(::)?[A-Za-z_]+$/, "", espacio) }
    /^(class|struct|enum class|enum) [A-Za-z_]+/ && !/;[[:space:]]*$/ {
      tipo = $0
      sub(/^(enum class|class|struct|enum) /, "", tipo)
      sub(/[^A-Za-z_0-9].*/, "", tipo)
      if (tipo != "Casos") print espacio, tipo
    }' {} + | sort | uniq -d
}
dice 'Two types share one name in one namespace' "$(gemelos)"
exit "$mal"
