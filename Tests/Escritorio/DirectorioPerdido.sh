#!/usr/bin/env bash
# A session whose directory is gone: its row says so, and opening it says so and starts no terminal.
# shellcheck source=Tests/Escritorio/comun.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun.sh"
awk '$5 == "/" { hay = 1 } END { exit !hay }' /proc/self/mountinfo ||
  salta "the root here is no mount of its own (a chroot): of no directory is it known whether it is gone"
# shellcheck source=Tests/Escritorio/comun-gustos.sh
. "$aqui/comun-gustos.sh"
escritorio lista
lector
zorve
muestra
espera dice_algo "list item.*it's complicated.*The directory no longer exists"
no dice_algo 'list item.*src/zorve.*no longer exists' || fallo "a directory that is there counts as gone"
xdotool type complicated
xdotool key Return
espera dice_algo "The directory /srv/team/it's complicated no longer exists: the session cannot be opened there"
panel_visible || fallo "the panel went"
rm -rf "$home/src/fuzz"
xdotool key ctrl+a BackSpace ctrl+r
espera dice_algo 'list item.*src/fuzz.*no longer exists'
