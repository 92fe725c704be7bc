#pragma once

#include <cstdint>
#include <expected>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zorve::ayudante {

/// A pane as one session shows it; linked windows stand once for each session. The three identifiers are
/// tmux's own ("$0", "@1", "%2").
struct PaneDeTmux {
  std::string tty;
  std::string sesion;
  std::string ventana;
  std::string pane;
  bool operator==(PaneDeTmux const&) const = default;
};

/// A terminal that shows a session.
struct ClienteDeTmux {
  std::string tty;
  std::string sesion;
  /// Seconds since 1970 of the last key.
  std::int64_t actividad = 0;
  bool soloLectura = false;
  /// Its session ends, with all that runs in it, once no client shows it (destroy-unattached).
  bool laSostiene = false;
  bool operator==(ClienteDeTmux const&) const = default;
};

/// What the answers of list-panes and list-clients to the formats below say; lines that are not understood do
/// not count, nor do clients without a screen of their own (control mode, suspended).
[[nodiscard]] std::vector<PaneDeTmux> leerPanes(std::string_view texto);
[[nodiscard]] std::vector<ClienteDeTmux> leerClientes(std::string_view texto);

/// The clients in the order in which they suit the pane that `vistas` are of: those that take keys first, of
/// them those that show one of its sessions already, of them the most recently used. Those that no other
/// session may be shown in are left out.
[[nodiscard]] std::vector<ClienteDeTmux> porConveniencia(std::vector<ClienteDeTmux> clientes,
                                                         std::span<PaneDeTmux const> vistas);

/// The view of the pane in the session that the client shows, else the first. `vistas` is not empty.
[[nodiscard]] PaneDeTmux const& vistaPara(ClienteDeTmux const& cliente, std::span<PaneDeTmux const> vistas);

/// The socket that a value of $TMUX names, if it is an absolute path of a socket (no link) of this user, in a
/// folder where nobody else can put another in its place.
[[nodiscard]] std::optional<std::string> enchufePropio(std::string_view variable);

/// A running tmux server. Every call runs the program `programa` (an absolute path) for two seconds at most
/// and fails with one sentence.
class ServidorDeTmux {
 public:
  ServidorDeTmux(std::string programa, std::string enchufe);

  [[nodiscard]] std::expected<std::vector<PaneDeTmux>, std::string> panes() const;
  [[nodiscard]] std::expected<std::vector<ClienteDeTmux>, std::string> clientes() const;
  /// Makes the client show session, window and pane.
  [[nodiscard]] std::expected<void, std::string> mostrar(ClienteDeTmux const& cliente,
                                                         PaneDeTmux const& pane) const;
  /// The shell command line that shows the pane in the terminal that runs it.
  [[nodiscard]] std::string ordenParaUnirse(PaneDeTmux const& pane) const;

 private:
  [[nodiscard]] std::expected<std::string, std::string> correr(std::vector<std::string> args) const;

  std::string programa_;
  std::string enchufe_;
};

}  // namespace zorve::ayudante
