#pragma once

#include <optional>
#include <string>

#include "ZorveApp/Interfaz.h"
#include "ZorvePlatform/MacOS/DespachadorMac.h"
#include "ZorvePlatform/MacOS/InicioDeSesionMac.h"
#include "ZorvePlatform/MacOS/PortapapelesMac.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/VidaDeProcesosPosix.h"
#include "ZorvePlatform/ServiciosDeTerminal.h"

namespace zorve {

/// Every real object of the application and the interface over them. It is never destroyed: tasks that still
/// run when the program ends use its parts.
class Programa {
 public:
  /// `home` is absolute, without a slash at its end; `version` is the bundle's, nothing outside of one.
  Programa(std::string const& home, ReglaDePlegado regla, std::optional<std::string> const& version);
  Programa(Programa const&) = delete;
  Programa& operator=(Programa const&) = delete;
  ~Programa() = delete;

 private:
  ArchivosPosix archivos_;
  VidaDeProcesosPosix procesos_;
  EjecutorDeProcesos ejecutor_;
  PortapapelesMac portapapeles_;
  InicioDeSesionMac inicio_;
  ServiciosDeTerminal servicios_;

 public:
  DespachadorMac despachador;
  Interfaz interfaz;
};

}  // namespace zorve
