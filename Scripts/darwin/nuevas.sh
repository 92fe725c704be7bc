#!/usr/bin/env bash
# nuevas.sh: the core and zorvectl built over the libraries' current releases, which Homebrew and rolling distributions
# have, and their tests run. It needs an archive of each release's own files (CLI11's include, simdjson's include and
# src) in the folder that ZORVE_FUENTES names; without one it says so and leaves it out.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh
. Scripts/darwin/fuente.sh

base=$PWD/build/nuevas

# extrae ARCHIVE: below the build folder, once.
extrae() {
  local nombre
  nombre=$(basename "$1" | sed -E 's/-(include|sources)\.tar\.gz$//')
  [ -d "$base/fuentes/$nombre" ] || { mkdir -p "$base/fuentes"; tar -xzf "$1" -C "$base/fuentes"; }
  printf '%s\n' "$base/fuentes/$nombre"
}

# What find_package(simdjson) looks for, over the release's two files.
paquete_de_simdjson() {
  mkdir -p "$base/simdjson"
  cat >"$base/simdjson/simdjsonConfig.cmake" <<FIN
add_library(simdjson_de_ahora STATIC "$1/src/simdjson.cpp")
target_include_directories(simdjson_de_ahora SYSTEM PUBLIC "$1/include" PRIVATE "$1/src")
add_library(simdjson::simdjson ALIAS simdjson_de_ahora)
FIN
}

construye() {
  [ -f "$base/build.ninja" ] || callado "$base.configure.log" cmake -S . -B "$base" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_CXX_COMPILER=clang++-19 -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DZORVE_PCH=ON -DZORVE_FRONT_END=OFF \
    -DCLI11_INCLUDE="$cli11/include" -Dsimdjson_DIR="$base/simdjson"
  callado "$base.build.log" cmake --build "$base" --parallel "$(trabajos)" --target PruebasDelNucleo PruebasDeZorvectl
}

# The plain build measures memory; this one is unoptimised and has the parser inside.
corre() {
  callado "$base.$1.log" "$base/bin/$1" --gtest_brief=1 --gtest_filter='-*Largo*:*.largo*:*/largo*:*Memoria*'
  nota "$1 over the current libraries: $(sed -nE 's/^\[==========\] ([0-9]+) tests.* ran.*/\1 tests passed/p' \
    "$base.$1.log")"
}

sin_fuentes() {
  nota "left out: the core and zorvectl over the current libraries (no sources of them)"
  exit 0
}

cli11=$(fuente CLI11-2.7.2-include.tar.gz 0c54813356428b39327a59f5208e221536395640ddbb58bd67c6d398e2993bcb) ||
  sin_fuentes
simdjson=$(fuente simdjson-4.6.7-sources.tar.gz 8741dd8a7b30688431fb2872176fd0511f0e3455c3653c0941b366c9c4084059) ||
  sin_fuentes
cli11=$(extrae "$cli11")
simdjson=$(extrae "$simdjson")
paquete_de_simdjson "$simdjson"
construye
corre PruebasDelNucleo
corre PruebasDeZorvectl
