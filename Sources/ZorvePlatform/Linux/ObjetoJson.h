#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveCore/Preferencias.h"

namespace zorve {

/// Whether `texto` is one valid JSON object in UTF-8 and nothing else.
[[nodiscard]] bool esObjetoJson(std::string_view texto);

/// The value under the top-level key `clave` of the object `texto`; nothing when it is absent or neither a
/// text nor a truth value. Of equal keys the first counts.
[[nodiscard]] std::optional<Preferencias::Valor> valorEnObjetoJson(std::string_view texto,
                                                                   std::string_view clave);

/// The object `texto` with `valor` under `clave`, or without `clave` when there is no value. Everything else
/// is kept, numbers digit for digit. Laid out with two blanks a level down to a fixed depth, so that no text
/// grows much; on one line where even that would pass `tope` bytes.
[[nodiscard]] std::string conValorEnObjetoJson(std::string_view texto, std::string_view clave,
                                               std::optional<Preferencias::Valor> const& valor,
                                               std::size_t tope);

}  // namespace zorve
