#pragma once

#include <expected>
#include <span>
#include <string>
#include <string_view>

#include "ZorveCore/Modelo.h"

namespace zorve::ctl {

/// The session with the identifier `texto`, or the only one whose identifier begins with it. Otherwise one
/// line that says why there is none.
[[nodiscard]] std::expected<Session const*, std::string> buscarSesion(std::span<Session const> sesiones,
                                                                      std::string_view texto);

}  // namespace zorve::ctl
