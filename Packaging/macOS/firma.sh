#!/usr/bin/env bash
# firma.sh APP: signs the bundle for distribution, inside out, with the hardened runtime. Needs a Mac.
# ZORVE_IDENTIDAD: the signing identity ("Developer ID Application: …"); "-" signs ad hoc, for this Mac alone.
set -euo pipefail
aqui=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
app=${1:?usage: firma.sh APP}
identidad=${ZORVE_IDENTIDAD:?set ZORVE_IDENTIDAD to a signing identity, or to - for an ad hoc signature}

opciones=(--force --options runtime --sign "$identidad")
if [ "$identidad" = - ]; then opciones+=(--timestamp=none); else opciones+=(--timestamp); fi
permisos=(--entitlements "$aqui/Zorve.entitlements")
codesign "${opciones[@]}" "${permisos[@]}" --identifier com.sarnol.zorve.zorvectl "$app/Contents/MacOS/zorvectl"
codesign "${opciones[@]}" "${permisos[@]}" "$app"
codesign --verify --strict --deep --verbose=2 "$app"
