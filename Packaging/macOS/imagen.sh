#!/usr/bin/env bash
# imagen.sh APP OUT.dmg: a disk image with the bundle and a link to the applications folder, signed. Needs a Mac.
# ZORVE_IDENTIDAD as for firma.sh.
set -euo pipefail
app=${1:?usage: imagen.sh APP OUT.dmg}
salida=${2:?usage: imagen.sh APP OUT.dmg}
identidad=${ZORVE_IDENTIDAD:?set ZORVE_IDENTIDAD to a signing identity, or to - for an ad hoc signature}

carpeta=$(mktemp -d)
trap 'rm -rf "$carpeta"' EXIT
ditto "$app" "$carpeta/Zorve.app"
ln -s /Applications "$carpeta/Applications"
# hdiutil finds its volume busy now and then, while the system looks through it.
for intento in 1 2 3 4; do
  hdiutil create -volname Zorve -srcfolder "$carpeta" -fs HFS+ -format UDZO -ov "$salida" && break
  [ "$intento" -lt 4 ] || { echo "imagen.sh: hdiutil failed $intento times; is $salida or a volume Zorve in use?" >&2; exit 1; }
  sleep $((intento * 5))
done
codesign --force --sign "$identidad" "$salida"
hdiutil verify "$salida"
