#!/usr/bin/env bash
# Checks the QML files with qmllint, over the types that the build writes down, and that every text in them is plain.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. Scripts/comun.sh

vistas=Sources/ZorveApp/Qt/qml
if sueltos=$(grep -nE '^[^/]*\b(Text|TextEdit) \{' "$vistas"/*.qml | grep -v "^$vistas/Letrero.qml:"); then
  printf 'a text that is no Letrero:\n%s\n' "$sueltos" >&2
  exit 1
fi

con_frente dev
compila dev qml/Zorve/Tipos/ZorveQt.qmltypes qml/Zorve/Vistas/ZorveVistas.qmltypes
carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
cp -r build/dev/qml/Zorve "$carpeta"
cp "$vistas"/*.qml "$carpeta/Zorve/Vistas"
if ! "$(qtpaths6 --query QT_HOST_BINS)/qmllint" -I "$carpeta" "$carpeta"/Zorve/Vistas/*.qml >"$carpeta/dicho" 2>&1 ||
  grep -qE '^(Warning|Error)' "$carpeta/dicho"; then
  sed "s|$carpeta/Zorve/Vistas|$vistas|" "$carpeta/dicho" >&2
  exit 1
fi
