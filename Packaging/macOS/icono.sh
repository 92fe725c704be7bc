#!/usr/bin/env bash
# icono.sh OUT: the application's icon set from Packaging/zorve.svg, every size drawn anew. Zorve.icns beside
# this script is its output; run it again after the drawing changes. OUT.sha256 says which drawing it was.
# Needs rsvg-convert and python3.
set -euo pipefail
salida=$(realpath -m "${1:?usage: icono.sh OUT}")
cd "$(dirname "${BASH_SOURCE[0]}")"

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
for lado in 16 32 64 128 256 512 1024; do
  rsvg-convert --width "$lado" --height "$lado" ../zorve.svg --output "$tmp/$lado.png"
done
python3 - "$tmp" "$salida" <<'PY'
import pathlib, struct, sys

# The container's types by side in pixels: 16, 32, 128, 256, 512 points at scales 1 and 2.
TYPES = [(b"icp4", 16), (b"icp5", 32), (b"ic07", 128), (b"ic08", 256), (b"ic09", 512),
         (b"ic11", 32), (b"ic12", 64), (b"ic13", 256), (b"ic14", 512), (b"ic10", 1024)]
folder, out = map(pathlib.Path, sys.argv[1:])
entries = b""
for kind, side in TYPES:
    png = (folder / f"{side}.png").read_bytes()
    entries += kind + struct.pack(">I", len(png) + 8) + png
out.write_bytes(b"icns" + struct.pack(">I", len(entries) + 8) + entries)
PY
sha256sum ../zorve.svg | sed 's|\.\./||' >"$salida.sha256"
