#!/usr/bin/env bash
# tidy.sh [si]: clang-tidy over the portable layers; with "si" also its analyzer, and every other source, the tests,
# benchmarks and fuzzers too.
# Needs build/dev. The analyzer takes as long as all the rest together, and leaks through Qt's own code are its
# invention: .clang-tidy leaves that one check out.
# A file that passed is looked at again only when it, a header or the rules changed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

sellos=build/tidy
mkdir -p "$sellos"

if [ "${1-}" = --uno ]; then
  sello="$sellos/$2.$4.$(sha256sum <"$3" | cut -c1-32)"
  reglas=()
  [ "$4" = si ] || reglas=(--checks='-clang-analyzer-*')
  [ ! -e "$sello" ] || exit 0
  clang-tidy-19 "${reglas[@]}" --quiet --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-deprecated-declarations -p build/dev "$3" 2> >(grep -vE 'warnings? generated\.$' >&2)
  touch "$sello"
  exit
fi

carpetas=(Sources/ZorveCore Sources/ZorveApp)
todo=${1-no}
[ "$todo" = no ] || carpetas=(Sources Tests Benchmarks Fuzz)
comun=$({
  cat .clang-tidy
  git ls-files -z -- '*.h' | xargs -0 cat
} | sha256sum | cut -c1-16)
compilados=$(grep -oE '"file": "[^"]+"' build/dev/compile_commands.json | cut -d'"' -f4)
archivos=()
while IFS= read -r archivo; do
  grep -qxF "$PWD/$archivo" <<<"$compilados" && archivos+=("$archivo")
done < <(git ls-files -- "${carpetas[@]/%//*.cpp}" | if [ "$todo" = no ]; then grep -v /Qt/; else cat; fi)
printf '%s\0' "${archivos[@]}" | xargs -0 -P "$(nproc)" -I{} "${BASH_SOURCE[0]}" --uno "$comun" {} "$todo"
