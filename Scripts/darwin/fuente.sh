# shellcheck shell=bash
# Source archives that the macOS checks build from. Sourced after Scripts/comun.sh.

# fuente FILE SHA256 [ADDRESS]: prints where the archive lies: in the folder that ZORVE_FUENTES names, among what was
# downloaded before, or downloaded now. Fails, and says why, when it cannot be had or is another file.
fuente() {
  local donde
  for donde in "${ZORVE_FUENTES:-}" build/fuentes; do
    [ -z "$donde" ] || [ ! -f "$donde/$1" ] || break
  done
  if [ ! -f "$donde/$1" ] && [ -z "${3-}" ]; then
    nota "$1 is not in the folder ZORVE_FUENTES names"
    return 1
  fi
  if [ -z "$donde" ] || [ ! -f "$donde/$1" ]; then
    donde=build/fuentes
    mkdir -p "$donde"
    curl -fsSL --proto '=https' --max-time 120 -o "$donde/$1.nuevo" "$3" 2>/dev/null ||
      { nota "$1 is not in the folder ZORVE_FUENTES names, and $3 cannot be reached"; rm -f "$donde/$1.nuevo"; return 1; }
    mv "$donde/$1.nuevo" "$donde/$1"
  fi
  sha256sum --check --status <<<"$2  $donde/$1" || { nota "$donde/$1 is not the file of $3"; return 1; }
  printf '%s\n' "$donde/$1"
}
