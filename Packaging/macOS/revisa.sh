#!/usr/bin/env bash
# revisa.sh APP: what the system will look at in the bundle: signature, entitlements, property list, both
# architectures, no library but the system's; then the application starts and stays up. Needs a Mac.
set -euo pipefail
app=${1:?usage: revisa.sh APP}
falla() { echo "revisa.sh: $1" >&2; exit 1; }

codesign --verify --strict --deep --verbose=2 "$app"
# contiene TEXT PATTERN: the text is whole before it is searched, so that no writer meets a closed pipe.
contiene() { grep -qE -- "$2" <<<"$1"; }
contiene "$(codesign --display --verbose=2 "$app" 2>&1)" 'flags=.*runtime' || falla "the hardened runtime is off"
contiene "$(codesign --display --entitlements - --xml "$app" 2>/dev/null)" com.apple.security.automation.apple-events ||
  falla "the entitlement to automate terminals is missing"
plutil -lint "$app/Contents/Info.plist" "$app"/Contents/Resources/*.lproj/InfoPlist.strings

for programa in "$app/Contents/MacOS/Zorve" "$app/Contents/MacOS/zorvectl"; do
  for arquitectura in arm64 x86_64; do
    lipo "$programa" -verify_arch "$arquitectura" || falla "$programa is not for $arquitectura"
    contiene "$(otool -arch "$arquitectura" -l "$programa")" 'minos 13\.0' || falla "$programa asks for another system"
    ajenas=$(otool -arch "$arquitectura" -L "$programa" |
      awk 'NR > 1 && $1 !~ "^/(System/Library/Frameworks|usr/lib)/" { print $1 }')
    [ -z "$ajenas" ] || falla "$programa needs $ajenas"
  done
done

home=$(mktemp -d)
"$app/Contents/MacOS/zorvectl" --version
"$app/Contents/MacOS/zorvectl" list --home "$home"
"$app/Contents/MacOS/zorvectl" terminals

"$app/Contents/MacOS/Zorve" &
proceso=$!
sleep 5
kill -0 "$proceso" || falla "the application ended within five seconds"
marca=$(defaults read com.sarnol.zorve app.zorve.panelMostradoEnPrimerArranque)
kill "$proceso"
wait "$proceso" || :
[ "$marca" = 1 ] || falla "the first launch left no mark in the settings"
echo "revisa.sh: all well"
