#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "ZorveCore/Archivos.h"
#include "ZorveCore/Modelo.h"
#include "ZorveCore/VidaDeProcesos.h"

namespace zorve::ctl {

/// What a command works with; `main` owns the objects. A command leaves its exit status in `codigo`.
struct Contexto {
  static constexpr int hecho = 0;
  static constexpr int fallo = 1;
  static constexpr int malUso = 2;

  Archivos& archivos;
  VidaDeProcesos& procesos;
  /// How this system's people are shown a text of ours.
  std::string (*textoPropio)(std::string_view);
  int codigo = hecho;
};

/// The home directory that `--home` names, or the user's where it is empty.
[[nodiscard]] std::expected<std::string, std::string> hogarDe(std::string const& opcion);

/// Every session below `home`, and the notices.
[[nodiscard]] IndexResult leerSesiones(Contexto const& contexto, std::string const& home);

/// A notice as one line for people: its source, then the message, safe to print.
[[nodiscard]] std::string lineaDeAviso(Contexto const& contexto, IndexError const& aviso);

}  // namespace zorve::ctl
