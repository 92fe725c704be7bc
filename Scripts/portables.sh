#!/usr/bin/env bash
# Checks that the portable tests, which macOS runs too, hold no word of what only Linux has: those belong into a folder
# Linux/, or wait for the system at run time (a line that names __APPLE__ just above says so).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Files and programs of Linux alone, its settings, and the programs that only it is built with.
palabras='/proc/|/usr/bin/setsid|/bin/(true|false)"|/usr/bin/strace"|--ignore-signal|preferences\.json|kdeglobals|XDG_[A-Z]'
palabras+='|/dev/(shm|pts)/[a-z]|RLIMIT_AS|memfd|"ZorvePlatform/Linux/'
hallados=$(grep -nE -- "$palabras" Tests/ZorveCore/*.cpp Tests/ZorveCore/*/*.cpp Tests/Contratos/*.cpp \
  Tests/ZorvePlatform/*.cpp Tests/ZorveApp/*.cpp Tests/zorvectl/*.cpp || :)
hallados+=$(grep -nE -- '/zorve-terminal' Tests/zorvectl/*.cpp || :)
# A name of UTF-8 in a locale is spelled otherwise there.
hallados+=$(awk '/__APPLE__/ { cerca = FNR } /"C\.UTF-8"/ && FNR - cerca > 4 { print FILENAME ":" FNR ":" $0 }' \
  Tests/ZorveCore/*.cpp Tests/ZorveCore/*/*.cpp Tests/Contratos/*.cpp Tests/ZorvePlatform/*.cpp Tests/ZorveApp/*.cpp \
  Tests/zorvectl/*.cpp)
[ -z "$hallados" ] || {
  printf 'Only Linux has what these portable tests ask for; they belong into a folder Linux/:\n%s\n' "$hallados" >&2
  exit 1
}
