#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "ZorveCore/FalloDelSistema.h"

namespace zorve {

/// Puts `contenido` at `ruta` in one step that survives a crash: whoever reads meets the old file or the new
/// one, whole. Mode 0600. Where `ruta` is a link, the file that it leads to is replaced, even if it does not
/// exist yet. On failure nothing is left behind.
[[nodiscard]] std::expected<void, FalloDelSistema> reemplazarArchivo(std::string const& ruta,
                                                                     std::string_view contenido);

/// Takes away what replacements of `ruta` have left that were ended half way. For a caller that nobody
/// replaces it beside. What cannot be taken away stays.
void quitarRestos(std::string const& ruta);

}  // namespace zorve
