#pragma once

#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <vector>

#include "ZorveCore/FichaDeTerminal.h"
#include "ZorveTerminal/Sway.h"
#include "ZorveTerminal/VentanasX.h"

namespace zorve {

/// Why a window was not chosen.
enum class SinVentana : std::uint8_t { ninguna, varias };

/// The window of a process: `propia` (the window that its environment names) if it is one of `ventanas` and
/// belongs to one of `ascendencia` (the process first, then those it descends from); else the only window of
/// the nearest of them that has any. Fails when there is none, or several that cannot be told apart.
[[nodiscard]] std::expected<std::uint32_t, SinVentana> ventanaDe(std::span<VentanaX const> ventanas,
                                                                 std::span<pid_t const> ascendencia,
                                                                 std::uint32_t propia);

/// The same among the windows of sway, where no environment names one.
[[nodiscard]] std::expected<std::int64_t, SinVentana> ventanaDe(std::span<VentanaDeSway const> ventanas,
                                                                std::span<pid_t const> ascendencia);

/// Brings the window of the session on `tty` (with or without "/dev/") to the front. Fails with one sentence.
[[nodiscard]] std::expected<void, std::string> enfocar(FichaDeTerminal const& ficha, std::string const& tty);

/// The sentence for a session whose window is not found.
[[nodiscard]] std::string frase(SinVentana porque, FichaDeTerminal const& ficha, std::string const& tty);

}  // namespace zorve
