#!/usr/bin/env bash
# iconos.sh: the window's icon in every size from Packaging/zorve.svg, drawn anew. The folder iconos beside this script
# is its output; run it again after the drawing changes. Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
for lado in 16 22 24 32 48 64 128 256; do
  rsvg-convert --width "$lado" --height "$lado" ../zorve.svg --output "iconos/zorve-$lado.png"
done
(cd .. && sha256sum zorve.svg) >iconos/sha256
