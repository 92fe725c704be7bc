#pragma once

#include <expected>
#include <functional>
#include <optional>
#include <span>
#include <string>

#include "ZorveApp/Textos.h"
#include "ZorveCore/Lectura/Directorios.h"
#include "ZorveCore/Terminales/Ejecutor.h"
#include "ZorveCore/Terminales/ServiciosDeApertura.h"

namespace zorve {

/// Everything that one opening needs, copied, so that it can run away from the main thread.
struct PeticionDeApertura {
  Session sesion;
  ServiciosDeApertura servicios;
  Ejecutor const& ejecutor;
  Textos textos;
  /// Where a directory that is gone is told before any terminal opens; nowhere when null.
  Directorios* directorios = nullptr;
};

/// `terminal`: what was resolved, nothing when that failed. At most one of `aviso` and `error`
/// is set; `consejo` only beside `aviso`.
struct ResultadoDeApertura {
  std::optional<TerminalResuelta> terminal;
  std::optional<std::string> aviso;
  std::optional<std::string> consejo = std::nullopt;
  std::optional<std::string> error;
};

/// Resolves the terminal, plans, and runs the plan's commands one after another up to the first that fails.
/// `alPlanear` gets the resolved terminal when planning has ended, before anything is run; not when resolving
/// failed. Texts are in the language of `peticion.textos`. Any thread but the main one.
[[nodiscard]] ResultadoDeApertura abrirSesion(
    PeticionDeApertura const& peticion, std::function<void(TerminalResuelta const&)> const& alPlanear = {});

/// Runs `comandos` one after another up to the first that fails; the text of that failure, or nothing. Where
/// they would type control characters into a shell none is run, and that is the failure. Any thread but the
/// main one.
[[nodiscard]] std::optional<std::string> ejecutarComandos(std::span<ComandoDeApertura const> comandos,
                                                          Ejecutor const& ejecutor, Textos const& textos);

/// A failure to plan as people are told it: ours as it stands, the system's behind "Could not open the
/// session".
[[nodiscard]] std::string textoDe(FalloDeApertura const& fallo, Textos const& textos);

/// Why there is nothing to bring to the front, without the panel's hint.
[[nodiscard]] std::string razonDe(NoSePuedeEnfocar const& plan, Anfitriona const& anfitriona,
                                  Textos const& textos);

/// The one-line description of a failure.
[[nodiscard]] std::string descripcionDe(FalloDeApertura const& fallo);

}  // namespace zorve
