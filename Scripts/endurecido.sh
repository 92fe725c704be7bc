#!/usr/bin/env bash
# endurecido.sh PROGRAM...: whether each was hardened when it was built (Scripts/cmake/Endurecido.cmake).
set -euo pipefail

mal=0
# exige WHAT PATTERN TEXT: TEXT has a line that matches.
exige() {
  grep -qE -- "$2" <<<"$3" && return
  echo "$programa: no $1" >&2
  mal=1
}

for programa in "$@"; do
  cabecera=$(readelf --wide --file-header "$programa")
  dinamica=$(readelf --wide --dynamic "$programa")
  segmentos=$(readelf --wide --program-headers "$programa")
  simbolos=$(readelf --wide --dyn-syms "$programa")
  exige "position-independent code" 'Type: +DYN' "$cabecera"
  exige "PIE mark" 'FLAGS_1.*PIE' "$dinamica"
  exige "immediate binding" '(BIND_NOW|FLAGS_1.*NOW)' "$dinamica"
  exige "sealed relocations (RELRO)" 'GNU_RELRO' "$segmentos"
  exige "guard on the stack" '__stack_chk_fail' "$simbolos"
  # The helper copies nothing of a size that the compiler does not know.
  [ "${programa##*/}" = zorve-terminal ] ||
    exige "checked copies (fortify)" '__[a-z]+_chk@' "$(grep -v __stack_chk_fail <<<"$simbolos")"
  ! grep -qE 'GNU_STACK.* RWE' <<<"$segmentos" || { echo "$programa: its stack is executable" >&2; mal=1; }
  # The mark of the whole program needs a C library that was built so too; the code has its landing places anyway.
  lugares=$(objdump --disassemble --no-show-raw-insn "$programa" | grep -cE '[[:space:]](endbr64|bti|paciasp)' || :)
  [ "$lugares" -gt 20 ] || { echo "$programa: no checked jumps ($lugares places)" >&2; mal=1; }
done
exit "$mal"
