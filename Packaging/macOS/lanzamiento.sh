#!/usr/bin/env bash
# lanzamiento.sh IMAGE SOURCES BASE: the release file, on standard output: version, addresses and checksums of the
# disk image and the source archive, both to be found below the address BASE. homebrew.sh reads it.
set -euo pipefail
imagen=${1:?usage: lanzamiento.sh IMAGE SOURCES BASE}
fuentes=${2:?usage: lanzamiento.sh IMAGE SOURCES BASE}
base=${3:?usage: lanzamiento.sh IMAGE SOURCES BASE}
raiz=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

suma() { python3 -c 'import hashlib, sys; print(hashlib.sha256(open(sys.argv[1], "rb").read()).hexdigest())' "$1"; }
cat <<FIN
VERSION=$(sed -nE 's/^project\(Zorve VERSION ([0-9.]+) .*/\1/p' "$raiz/CMakeLists.txt")
SITIO=${base%/}
IMAGEN=${base%/}/${imagen##*/}
SUMA_DE_IMAGEN=$(suma "$imagen")
FUENTES=${base%/}/${fuentes##*/}
SUMA_DE_FUENTES=$(suma "$fuentes")
FIN
