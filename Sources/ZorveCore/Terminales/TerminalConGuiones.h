#pragma once

#include <string>

#include "ZorveCore/Terminales/AplicacionesInstaladas.h"
#include "ZorveCore/Terminales/Terminal.h"

namespace zorve {

/// A macOS terminal driven by AppleScript: its plans are one run of the program that runs scripts.
class TerminalConGuiones : public Terminal {
 public:
  [[nodiscard]] std::string identificador() const final { return nombres_.identificador; }
  [[nodiscard]] std::string nombre() const final { return nombres_.nombre; }
  [[nodiscard]] std::string nombreDelBundle() const final { return nombres_.bundle; }
  [[nodiscard]] bool estaInstalada() const final { return aplicaciones_.hay(nombres_.identificador); }

 protected:
  struct Nombres {
    std::string identificador;
    std::string nombre;
    std::string bundle;
  };

  /// `rutaOsascript` is what runs the scripts; `aplicaciones` must outlive the driver.
  TerminalConGuiones(Nombres nombres, std::string rutaOsascript, AplicacionesInstaladas const& aplicaciones);

  /// The plan that runs `guion`, an AppleScript text.
  [[nodiscard]] PlanDeApertura planDe(std::string guion) const;
  /// The AppleScript command that ends a focus script in which no tab had the device.
  [[nodiscard]] std::string errorSinSesion(std::string const& ttyCorto) const;

 private:
  Nombres nombres_;
  std::string rutaOsascript_;
  AplicacionesInstaladas const& aplicaciones_;
};

/// The AppleScript condition that `elTty` is the device, with or without "/dev/".
[[nodiscard]] std::string esElTty(std::string const& ttyCorto);

/// The AppleScript literal of the shell line that enters directory `cwd` and there runs the shell command
/// line `comando`.
[[nodiscard]] std::string literalDeLinea(std::string const& cwd, std::string const& comando);

}  // namespace zorve
