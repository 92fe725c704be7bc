#pragma once

#include <expected>
#include <string>

#include "ZorveCore/Lectura/Archivos.h"
#include "ZorveCore/Lectura/VidaDeProcesos.h"
#include "ZorveCore/Modelo.h"
#include "ZorveCore/VocesDelSistema.h"

namespace zorve::ctl {

/// What a command works with; `main` owns the objects. A command leaves its exit status in `codigo`.
struct Contexto {
  static constexpr int hecho = 0;
  static constexpr int fallo = 1;
  static constexpr int malUso = 2;

  Archivos& archivos;
  VidaDeProcesos& procesos;
  /// In which people are spoken to; JSON keeps the default ones.
  VocesDelSistema voces;
  int codigo = hecho;
};

/// The home directory that `--home` names, or the user's where it is empty.
[[nodiscard]] std::expected<std::string, std::string> homeDe(std::string const& opcion);

/// Every session below `home`, and the notices in the words of `voces`.
[[nodiscard]] IndexResult leerSesiones(Contexto const& contexto, std::string const& home,
                                       VocesDelSistema const& voces);

/// A notice as one line for people: its source, then the message, safe to print.
[[nodiscard]] std::string lineaDeAviso(IndexError const& aviso);

}  // namespace zorve::ctl
