#pragma once

#include <expected>
#include <optional>
#include <span>
#include <string>

#include "ZorveApp/Textos.h"
#include "ZorveCore/Anfitrionas.h"
#include "ZorveCore/CatalogoDeTerminales.h"
#include "ZorveCore/Ejecutor.h"
#include "ZorveCore/Launcher.h"

namespace zorve {

/// Everything that one opening needs, copied, so that it can run away from the main thread.
struct PeticionDeApertura {
  Session sesion;
  CatalogoDeTerminales catalogo;
  Ejecutor const& ejecutor;
  std::string rutaPs;
  Textos textos;
  Anfitrionas anfitrionas = soloLasConocidas;
};

/// `terminal`: what the catalogue resolved, nothing when it failed. At most one of the two texts is set.
struct ResultadoDeApertura {
  std::optional<TerminalResuelta> terminal;
  std::optional<std::string> aviso;
  std::optional<std::string> error;
};

/// Resolves the terminal, plans, and runs the plan's commands one after another up to the first that fails.
/// Texts are in the language of `peticion.textos`. Any thread but the main one.
[[nodiscard]] ResultadoDeApertura abrirSesion(PeticionDeApertura const& peticion);

/// Has the system's terminal looked up and asks the catalogue; what its functions throw becomes a failure.
/// Any thread but the main one.
[[nodiscard]] std::expected<TerminalResuelta, FalloDeApertura> resolverTerminal(
    CatalogoDeTerminales const& catalogo);

/// Runs `comandos` one after another up to the first that fails; the text of that failure, or nothing. Any
/// thread but the main one.
[[nodiscard]] std::optional<std::string> ejecutarComandos(std::span<ComandoDeApertura const> comandos,
                                                          Ejecutor const& ejecutor, Textos const& textos);

/// The one-line description of a failure.
[[nodiscard]] std::string descripcionDe(FalloDeApertura const& fallo);

}  // namespace zorve
