#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Dobles/LectorDeLiterales.h"
#include "Exigir.h"
#include "ZorveCore/Texto/Escape.h"

namespace {

using zorve::fuzz::exigir;

/// What a POSIX shell reads in `palabra`, when that is quoted runs and escaped apostrophes and nothing else.
std::string leerPalabra(std::string_view palabra) {
  std::string texto;
  while (!palabra.empty()) {
    if (palabra.starts_with("\\'")) {
      texto += '\'';
      palabra.remove_prefix(2);
      continue;
    }
    auto const fin = palabra.find('\'', 1);
    if (palabra.front() != '\'' || fin == std::string_view::npos) std::abort();
    texto += palabra.substr(1, fin - 1);
    palabra.remove_prefix(fin + 1);
  }
  return texto;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  std::string_view const texto{reinterpret_cast<char const*>(datos), largo};
  exigir(zorve::dobles::leerLiteralDeAppleScript(zorve::literalDeAppleScript(texto)) == texto);
  auto const palabra = zorve::palabraDeShell(texto);
  exigir(leerPalabra(palabra) == texto);
  exigir(zorve::dobles::leerLiteralDeAppleScript(zorve::literalDeAppleScript(palabra)) == palabra);
  auto const corto = zorve::ttyCorto(texto);
  exigir(texto == corto || texto == "/dev/" + corto);
  return 0;
}
