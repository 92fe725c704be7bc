#pragma once

#include <string>

namespace zorve {

/// The general clipboard. Main thread only.
class Portapapeles {
 public:
  Portapapeles() = default;
  Portapapeles(Portapapeles const&) = delete;
  Portapapeles& operator=(Portapapeles const&) = delete;
  virtual ~Portapapeles() = default;

  /// Replaces what the clipboard holds by `texto` as plain text.
  virtual void copiar(std::string const& texto) = 0;
};

}  // namespace zorve
