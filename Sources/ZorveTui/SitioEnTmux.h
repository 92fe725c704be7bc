#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <string>
#include <vector>

#include "ZorveCore/Terminales/Ejecutor.h"

namespace zorve::tui {

/// What is known of tmux here.
struct TmuxDeAqui {
  /// Absolute path of the program; empty where there is none.
  std::string programa;
  /// $TMUX: empty outside of it.
  std::string variable;
  /// Where a server has its socket unless it was told otherwise.
  std::string enchufeDeCostumbre;
  std::string rutaPs;

  [[nodiscard]] bool estamosDentro() const { return !variable.empty() && !programa.empty(); }
  /// The socket of the server that shows us; empty outside.
  [[nodiscard]] std::string enchufePropio() const;
  /// The session that shows us as a target ("$3"); empty where nobody says.
  [[nodiscard]] std::string sesionPropia() const;
};

/// A pane of a server: its socket, and session, window and pane as tmux's targets name them ("$0:@1.%2").
struct SitioEnTmux {
  std::string enchufe;
  std::string destino;
  bool operator==(SitioEnTmux const&) const = default;
};

/// The pane in which the process runs: on the pane's terminal and below its first process. Asked are the
/// server around us, the one that the process's own environment names, where it can be read, and the usual
/// one; sockets that are not this user's are not. Any thread but the main one.
[[nodiscard]] std::optional<SitioEnTmux> sitioEnTmux(std::int32_t pid, TmuxDeAqui const& tmux,
                                                     Ejecutor const& ejecutor);

/// The client that asks shows the pane, or what tmux says against it. From inside that server only. Any
/// thread but the main one.
[[nodiscard]] std::expected<void, std::string> mostrarEnTmux(SitioEnTmux const& sitio, TmuxDeAqui const& tmux,
                                                             Ejecutor const& ejecutor);

/// A new window in the server around us, in the directory, that runs the words; or what tmux says against it.
/// Any thread but the main one.
[[nodiscard]] std::expected<void, std::string> ventanaDeTmux(std::string const& directorio,
                                                             std::vector<std::string> const& palabras,
                                                             TmuxDeAqui const& tmux,
                                                             Ejecutor const& ejecutor);

}  // namespace zorve::tui
