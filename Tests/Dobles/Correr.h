#pragma once

#include <map>
#include <string>
#include <vector>

namespace zorve::dobles {

/// What a program that ended left: its exit status (-N when signal N ended it) and both streams.
struct Corrida {
  int codigo = -1;
  std::string salida;
  std::string error;
};

/// Runs `palabras[0]` (a path) with the rest as arguments, standard input empty, and the environment of the
/// test with `entorno` laid over it (an empty value removes the name). Waits for the end.
[[nodiscard]] Corrida correr(std::vector<std::string> const& palabras,
                             std::map<std::string, std::string> const& entorno = {});

}  // namespace zorve::dobles
