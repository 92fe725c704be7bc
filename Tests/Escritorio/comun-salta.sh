# shellcheck shell=bash
# How a test is left out, with the reason, which ./test counts and names. Sourced by comun.sh and comun-gnome.sh.

# salta WHY: the test is left out.
salta() {
  printf '%s: Skipped\n%s\n' "$0" "$1"
  exit 77
}
