#!/usr/bin/env bash
# mutantes.sh [HOW-MANY [SEED]]: changes one place of the core at a time in a copy, builds its tests and runs them. A
# change that no test notices is printed as it was written; the last line counts. The same seed gives the same changes.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. Scripts/comun.sh

cuantos=${1:-20}
semilla=${2:-1}
copia=build/mutantes
mkdir -p "$copia"
git ls-files -z --cached --others --exclude-standard | tar -c --null -T - | tar -x -C "$copia"

# Each is a sed expression for one line. Those that change nothing there are passed over.
cambios=('s/ == / != /' 's/ != / == /' 's/ < / <= /' 's/ > / >= /' 's/ <= / < /' 's/ >= / > /' 's/ && / || /' 's/ || / \&\& /'
  's/ + 1\b/ + 2/' 's/ - 1\b/ - 0/' 's/\btrue\b/false/' 's/\bfalse\b/true/' 's/if (!/if (/' 's/if (\([a-z]\)/if (!\1/'
  's/++\([a-z]\)/--\1/' 's/std::min/std::max/' 's/std::max/std::min/' 's/\breturn {};/std::abort();/' 's/ += / = /')

# candidatos: FILE:LINE:CHANGE, one a line, of all places that some change changes.
candidatos() {
  local archivo n
  while IFS= read -r archivo; do
    for n in "${!cambios[@]}"; do
      sed -E '/^[[:space:]]*(\/\/|#|static_assert|template)/s/.*//' "$archivo" |
        awk -v archivo="$archivo" -v n="$n" '{ print archivo ":" NR ":" n ":" $0 }' |
        sed -n -e 'h; s/^[^:]*:[^:]*:[^:]*://; t sin' -e ':sin' -e "${cambios[n]}" -e 't hay' -e b -e ':hay' \
          -e 'g; s/^\([^:]*:[^:]*:[^:]*\):.*/\1/p'
    done
  done < <(git ls-files 'Sources/ZorveCore/*.cpp')
}

# prueba: builds and runs the core's tests in the copy; fails when they notice.
prueba() {
  ninja -C "$copia/build/dev" PruebasDelNucleo >"$copia/registro" 2>&1 || return 1
  timeout 120 "$copia/build/dev/bin/PruebasDelNucleo" --gtest_filter='-*Largo*' --gtest_brief=1 >>"$copia/registro" 2>&1
}

cmake -S "$copia" -B "$copia/build/dev" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DZORVE_FRONT_END=OFF >"$copia/registro"
prueba || falla "the core's tests do not pass as they are; see $copia/registro"

vivos=0
hechos=0
while IFS=: read -r archivo linea cambio; do
  sed -i "${linea}${cambios[cambio]}" "$copia/$archivo"
  if prueba; then
    vivos=$((vivos + 1))
    printf '%s:%s  %s\n  %s\n' "$archivo" "$linea" "${cambios[cambio]}" "$(sed -n "${linea}p" "$copia/$archivo")"
  fi
  cp "$archivo" "$copia/$archivo"
  hechos=$((hechos + 1))
done < <(candidatos | shuf -n "$cuantos" --random-source=<(yes "$semilla"))
echo "$hechos changes, $vivos not noticed"
