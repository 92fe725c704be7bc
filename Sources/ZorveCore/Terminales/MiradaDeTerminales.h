#pragma once

#include <expected>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ZorveCore/Terminales/CatalogoDeTerminales.h"

namespace zorve {

/// Whom a look at the terminals asks. The functions are called in the background and may throw.
struct FuentesDeTerminales {
  std::vector<TerminalRef> conocidas;
  /// What the system says of shell scripts.
  std::function<RespuestaDelSistema()> sistema = [] { return RespuestaDelSistema{}; };
  /// The saved choice, or why it could not be read.
  std::function<std::expected<std::optional<std::string>, IndexError>()> eleccion = [] {
    return std::optional<std::string>{};
  };
  VocesDelSistema voces = {};
};

/// Asks `manejador` and `preferencias` anew at each look; both must outlive the result.
[[nodiscard]] FuentesDeTerminales fuentesDelSistema(std::vector<TerminalRef> conocidas,
                                                    ManejadorDelSistema const& manejador,
                                                    Preferencias const& preferencias,
                                                    VocesDelSistema const& voces);

/// Everything that there is to say of the terminals at one moment.
struct MiradaDeTerminales {
  /// Answers what was answered then.
  CatalogoDeTerminales catalogo;
  std::vector<TerminalRef> instaladas;
  /// A choice that could not be read counts as none.
  std::expected<std::optional<std::string>, IndexError> eleccion;
  RespuestaDelSistema sistema;
  std::expected<TerminalResuelta, FalloDeApertura> resuelta;

  [[nodiscard]] bool estaInstalada(TerminalRef const& terminal) const;
  /// Who named the terminal, where it is the system's that would be used.
  [[nodiscard]] std::optional<std::string> dichoPor() const;
};

/// Asks each source once and resolves; what a source throws becomes the resolution's failure. May take
/// seconds: any thread but the main one.
[[nodiscard]] MiradaDeTerminales mirar(FuentesDeTerminales const& fuentes);

}  // namespace zorve
