#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "ZorveCore/Terminales/Anfitriona.h"

namespace zorve {

/// A terminal application: a host that a person can choose and that opens windows.
class Terminal : public Anfitriona {
 public:
  /// Saved as the person's choice and compared with the system's handler ("com.apple.Terminal").
  [[nodiscard]] virtual std::string identificador() const = 0;
  /// The application bundle's folder name ("iTerm.app").
  [[nodiscard]] virtual std::string nombreDelBundle() const = 0;
  [[nodiscard]] virtual bool estaInstalada() const = 0;
  /// The rule unless a driver has its own: the command path runs through the folder `nombreDelBundle`.
  [[nodiscard]] bool hospeda(std::string_view command) const override;
  /// A new window in directory `cwd` that runs the shell command line `comando`.
  [[nodiscard]] virtual PlanDeApertura planParaAbrir(std::string const& cwd,
                                                     std::string const& comando) const = 0;
};

using TerminalRef = std::shared_ptr<Terminal const>;

}  // namespace zorve
