#pragma once

#include <expected>
#include <optional>
#include <span>
#include <string>
#include <variant>

#include <sys/types.h>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::ayudante {

/// What the program is told to do. `ficha` is never null; `elegida` is null where nobody says which.
struct PedirAyuda {};
struct PedirVersion {};
struct PedirEscritorio {};
struct PedirAbrir {
  FichaDeTerminal const* ficha;
  std::string directorio;
  std::string orden;
};
struct PedirEnfocar {
  FichaDeTerminal const* ficha;
  std::string tty;
  /// A process of the session.
  std::optional<pid_t> pid;
};
struct PedirEnfocarTmux {
  std::string tty;
  FichaDeTerminal const* elegida;
  std::optional<pid_t> pid;
};
using Orden =
    std::variant<PedirAyuda, PedirVersion, PedirEscritorio, PedirAbrir, PedirEnfocar, PedirEnfocarTmux>;

/// The program's arguments (without its own name) understood, or what is wrong with them in one sentence.
[[nodiscard]] std::expected<Orden, std::string> leerOrden(std::span<std::string const> args);

}  // namespace zorve::ayudante
