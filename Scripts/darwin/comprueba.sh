#!/usr/bin/env bash
# comprueba.sh [si]: the portable sources compiled and linked for macOS 13, arm64 and x86_64, on Linux; with "si"
# the whole test suite is compiled and linked too. Nothing runs. What it needs is in the group "darwin" of
# Scripts/paquetes.txt, and npm; build/darwin holds the rest and may be deleted.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh

llvm=-16
base=$PWD/build/darwin

faltan() {
  local falta=() programa
  for programa in "clang++$llvm" "ld64.lld$llvm" "llvm-ar$llvm" "llvm-objdump$llvm" "llvm-lipo$llvm" apt-get npm ninja; do
    command -v "$programa" >/dev/null 2>&1 || falta+=("$programa")
  done
  [ -d /usr/src/googletest ] || falta+=(/usr/src/googletest)
  [ ${#falta[@]} -eq 0 ] || falla "the check for macOS needs what is not here: ${falta[*]}"
}

# mira ARCH PROGRAM: what the system's loader looks at.
mira() {
  local cabeceras cpu=X86_64 ajenas
  cabeceras=$("llvm-objdump$llvm" --macho --private-headers "$2")
  [ "$1" = x86_64 ] || cpu=ARM64
  grep -qE "MH_MAGIC_64 +$cpu " <<<"$cabeceras" || falla "$2 is not for $cpu"
  grep -qE '^ +minos 13\.0$' <<<"$cabeceras" || falla "$2 asks for another system than macOS 13.0"
  grep -q LC_MAIN <<<"$cabeceras" || falla "$2 has no entry"
  grep -q LC_CODE_SIGNATURE <<<"$cabeceras" || falla "$2 is not signed"
  ajenas=$("llvm-objdump$llvm" --macho --dylibs-used "$2" | awk 'NR > 1 && $1 !~ "^/usr/lib/" { print $1 }')
  [ -z "$ajenas" ] || falla "$2 needs a library that macOS does not have: $ajenas"
}

# construye ARCH TARGET...
construye() {
  local arch=$1 carpeta=$base/$1
  shift
  export ZORVE_DARWIN_ARCH=$arch
  [ -f "$carpeta/build.ninja" ] || callado "$carpeta.configure.log" cmake -S . -B "$carpeta" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/Scripts/darwin/darwin.cmake" -DCMAKE_BUILD_TYPE=None \
    -DZORVE_SOLO_PORTABLE=ON -DZORVE_TESTS=ON -DZORVE_PCH=ON -DZORVE_FUENTES="$base/fuentes" \
    -DRAPIDJSON_INCLUDE="$base/fuentes/include" -DCLI11_INCLUDE="$base/fuentes/include" \
    -DGTest_DIR="$PWD/Scripts/darwin/gtest"
  cmake --build "$carpeta" --parallel "$(trabajos)" --target "$@" -- -k 0 >"$carpeta.build.log" 2>&1 ||
    { grep -E 'error|undefined symbol|referenced by' -A5 "$carpeta.build.log" | head -n 60 >&2
      falla "the build for $arch failed; its whole output is in $carpeta.build.log"; }
}

faltan
mkdir -p "$base"
[ -f "$base/sdk/SDKSettings.json" ] || Scripts/darwin/sdk.sh "$base/sdk"
[ -d "$base/fuentes/include/CLI" ] || Scripts/darwin/fuentes.sh "$base/fuentes"
export ZORVE_DARWIN_SDK=$base/sdk ZORVE_DARWIN_LLVM=$llvm

for arch in arm64 x86_64; do
  construye "$arch" zorve-enlace zorvectl
  mira "$arch" "$base/$arch/bin/zorve-enlace"
  mira "$arch" "$base/$arch/bin/zorvectl"
  nota "$arch: compiled and linked"
done
if [ "${1-no}" = si ]; then
  construye arm64 PruebasSaneadas
  for programa in "$base"/arm64/bin/Pruebas*; do mira arm64 "$programa"; done
  nota "arm64: the tests compiled and linked"
fi
"llvm-lipo$llvm" -create "$base"/{arm64,x86_64}/bin/zorvectl -output "$base/zorvectl"
[ "$("llvm-lipo$llvm" -archs "$base/zorvectl" | xargs -n 1 | sort | xargs)" = "arm64 x86_64" ] ||
  falla "the two programs do not join into one"
