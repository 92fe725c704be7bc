#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "ZorveCore/Texto/TextoPlegado.h"

namespace zorve {

/// Finds one folded word in ASCII texts that are not folded. Immutable; any thread.
class BuscadorAscii {
 public:
  /// Bytes behind a text that may be read. Their values do not matter.
  static constexpr std::size_t margen = 64;

  /// `ficha` is folded by `regla`, under which the texts are compared.
  BuscadorAscii(std::string_view ficha, ReglaDePlegado regla);

  /// Whether the word occurs in what `texto` folds to. Every byte of `texto` is below 0x80, and `margen` and
  /// the word's length more bytes can be read behind it.
  [[nodiscard]] bool esta(std::string_view texto) const;

 private:
  struct Ancla {
    std::size_t posicion = 0;
    char una = 0;
    char otra = 0;
  };

  [[nodiscard]] Ancla anclaEn(std::size_t posicion) const;
  [[nodiscard]] bool algunaEnElBloque(char const* desde) const;
  [[nodiscard]] bool coincideEn(char const* desde) const;

  /// The word in both its cases, letter under letter.
  std::string unaCaja_;
  std::string otraCaja_;
  Ancla primera_;
  Ancla segunda_;
  bool imposible_ = false;
};

}  // namespace zorve
