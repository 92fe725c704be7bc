# shellcheck shell=bash
# What run, test, bench and the scripts share. Sourced with the repository's root as working directory.

if [ -t 2 ] && [ -z "${NO_COLOR:-}" ]; then
  _tenue=$'\e[2m' _fuerte=$'\e[1m' _mal=$'\e[31m' _fin=$'\e[0m'
else
  _tenue='' _fuerte='' _mal='' _fin=''
fi

paso() { printf '%s==>%s %s%s%s\n' "$_tenue" "$_fin" "$_fuerte" "$*" "$_fin" >&2; }
nota() { printf '    %s\n' "$*" >&2; }
falla() { printf '%serror:%s %s\n' "$_mal" "$_fin" "$*" >&2; exit 1; }

trabajos() { nproc 2>/dev/null || getconf _NPROCESSORS_ONLN 2>/dev/null || echo 2; }

# callado LOG COMMAND...: runs it with its output in LOG; on failure shows the end of LOG and ends.
callado() {
  local registro=$1
  shift
  mkdir -p "$(dirname "$registro")"
  if ! "$@" >"$registro" 2>&1; then
    tail -n 40 "$registro" >&2
    falla "'$*' failed; its whole output is in $registro"
  fi
}

# paquetes GROUP...: the packages that the groups have in this release, one a line.
paquetes() {
  local grupo edicion
  # shellcheck disable=SC1091
  edicion=$(. /etc/os-release 2>/dev/null && echo "${VERSION_CODENAME-}") || :
  for grupo in "$@"; do
    awk -v g="$grupo" -v e="$edicion" '$1 == g && ($3 == "" || index("," $3 ",", "," e ",")) { print $2 }' \
      Scripts/paquetes.txt
  done | sort -u
}

# instala GROUP...: installs what is missing of the groups; quick when nothing is.
instala() {
  command -v apt-get >/dev/null 2>&1 || { sin_apt; return; }
  local falta=() todos estado
  mapfile -t todos < <(paquetes "$@")
  # dpkg-query fails when it knows nothing of one of them; what it prints still holds.
  estado=$({ dpkg-query -W -f='${db:Status-Abbrev} ${Package}\n' "${todos[@]}" 2>/dev/null || :; } |
    awk '$1 ~ /^.i/ { print $2 }')
  local p
  for p in "${todos[@]}"; do grep -qx -- "$p" <<<"$estado" || falta+=("$p"); done
  [ ${#falta[@]} -eq 0 ] && return 0
  paso "installing ${#falta[@]} packages: ${falta[*]}"
  local como=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null 2>&1 ||
      falla "these packages are missing and neither root nor sudo is at hand; have them installed: ${falta[*]}"
    como=(sudo)
  fi
  nota "apt-get's output goes to build/apt.log"
  callado build/apt.log "${como[@]}" apt-get -q update
  callado build/apt.log "${como[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -q install -y --no-install-recommends "${falta[@]}"
}

sin_apt() {
  local programa
  for programa in cmake ninja; do
    command -v "$programa" >/dev/null 2>&1 ||
      falla "'$programa' is missing and there is no apt-get here; README.md lists the packages by system"
  done
}

# compila PRESET [TARGET...]: configures once, then builds.
compila() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || {
    paso "configuring build/$preset"
    callado "build/$preset.configure.log" cmake --preset "$preset"
  }
  local estado=0 salida
  salida="build/$preset.build.log"
  if [ -t 2 ]; then
    cmake --build "build/$preset" --parallel "$(trabajos)" ${1:+--target "$@"} | tee "$salida" | muestra_avance || estado=$?
  else
    cmake --build "build/$preset" --parallel "$(trabajos)" ${1:+--target "$@"} >"$salida" 2>&1 || estado=$?
  fi
  [ "$estado" -eq 0 ] || { grep -vE '^\[[0-9]+/[0-9]+\]' "$salida" | tail -n 60 >&2; falla "the build failed; its whole output is in $salida"; }
}

# Ninja's own lines, one over the other.
muestra_avance() {
  local linea
  while IFS= read -r linea; do
    [[ $linea == \[* ]] && printf '\r\e[K    %s' "${linea:0:$(($(tput cols 2>/dev/null || echo 80) - 5))}" >&2
  done
  printf '\r\e[K' >&2
}

# con_frente PRESET: the front end is part of the build, though its packages may have come after the first one.
con_frente() {
  ! grep -qs '^ZORVE_FRONT_END:BOOL=OFF' "build/$1/CMakeCache.txt" ||
    callado "build/$1.configure.log" cmake --preset "$1" -DZORVE_FRONT_END=ON
}
