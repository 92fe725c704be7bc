#!/usr/bin/env bash
# notariza.sh APP|IMAGE: sends a signed application or disk image to be notarised, waits, and staples the ticket.
# The application goes first and the image is made of the stapled one, so that both open without a network.
# Needs a Mac. ZORVE_PERFIL: a profile that "xcrun notarytool store-credentials" saved in the keychain.
set -euo pipefail
cual=${1:?usage: notariza.sh APP|IMAGE}
perfil=${ZORVE_PERFIL:?set ZORVE_PERFIL to a profile saved by: xcrun notarytool store-credentials}
cual=${cual%/}

envio=$cual
como=(--type open --context context:primary-signature)
if [ -d "$cual" ]; then
  carpeta=$(mktemp -d)
  trap 'rm -rf "$carpeta"' EXIT
  envio=$carpeta/Zorve.zip
  como=(--type execute)
  ditto -c -k --keepParent "$cual" "$envio"
fi
xcrun notarytool submit "$envio" --keychain-profile "$perfil" --wait
xcrun stapler staple "$cual"
xcrun stapler validate "$cual"
spctl --assess "${como[@]}" --verbose "$cual"
