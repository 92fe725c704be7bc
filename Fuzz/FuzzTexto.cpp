#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ZorveCore/Texto/Filtro.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/TextoPlegado.h"
#include "ZorveCore/Texto/TextoVisible.h"

namespace {

void exigir(bool cierto) {
  if (!cierto) std::abort();
}

/// Bytes decoded one after the other, as the web's standard for encodings does it.
std::string descifradoByteAByte(std::string_view bytes) {
  std::string texto;
  std::string pendiente;
  int faltan = 0;
  unsigned menor = 0x80;
  unsigned mayor = 0xBF;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    unsigned const byte = static_cast<unsigned char>(bytes[i]);
    if (faltan == 0) {
      faltan = byte < 0x80 ? 0 : byte < 0xC2 ? -1 : byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : byte < 0xF5 ? 3 : -1;
      if (byte == 0xE0) menor = 0xA0;
      if (byte == 0xED) mayor = 0x9F;
      if (byte == 0xF0) menor = 0x90;
      if (byte == 0xF4) mayor = 0x8F;
      if (faltan == 0) texto += bytes[i];
      if (faltan < 0) texto += "\xEF\xBF\xBD";
      pendiente = faltan > 0 ? std::string{bytes[i]} : "";
      if (faltan < 0) faltan = 0;
      continue;
    }
    bool const sigue = byte >= menor && byte <= mayor;
    menor = 0x80;
    mayor = 0xBF;
    if (sigue) {
      pendiente += bytes[i];
      if (--faltan == 0) texto += std::exchange(pendiente, {});
      continue;
    }
    texto += "\xEF\xBF\xBD";
    pendiente.clear();
    faltan = 0;
    --i;
  }
  return faltan > 0 ? texto + "\xEF\xBF\xBD" : texto;
}

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
