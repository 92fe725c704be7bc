#!/usr/bin/env bash
# The translucent panel is the opaque one, pixel for pixel inside its outline, in each of its states, at 150 %.
# shellcheck source=Tests/Escritorio/comun-translucido.sh
. "$(dirname "${BASH_SOURCE[0]}")/comun-translucido.sh"
compara_a 1.5
