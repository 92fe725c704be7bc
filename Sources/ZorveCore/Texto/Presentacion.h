#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Modelo.h"
#include "ZorveCore/Texto/Coincidencias.h"

namespace zorve {

/// How long ago, short: `palabraAhora` below a minute or in the future, else whole minutes "m", hours "h",
/// days "d".
[[nodiscard]] std::string relativo(Fecha fecha, Fecha ahora, std::string_view palabraAhora);

/// `ruta` with the home directory at its start written "~". `home` is absolute, without a slash at its end.
[[nodiscard]] std::string abreviar(std::string_view ruta, std::string_view home);

/// Parts of `ruta` as parts of `abreviar(ruta, home)`; what lies in the home directory is the "~".
[[nodiscard]] std::vector<Tramo> enLoAbreviado(std::vector<Tramo> tramos, std::string_view ruta,
                                               std::string_view home);

}  // namespace zorve
