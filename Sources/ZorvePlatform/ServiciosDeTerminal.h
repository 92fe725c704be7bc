#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ZorveCore/Preferencias.h"
#include "ZorveCore/Terminales/AplicacionesInstaladas.h"
#include "ZorveCore/Terminales/ManejadorDelSistema.h"
#include "ZorveCore/Terminales/ServiciosDeApertura.h"

namespace zorve {

/// What this system has for opening terminals, the same for every main. The objects live as long as this
/// record; so must whoever holds a terminal or `apertura`, which refer to them.
struct ServiciosDeTerminal {
  std::unique_ptr<AplicacionesInstaladas> aplicaciones;
  std::unique_ptr<ManejadorDelSistema> manejador;
  std::unique_ptr<Preferencias> preferencias;
  /// Over this system's terminals, in their order.
  ServiciosDeApertura apertura;
  /// The terminals of the other system: they can plan, but are never installed here.
  std::vector<TerminalRef> ajenas;

  [[nodiscard]] std::vector<TerminalRef> const& propias() const { return apertura.fuentes.conocidas; }
};

/// For the user whose home directory is `home`. Each system has its own. Call it before other threads run.
[[nodiscard]] ServiciosDeTerminal serviciosDeTerminal(std::string const& home);

/// In which this system's people are spoken to.
[[nodiscard]] VocesDelSistema vocesDeAqui();

}  // namespace zorve
