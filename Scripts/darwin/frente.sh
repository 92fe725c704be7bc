#!/usr/bin/env bash
# frente.sh [TEST ARGUMENT...]: the Objective-C++ sources run on Linux over the toolkit of Tests/MacOS/Tramoya, under
# the address and undefined-behaviour sanitizers, with leaks found; then their lines' coverage, of which at least
# the share below must have run. What it needs is in the group "darwin" of Scripts/paquetes.txt, and the runtime's
# source archive; without that it says so and leaves the tests out.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh
. Scripts/darwin/fuente.sh

minimo=90
llvm=-19
base=$PWD/build/frente

faltan() {
  local falta=() programa
  for programa in "clang++$llvm" "llvm-profdata$llvm" "llvm-cov$llvm" cmake ninja; do
    command -v "$programa" >/dev/null 2>&1 || falta+=("$programa")
  done
  [ -d /usr/include/GNUstep/AppKit ] || falta+=(/usr/include/GNUstep/AppKit)
  [ -d /usr/include/tsl ] || falta+=(/usr/include/tsl)
  [ ${#falta[@]} -eq 0 ] || falla "the run of the Objective-C++ sources needs what is not here: ${falta[*]}"
}

# The runtime: classes, messages, automatic counting, blocks.
runtime() {
  local archivo
  [ -e "$base/libobjc2/libobjc.so" ] && return 0
  archivo=$(fuente libobjc2-2.2.1.tar.gz 0faa085ebd8e4fb3434c735137521a39f98de9daa9feea54c741b8b9aceca1b2 \
    https://github.com/gnustep/libobjc2/archive/refs/tags/v2.2.1.tar.gz) || return 1
  mkdir -p "$base"
  tar -xzf "$archivo" -C "$base"
  callado "$base.libobjc2.log" cmake -S "$base/libobjc2-2.2.1" -B "$base/libobjc2" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DTESTS=OFF "${compiladores[@]}"
  callado "$base.libobjc2.log" cmake --build "$base/libobjc2" --parallel "$(trabajos)"
}

construye() {
  local cabeceras
  cabeceras=$(gcc-12 -print-file-name=include 2>/dev/null || gcc -print-file-name=include)
  [ -f "$base/build.ninja" ] || callado "$base.configure.log" cmake -S Scripts/darwin/frente -B "$base" \
    -G Ninja "${compiladores[@]}" -DZORVE_OBJC="$base/libobjc2" -DZORVE_OBJC_CABECERAS="$cabeceras"
  callado "$base.build.log" cmake --build "$base" --parallel "$(trabajos)"
}

# A freed object's memory is overwritten, so that a message to it ends the program.
corre() {
  ASAN_OPTIONS=detect_leaks=1:max_free_fill_size=65536:free_fill_byte=93 LLVM_PROFILE_FILE="$base/lineas.profraw" \
    "$base/PruebasDelFrente" --gtest_brief=1 "$@" >"$base.log" 2>&1 ||
    { tail -n 60 "$base.log" >&2; falla "the front end's tests failed; their whole output is in $base.log"; }
  nota "the Objective-C++ sources: $(sed -nE 's/^\[==========\] ([0-9]+) tests.* ran.*/\1 tests passed/p' "$base.log")"
}

cobertura() {
  local entera
  "llvm-profdata$llvm" merge -sparse "$base/lineas.profraw" -o "$base/lineas.profdata"
  "llvm-cov$llvm" report "$base/PruebasDelFrente" -instr-profile="$base/lineas.profdata" \
    -ignore-filename-regex='/Tests/|/usr/|\.h$|\.cpp$' >"$base.cobertura"
  entera=$(awk '$1 == "TOTAL" { print $10 }' "$base.cobertura")
  nota "lines of the Objective-C++ sources that ran: $entera (by file in $base.cobertura)"
  [ "${entera%%.*}" -ge "$minimo" ] || falla "fewer than $minimo % of the Objective-C++ sources' lines ran"
}

faltan
compiladores=(-DCMAKE_C_COMPILER="$(command -v clang$llvm)" -DCMAKE_CXX_COMPILER="$(command -v clang++$llvm)"
  -DCMAKE_OBJC_COMPILER="$(command -v clang$llvm)" -DCMAKE_OBJCXX_COMPILER="$(command -v clang++$llvm)")
runtime || { nota "left out: the run of the Objective-C++ sources (no runtime to run them on)"; exit 0; }
construye
corre "$@"
[ $# -gt 0 ] || cobertura
