#pragma once

#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ZorveCore/Modelo.h"

namespace zorve {

/// One external program to run: an absolute path and its arguments, no shell in between.
struct ComandoDeApertura {
  std::string ejecutable;
  std::vector<std::string> args;
  bool operator==(ComandoDeApertura const&) const = default;
};

/// The session cannot be brought to the front. `tty` is its device without "/dev/", or nothing when it has
/// none.
struct NoSePuedeEnfocar {
  std::optional<std::string> tty;
  bool operator==(NoSePuedeEnfocar const&) const = default;
};

/// What a driver answers: commands to run in order, or that focusing is not possible.
using PlanDeApertura = std::variant<std::vector<ComandoDeApertura>, NoSePuedeEnfocar>;

/// A terminal application. Drivers are immutable and never run anything; any thread.
class Terminal {
 public:
  Terminal() = default;
  Terminal(Terminal const&) = delete;
  Terminal& operator=(Terminal const&) = delete;
  virtual ~Terminal() = default;

  /// Saved as the person's choice and compared with the system's handler ("com.apple.Terminal").
  [[nodiscard]] virtual std::string identificador() const = 0;
  /// Shown to people ("iTerm2").
  [[nodiscard]] virtual std::string nombre() const = 0;
  /// The application bundle's folder name ("iTerm.app").
  [[nodiscard]] virtual std::string nombreDelBundle() const = 0;
  /// Whether the driver can bring an existing session to the front.
  [[nodiscard]] virtual bool puedeEnfocar() const = 0;
  [[nodiscard]] virtual bool estaInstalada() const = 0;
  /// Whether a process whose command `ps` prints as `command` belongs to this terminal. The rule unless a
  /// driver has its own: the command path runs through the folder `nombreDelBundle`.
  [[nodiscard]] virtual bool hospeda(std::string_view command) const;
  /// A new window in directory `cwd` that runs the shell command line `comando`.
  [[nodiscard]] virtual PlanDeApertura planParaAbrir(std::string const& cwd,
                                                     std::string const& comando) const = 0;
  /// The tab whose device is `tty`, with or without "/dev/", to the front.
  [[nodiscard]] virtual std::expected<PlanDeApertura, IndexError> planParaEnfocar(
      std::string const& tty) const = 0;
};

using TerminalRef = std::shared_ptr<Terminal const>;

}  // namespace zorve
