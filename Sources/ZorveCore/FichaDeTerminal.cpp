#include "ZorveCore/FichaDeTerminal.h"

#include <algorithm>

namespace zorve {

namespace {

char minuscula(char letra) {
  return letra >= 'A' && letra <= 'Z' ? static_cast<char>(letra - 'A' + 'a') : letra;
}

}  // namespace

std::span<FichaDeTerminal const> fichasDeLinux() {
  static std::vector<FichaDeTerminal> const fichas{
      {"xterm", "xterm", "debian-xterm.desktop", {"xterm"}, {"-e"}, {"xterm"}},
  };
  return fichas;
}

FichaDeTerminal const* fichaDeLinux(std::string_view identificador) {
  for (auto const& ficha : fichasDeLinux()) {
    if (std::ranges::equal(ficha.identificador, identificador, {}, minuscula, minuscula)) return &ficha;
  }
  return nullptr;
}

}  // namespace zorve
