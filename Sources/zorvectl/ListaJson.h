#pragma once

#include <span>
#include <string>

#include "ZorveCore/Modelo.h"

namespace zorve::ctl {

/// {"sesiones":[…],"errores":[{"fuente","mensaje"}]} on one line with a line feed. Times are seconds since
/// 1970, absent values null, bytes that are no UTF-8 U+FFFD.
[[nodiscard]] std::string listaJson(std::span<Session const* const> sesiones,
                                    std::span<IndexError const> errores);

}  // namespace zorve::ctl
