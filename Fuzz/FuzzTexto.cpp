#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Descifrado.h"
#include "Exigir.h"
#include "ZorveCore/Texto/Filtro.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/TextoPlegado.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace {

using zorve::fuzz::descifradoByteAByte;
using zorve::fuzz::exigir;

bool esUtf8(std::string_view texto) { return zorve::conUtf8Valido(texto) == texto; }

void plegarDosVecesEsUna(std::string_view texto, zorve::ReglaDePlegado regla) {
  auto const una = zorve::plegar(texto, regla);
  exigir(zorve::plegar(una, regla) == una);
  exigir(una.empty() == texto.empty());
  exigir(esUtf8(una) == esUtf8(texto));
}

void lasPalabrasNoTienenBlancosNiSeInventan(std::string_view texto) {
  std::size_t bytes = 0;
  for (auto const palabra : zorve::palabras(texto)) {
    exigir(!palabra.empty() && zorve::recortar(palabra) == palabra && zorve::palabras(palabra).size() == 1);
    bytes += palabra.size();
  }
  exigir(bytes <= texto.size());
  exigir(zorve::palabras(zorve::recortar(texto)) == zorve::palabras(texto));
}

void losCaracteresJuntosSonElTexto(std::string_view texto) {
  std::string_view resto = texto;
  std::size_t cuantos = 0;
  while (!resto.empty()) {
    auto const uno = zorve::primerosCaracteres(resto, 1);
    exigir(!uno.empty());
    resto.remove_prefix(uno.size());
    ++cuantos;
  }
  exigir(zorve::primerosCaracteres(texto, texto.size()) == texto);
  exigir(texto.starts_with(zorve::primerosCaracteres(texto, cuantos / 2)));
}

void losCortesCaben(std::string_view texto, std::size_t columnas) {
  auto const visible = zorve::textoVisible(texto);
  exigir(esUtf8(visible));
  exigir(zorve::textoVisible(visible) == visible);
  for (auto const& corte :
       {zorve::cortadoAlFinal(visible, columnas), zorve::cortadoAlPrincipio(visible, columnas)}) {
    exigir(zorve::columnasDe(corte) <= columnas && esUtf8(corte));
  }
}

void elFiltroRapidoDaLoMismo(zorve::Session const& sesion, std::string_view consulta,
                             zorve::ReglaDePlegado regla) {
  auto const fichas = zorve::fichasDe(consulta, regla);
  bool const despacio = zorve::coincide(zorve::textoDeBusqueda(sesion, regla), fichas);
  exigir(zorve::filtrar({&sesion, 1}, consulta, regla).size() == (despacio ? 1 : 0));
}

}  // namespace

/// The first byte chooses the rule and how much of the rest is the query; what follows is the text.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  if (largo == 0) return 0;
  std::string_view const texto{reinterpret_cast<char const*>(datos) + 1, largo - 1};
  auto const regla = (datos[0] & 1U) != 0 ? zorve::ReglaDePlegado::turca : zorve::ReglaDePlegado::general;
  auto const consulta = texto.substr(0, datos[0] >> 4U);
  auto const resto = texto.substr(consulta.size());
  exigir(zorve::conUtf8Valido(texto) == descifradoByteAByte(texto));
  plegarDosVecesEsUna(texto, regla);
  lasPalabrasNoTienenBlancosNiSeInventan(texto);
  losCaracteresJuntosSonElTexto(texto);
  losCortesCaben(texto, datos[0] >> 2U);
  zorve::Session const sesion{.titulo = std::string{resto.substr(0, resto.size() / 3)},
                              .cwd = std::string{resto.substr(resto.size() / 3)}};
  elFiltroRapidoDaLoMismo(sesion, consulta, regla);
  return 0;
}
