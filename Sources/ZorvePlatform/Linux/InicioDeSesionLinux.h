#pragma once

#include <string>

#include "ZorveApp/InicioDeSesion.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"

namespace zorve {

/// Start at login by an XDG autostart entry of the user's own, com.sarnol.zorve.desktop. It is active when
/// the entry is there, is not hidden, and runs a program. Failures name the file or folder.
class InicioDeSesionLinux final : public InicioDeSesion {
 public:
  /// `ejecutable` is the absolute path that the entry will run.
  InicioDeSesionLinux(EntornoLinux const& entorno, std::string ejecutable);

  [[nodiscard]] bool activo() const override;
  [[nodiscard]] std::expected<void, std::string> registrar() override;
  [[nodiscard]] std::expected<void, std::string> retirar() override;

  [[nodiscard]] std::string const& entrada() const { return entrada_; }

 private:
  std::string entrada_;
  std::string ejecutable_;
};

/// `ruta` as the Exec key of a desktop entry takes it: quoted, with its special characters escaped twice, as
/// a string and as an argument.
[[nodiscard]] std::string argumentoDeExec(std::string const& ruta);

}  // namespace zorve
