#pragma once

#include <string>

namespace zorve {

/// A failure of the operating system: its error number and a one-line description in plain words.
struct FalloDelSistema {
  int codigo = 0;
  std::string descripcion;

  /// The failure that an errno value stands for. Any thread.
  [[nodiscard]] static FalloDelSistema deErrno(int codigo);
  bool operator==(FalloDelSistema const&) const = default;
};

}  // namespace zorve
