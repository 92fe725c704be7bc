#!/usr/bin/env bash
# Runs a program on an X server and a session bus of its own: en-un-escritorio.sh PROGRAM [ARGUMENTS...]
set -euo pipefail
ZORVE_BIN=$(dirname "$(realpath "$1")")
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/../Tests/Escritorio/comun.sh"
servidor
bus
"$@"
