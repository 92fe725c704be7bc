#!/usr/bin/env bash
# paquete.sh: the macOS bundle's files, checked without a Mac: property lists, texts, icon set, and the cask and
# formula as a release would fill them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh

for programa in python3 rsvg-convert; do
  command -v "$programa" >/dev/null 2>&1 || falla "the check of the macOS bundle needs what is not here: $programa"
done
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

Packaging/macOS/icono.sh "$tmp/Zorve.icns"
printf 'image' >"$tmp/Zorve-0.1.0.dmg"
printf 'sources' >"$tmp/zorve-0.1.0.tar.gz"
Packaging/macOS/lanzamiento.sh "$tmp/Zorve-0.1.0.dmg" "$tmp/zorve-0.1.0.tar.gz" https://example.org/zorve/ \
  >"$tmp/lanzamiento"
Packaging/macOS/homebrew.sh "$tmp/lanzamiento" "$tmp/tap"
grep -v '^IMAGEN=' "$tmp/lanzamiento" >"$tmp/incompleto"
if Packaging/macOS/homebrew.sh "$tmp/incompleto" "$tmp/otro" 2>/dev/null; then
  falla "a release file without the disk image's address was taken"
fi
python3 Scripts/darwin/paquete.py "$tmp"
