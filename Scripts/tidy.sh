#!/usr/bin/env bash
# tidy.sh [si]: clang-tidy over the sources (and, with "si", the tests, benchmarks and fuzzers). Needs build/dev.
# A file that passed is looked at again only when it, a header or the rules changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sellos=build/tidy
mkdir -p "$sellos"

if [ "${1-}" = --uno ]; then
  sello="$sellos/$2.$(sha256sum <"$3" | cut -c1-32)"
  [ ! -e "$sello" ] || exit 0
  clang-tidy-19 --quiet --extra-arg=-Wno-unknown-warning-option -p build/dev "$3" 2> >(grep -vE 'warnings? generated\.$' >&2)
  touch "$sello"
  exit
fi

carpetas=(Sources)
[ "${1-no}" = no ] || carpetas+=(Tests Benchmarks Fuzz)
comun=$({
  cat .clang-tidy
  git ls-files -z -- '*.h' | xargs -0 cat
} | sha256sum | cut -c1-16)
compilados=$(grep -oE '"file": "[^"]+"' build/dev/compile_commands.json | cut -d'"' -f4)
archivos=()
while IFS= read -r archivo; do
  grep -qxF "$PWD/$archivo" <<<"$compilados" && archivos+=("$archivo")
done < <(git ls-files -- "${carpetas[@]/%//*.cpp}")
printf '%s\0' "${archivos[@]}" | xargs -0 -P "$(nproc)" -n 1 "${BASH_SOURCE[0]}" --uno "$comun"
