#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorve {

/// What a desktop entry says of the program it starts.
struct EntradaDeEscritorio {
  /// The program of TryExec, or nothing.
  std::optional<std::string> tryExec;
  /// The first word of Exec, unquoted; empty when there is no Exec.
  std::string programa;
  /// Deleted by the user.
  bool oculta = false;
  bool operator==(EntradaDeEscritorio const&) const = default;
};

/// Reads the group [Desktop Entry] of a desktop entry's text. Any text is taken; what is not understood is
/// left out, and of equal keys the first counts.
[[nodiscard]] EntradaDeEscritorio leerEntradaDeEscritorio(std::string_view texto);

}  // namespace zorve
