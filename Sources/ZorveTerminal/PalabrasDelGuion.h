#pragma once

#include <expected>
#include <string>
#include <vector>

#include "ZorveTerminal/CarpetaDePaso.h"

namespace zorve::ayudante {

/// What the shell piece is told.
struct OrdenParaLaShell {
  std::string directorio;
  std::string comando;
  /// Absolute path of the person's shell.
  std::string shell;
  /// The person's home directory, for terminals that change it; or nothing.
  std::string home;
};

/// The words of a command that runs the shell piece, which finds its order in `carpeta`, made at `lugar`,
/// and removes that. They name the folder alone: no layer in between can alter the order, and nobody reads it
/// in a list of processes. A directory that is not absolute counts from the place where the terminal starts.
/// Nothing when the order cannot be written.
[[nodiscard]] std::vector<std::string> palabrasDelGuion(OrdenParaLaShell const& orden,
                                                        CarpetaDePaso const& carpeta,
                                                        LugarDePaso const& lugar);

/// The empty folder in `carpeta` whose removal says that the shell piece has started.
[[nodiscard]] std::string senalEn(CarpetaDePaso const& carpeta);

}  // namespace zorve::ayudante
