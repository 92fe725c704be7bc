#!/usr/bin/env bash
# notariza.sh FILE: sends a signed disk image to be notarised, waits, and staples the ticket. Needs a Mac.
# ZORVE_PERFIL: a profile that "xcrun notarytool store-credentials" saved in the keychain.
set -euo pipefail
archivo=${1:?usage: notariza.sh FILE}
perfil=${ZORVE_PERFIL:?set ZORVE_PERFIL to a profile saved by: xcrun notarytool store-credentials}

xcrun notarytool submit "$archivo" --keychain-profile "$perfil" --wait
xcrun stapler staple "$archivo"
xcrun stapler validate "$archivo"
spctl --assess --type open --context context:primary-signature --verbose "$archivo"
