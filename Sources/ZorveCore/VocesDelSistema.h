#pragma once

#include <string_view>

namespace zorve {

/// The words in which our texts differ from one system to the next, macOS's unless said otherwise. They live
/// as long as the program.
struct VocesDelSistema {
  /// Where we are: what people call this computer, in English and in Spanish.
  std::string_view aquiEnIngles = "on this Mac";
  std::string_view aquiEnEspanol = "en esta Mac";
  /// Stands before the key of a shortcut.
  std::string_view atajo = "⌘";
  /// The key that copies a session's identifier.
  std::string_view teclaDeCopiar = "C";
  /// The command that chooses a terminal, up to the terminal's identifier.
  std::string_view ordenDeEleccion = "defaults write com.sarnol.zorve zorve.terminalElegida -string ";
  /// Behind the failure to start at login: the usual reason, with the blank before it.
  std::string_view pistaDeArranqueEnIngles = " Usually because Zorve.app is not in /Applications.";
  std::string_view pistaDeArranqueEnEspanol = " Suele ser porque Zorve.app no está en /Applications.";

  bool operator==(VocesDelSistema const&) const = default;
};

/// Those of a Linux desktop.
inline constexpr VocesDelSistema vocesDeLinux{.aquiEnIngles = "on this computer",
                                              .aquiEnEspanol = "en este equipo",
                                              .atajo = "Ctrl+",
                                              .ordenDeEleccion = "zorvectl choose ",
                                              .pistaDeArranqueEnIngles = "",
                                              .pistaDeArranqueEnEspanol = ""};

}  // namespace zorve
