#!/usr/bin/env bash
# objc.sh [FILE...]: every Objective-C++ source through clang's syntax, ARC and nullability checks, warnings as
# errors, on Linux. The toolkit's headers are GNUstep's; what they lack, Scripts/darwin/gnustep declares. A
# misspelt selector, a wrong argument type, a retain cycle that clang sees: these fail. Nothing is built; the
# tests over the toolkit and the toolkit itself are built, by frente.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh

clang="clang++-19"
gnustep=/usr/include/GNUstep
objc=$(gcc-12 -print-file-name=include 2>/dev/null || gcc -print-file-name=include)
falta=()
command -v "$clang" >/dev/null 2>&1 || falta+=("$clang")
[ -d "$gnustep/AppKit" ] || falta+=("$gnustep/AppKit")
[ -f "$objc/objc/objc.h" ] || falta+=(objc/objc.h)
[ ${#falta[@]} -eq 0 ] || falla "the check of the Objective-C++ sources needs what is not here: ${falta[*]}"

opciones=(-std=c++23 -x objective-c++ -fsyntax-only -fobjc-arc -fblocks -fobjc-runtime=gnustep-2.0
  -DNS_BLOCK_ASSERTIONS -I Scripts/darwin/gnustep -I Sources -I Tests -isystem "$gnustep" -idirafter "$objc"
  -include Scripts/darwin/gnustep/DeApple.h
  -Wall -Wextra -Wno-missing-field-initializers -Wpedantic -Wshadow -Wconversion -Wsign-conversion
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2 -Wundef -Werror
  -Warc-repeated-use-of-weak -Warc-maybe-repeated-use-of-weak -Wimplicit-retain-self -Wstrict-selector-match
  -Wnullable-to-nonnull-conversion -Wnullability-completeness -Wundeclared-selector -Wselector)

archivos=("$@")
[ ${#archivos[@]} -gt 0 ] || mapfile -t archivos < <(git ls-files -co --exclude-standard -- '*.mm' \
  ':!Tests/MacOS/Tramoya' ':!Tests/MacOS/Frente')
printf '%s\0' "${archivos[@]}" | xargs -0 -P "$(trabajos)" -I{} "$clang" "${opciones[@]}" {}
nota "${#archivos[@]} Objective-C++ sources checked"
