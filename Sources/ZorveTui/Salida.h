#pragma once

#include <string>
#include <variant>
#include <vector>

namespace zorve::tui {

/// The panel was left, with this exit status.
struct Dejado {
  int codigo = 0;
  bool operator==(Dejado const&) const = default;
};

/// A program takes this one's place: an absolute path, its arguments, and where it starts (empty: here).
struct Relevo {
  std::string ruta;
  std::vector<std::string> args;
  std::string directorio;
  bool operator==(Relevo const&) const = default;
};

/// A shell line for standard output.
struct Impresa {
  std::string linea;
  bool operator==(Impresa const&) const = default;
};

/// A signal ends the program, once the terminal is given back.
struct PorSenal {
  int senal = 0;
  bool operator==(PorSenal const&) const = default;
};

/// How the panel ended.
using Salida = std::variant<Dejado, Relevo, Impresa, PorSenal>;

}  // namespace zorve::tui
