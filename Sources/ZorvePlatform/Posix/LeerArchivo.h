#pragma once

#include <cstddef>
#include <expected>
#include <string>

#include "ZorveCore/FalloDelSistema.h"

namespace zorve {

/// The whole of a small regular file; links are followed, nothing else is waited for. Fails with EFBIG when
/// it holds more than `tope` bytes.
[[nodiscard]] std::expected<std::string, FalloDelSistema> leerArchivo(std::string const& ruta,
                                                                      std::size_t tope);

}  // namespace zorve
