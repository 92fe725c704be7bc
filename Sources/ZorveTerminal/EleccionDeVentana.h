#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <vector>

#include "ZorveTerminal/Ventanas.h"

namespace zorve::ayudante {

/// Why a window was not chosen.
enum class SinVentana : std::uint8_t { ninguna, varias };

/// The windows of the nearest of `ascendencia` (a process first, then those it descends from) that has any.
[[nodiscard]] std::vector<Ventana> delMasCercano(std::span<Ventana const> ventanas,
                                                 std::span<pid_t const> ascendencia);

/// The window of a process: `propia` (the window that its environment names, 0 for none) if it is one of
/// `ventanas` and belongs to one of `ascendencia`; else the only window of the nearest of them that has any.
/// Fails when there is none, or several that cannot be told apart.
[[nodiscard]] std::expected<std::uint64_t, SinVentana> ventanaDe(std::span<Ventana const> ventanas,
                                                                 std::span<pid_t const> ascendencia,
                                                                 std::uint64_t propia);

}  // namespace zorve::ayudante
