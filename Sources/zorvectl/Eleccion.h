#pragma once

#include <string>
#include <string_view>

#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve::ctl {

/// The terminal with this identifier, case ignored, of either system, or null.
[[nodiscard]] TerminalRef terminalConocida(ServiciosDeTerminal const& servicios,
                                           std::string_view identificador);

/// One line: the identifier is none of those that follow.
[[nodiscard]] std::string terminalDesconocida(ServiciosDeTerminal const& servicios,
                                              std::string_view identificador);

}  // namespace zorve::ctl
