#include "ZorveCore/Texto/Texto.h"

#include <utf8proc.h>

#include <algorithm>

namespace zorve {

namespace {

constexpr std::string_view reemplazo = "\xEF\xBF\xBD";

constexpr bool esByteAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }

constexpr bool esBlanco(std::int32_t punto) {
  if (punto < 0x80) return punto == ' ' || (punto >= '\t' && punto <= '\r');
  return punto == 0x85 || punto == 0xA0 || punto == 0x1680 || (punto >= 0x2000 && punto <= 0x200A) ||
         punto == 0x2028 || punto == 0x2029 || punto == 0x202F || punto == 0x205F || punto == 0x3000;
}

std::size_t blancosAlInicio(std::string_view texto) {
  std::size_t pasados = 0;
  while (pasados < texto.size()) {
    auto const [punto, bytes] = puntoAlInicio(texto.substr(pasados));
    if (!esBlanco(punto)) break;
    pasados += bytes;
  }
  return pasados;
}

std::size_t noBlancosAlInicio(std::string_view texto) {
  std::size_t pasados = 0;
  while (pasados < texto.size()) {
    auto const [punto, bytes] = puntoAlInicio(texto.substr(pasados));
    if (esBlanco(punto)) break;
    pasados += bytes;
  }
  return pasados;
}

std::size_t bytesDelUltimo(std::string_view texto) {
  for (std::size_t bytes = 2; bytes <= std::min<std::size_t>(4, texto.size()); ++bytes) {
    auto const cola = texto.substr(texto.size() - bytes);
    if (auto const inicio = puntoAlInicio(cola); inicio.valor >= 0 && inicio.bytes == bytes) return bytes;
  }
  return 1;
}

bool estaEntre(char byte, unsigned char primero, unsigned char ultimo) {
  auto const valor = static_cast<unsigned char>(byte);
  return valor >= primero && valor <= ultimo;
}

/// How many bytes a character takes that begins with this one; 0 when none does.
std::size_t bytesQuePide(char primero) {
  if (estaEntre(primero, 0xC2, 0xDF)) return 2;
  if (estaEntre(primero, 0xE0, 0xEF)) return 3;
  return estaEntre(primero, 0xF0, 0xF4) ? 4 : 0;
}

bool puedeSerSegundo(char primero, char segundo) {
  switch (static_cast<unsigned char>(primero)) {
    case 0xE0:
      return estaEntre(segundo, 0xA0, 0xBF);
    case 0xED:
      return estaEntre(segundo, 0x80, 0x9F);
    case 0xF0:
      return estaEntre(segundo, 0x90, 0xBF);
    case 0xF4:
      return estaEntre(segundo, 0x80, 0x8F);
    default:
      return estaEntre(segundo, 0x80, 0xBF);
  }
}

/// The length of the maximal subpart at the start of `texto`, which begins with no whole character.
std::size_t subparteMaxima(std::string_view texto) {
  auto const pide = std::min(bytesQuePide(texto.front()), texto.size());
  if (pide < 2 || !puedeSerSegundo(texto[0], texto[1])) return 1;
  return pide > 2 && estaEntre(texto[2], 0x80, 0xBF) ? 3 : 2;
}

bool seSeparan(std::int32_t antes, std::int32_t despues, utf8proc_int32_t& estado) {
  if (antes < 0 || despues < 0) {
    estado = 0;
    return true;
  }
  return utf8proc_grapheme_break_stateful(antes, despues, &estado) != 0;
}

}  // namespace

bool esAscii(std::string_view texto) {
  constexpr std::size_t bloque = 64;
  while (texto.size() >= bloque) {
    unsigned char junto = 0;
    for (std::size_t i = 0; i < bloque; ++i) junto |= static_cast<unsigned char>(texto[i]);
    if (junto >= 0x80) return false;
    texto.remove_prefix(bloque);
  }
  return std::ranges::all_of(texto, [](char byte) { return esByteAscii(byte); });
}

PuntoDeCodigo puntoAlInicio(std::string_view texto) {
  if (esByteAscii(texto.front())) return {texto.front(), 1};
  utf8proc_int32_t punto = -1;
  auto const bytes =
      utf8proc_iterate(reinterpret_cast<utf8proc_uint8_t const*>(texto.data()),
                       static_cast<utf8proc_ssize_t>(std::min<std::size_t>(texto.size(), 4)), &punto);
  if (bytes <= 0) return {-1, 1};
  return {punto, static_cast<std::size_t>(bytes)};
}

std::string_view recortar(std::string_view texto) {
  texto.remove_prefix(blancosAlInicio(texto));
  while (!texto.empty()) {
    auto const bytes = bytesDelUltimo(texto);
    if (!esBlanco(puntoAlInicio(texto.substr(texto.size() - bytes)).valor)) break;
    texto.remove_suffix(bytes);
  }
  return texto;
}

std::string_view sacarPalabra(std::string_view& resto) {
  resto.remove_prefix(blancosAlInicio(resto));
  auto const palabra = resto.substr(0, noBlancosAlInicio(resto));
  resto.remove_prefix(palabra.size());
  return palabra;
}

std::vector<std::string_view> palabras(std::string_view texto) {
  std::vector<std::string_view> piezas;
  for (auto pieza = sacarPalabra(texto); !pieza.empty(); pieza = sacarPalabra(texto)) piezas.push_back(pieza);
  return piezas;
}

std::string_view recortarAscii(std::string_view texto) {
  constexpr std::string_view blancos = " \t\r\n";
  auto const primera = texto.find_first_not_of(blancos);
  if (primera == std::string_view::npos) return {};
  return texto.substr(primera, texto.find_last_not_of(blancos) - primera + 1);
}

std::string_view sacarLinea(std::string_view& resto) {
  auto const linea = resto.substr(0, resto.find('\n'));
  resto.remove_prefix(std::min(linea.size() + 1, resto.size()));
  return linea;
}

std::string_view primerosCaracteres(std::string_view texto, std::size_t cuantos) {
  if (texto.size() <= cuantos) return texto;
  std::size_t posicion = 0;
  std::size_t contados = 0;
  std::int32_t anterior = -1;
  utf8proc_int32_t estado = 0;
  while (posicion < texto.size()) {
    auto const [punto, bytes] = puntoAlInicio(texto.substr(posicion));
    if (posicion == 0 || seSeparan(anterior, punto, estado)) {
      if (contados == cuantos) return texto.substr(0, posicion);
      ++contados;
    }
    anterior = punto;
    posicion += bytes;
  }
  return texto;
}

std::string conUtf8Valido(std::string_view texto) {
  std::string valido;
  valido.reserve(texto.size());
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    valido += punto < 0 ? reemplazo : texto.substr(0, bytes);
    texto.remove_prefix(punto < 0 ? subparteMaxima(texto) : bytes);
  }
  return valido;
}

}  // namespace zorve
