#!/usr/bin/env bash
# Checks that the arrows between the layers run one way and that the portable folders ask for no system.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mal=0
# prohibe FOLDER PATTERN WHY: no file of the folder may have a line that matches.
prohibe() {
  local hallados
  hallados=$(grep -nE --directories=skip --include='*.h' --include='*.cpp' -- "$2" "${1%/}"/* || test $? -eq 1)
  [ -n "$hallados" ] || return 0
  printf '%s:\n%s\n' "$3" "$hallados" >&2
  mal=1
}

sistemas='^[[:space:]]*#[[:space:]]*(if|ifdef|ifndef|elif).*(__APPLE__|__linux__|__unix__|_WIN32|__FreeBSD__|TARGET_OS_)'
toolkits='^[[:space:]]*#[[:space:]]*(include|import)[[:space:]]*<(Q[A-Z]|Qt|AppKit|Foundation|Cocoa|X11|xcb|dbus|gio|glib)'
posix='^[[:space:]]*#[[:space:]]*include[[:space:]]*<(unistd|fcntl|spawn|dirent|signal|pwd|sys/.*)\.h>'

for carpeta in Sources/ZorveCore Sources/ZorveApp; do
  prohibe "$carpeta" "$sistemas" "$carpeta asks which system it is built for"
  prohibe "$carpeta" "$toolkits" "$carpeta includes a toolkit"
  prohibe "$carpeta" "$posix" "$carpeta calls the system without a seam"
done
prohibe Sources/ZorveCore '#include "(ZorveApp|ZorvePlatform|ZorveTerminal|zorvectl)/' 'ZorveCore includes a layer above it'
prohibe Sources/ZorveApp '#include "(ZorvePlatform|ZorveTerminal|zorvectl)/' 'ZorveApp includes a layer above it'
for carpeta in Sources/ZorvePlatform/*/; do
  prohibe "$carpeta" '#include "(ZorveTerminal|zorvectl)/' "$carpeta includes a main's folder"
done
exit "$mal"
