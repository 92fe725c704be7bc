#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ZorveCore/Anfitrionas.h"
#include "ZorveCore/AplicacionesInstaladas.h"
#include "ZorveCore/CatalogoDeTerminales.h"
#include "ZorveCore/ManejadorDelSistema.h"
#include "ZorveCore/Preferencias.h"

namespace zorve {

/// What this system has for opening terminals. The objects live as long as this record; so must whoever holds
/// a terminal or a catalogue made from it.
struct ServiciosDeTerminal {
  std::unique_ptr<AplicacionesInstaladas> aplicaciones;
  std::unique_ptr<ManejadorDelSistema> manejador;
  std::unique_ptr<Preferencias> preferencias;
  /// The process-status tool.
  std::string rutaPs;
  /// This system's terminals, in their order.
  std::vector<TerminalRef> propias;
  /// Those of the other system: they can plan, but are never installed here.
  std::vector<TerminalRef> ajenas;
  /// Which of this system's may host a running session.
  Anfitrionas anfitrionas = soloLasConocidas;

  [[nodiscard]] CatalogoDeTerminales catalogo() const {
    return catalogoDelSistema(propias, *manejador, *preferencias);
  }
};

/// For the user whose home directory is `home`. Each system has its own. Call it before other threads run.
[[nodiscard]] ServiciosDeTerminal serviciosDeTerminal(std::string const& home);

}  // namespace zorve
