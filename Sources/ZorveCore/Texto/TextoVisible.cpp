#include "ZorveCore/Texto/TextoVisible.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "ZorveCore/Texto/PuntoOculto.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

constexpr std::string_view puntos = "…";
constexpr std::string_view reemplazo = "\uFFFD";
constexpr std::int32_t primerDibujo = 0x2400;
constexpr std::int32_t dibujoDeSuprimir = 0x2421;
constexpr std::int32_t suprimir = 0x7F;

void agregarPunto(std::string& destino, std::int32_t punto) {
  std::array<utf8proc_uint8_t, 4> bytes{};
  auto const cuantos = utf8proc_encode_char(punto, bytes.data());
  destino.append(reinterpret_cast<char const*>(bytes.data()), static_cast<std::size_t>(cuantos));
}

void agregarNombre(std::string& destino, std::int32_t punto) {
  constexpr std::string_view cifras = "0123456789ABCDEF";
  destino += "<U+";
  for (int desplazo = 12; desplazo >= 0; desplazo -= 4) {
    destino += cifras[static_cast<std::size_t>(punto >> desplazo) & 0xFU];
  }
  destino += '>';
}

void agregarVisible(std::string& destino, std::int32_t punto, std::string_view bytes) {
  if (punto < 0) {
    destino += reemplazo;
  } else if (punto < ' ') {
    agregarPunto(destino, primerDibujo + punto);
  } else if (punto == suprimir) {
    agregarPunto(destino, dibujoDeSuprimir);
  } else if (seOculta(punto)) {
    agregarNombre(destino, punto);
  } else {
    destino += bytes;
  }
}

std::size_t comienzoQueCabe(std::string_view texto, std::size_t columnas) {
  std::size_t bytes = 0;
  std::size_t usadas = 0;
  while (bytes < texto.size()) {
    auto const caracter = primerosCaracteres(texto.substr(bytes), 1);
    usadas += columnasDe(caracter);
    if (usadas > columnas) break;
    bytes += caracter.size();
  }
  return bytes;
}

std::vector<std::string_view> caracteresDe(std::string_view texto) {
  std::vector<std::string_view> caracteres;
  while (!texto.empty()) {
    caracteres.push_back(primerosCaracteres(texto, 1));
    texto.remove_prefix(caracteres.back().size());
  }
  return caracteres;
}

std::size_t finalQueCabe(std::string_view texto, std::size_t columnas) {
  auto const caracteres = caracteresDe(texto);
  std::size_t bytes = 0;
  std::size_t usadas = 0;
  for (auto uno = caracteres.rbegin(); uno != caracteres.rend(); ++uno) {
    usadas += columnasDe(*uno);
    if (usadas > columnas) break;
    bytes += uno->size();
  }
  return bytes;
}

}  // namespace

std::string textoVisible(std::string_view texto) {
  std::string visible;
  visible.reserve(texto.size());
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    agregarVisible(visible, punto, texto.substr(0, bytes));
    texto.remove_prefix(bytes);
  }
  return visible;
}

std::size_t columnasDe(std::string_view texto) {
  std::size_t columnas = 0;
  while (!texto.empty()) {
    auto const [punto, bytes] = puntoAlInicio(texto);
    columnas += punto < suprimir ? 1 : static_cast<std::size_t>(std::max(0, utf8proc_charwidth(punto)));
    texto.remove_prefix(bytes);
  }
  return columnas;
}

std::string cortadoAlFinal(std::string_view texto, std::size_t columnas) {
  if (columnasDe(texto) <= columnas) return std::string{texto};
  if (columnas == 0) return {};
  return std::string{texto.substr(0, comienzoQueCabe(texto, columnas - 1))} + std::string{puntos};
}

std::string cortadoAlPrincipio(std::string_view texto, std::size_t columnas) {
  if (columnasDe(texto) <= columnas) return std::string{texto};
  if (columnas == 0) return {};
  return std::string{puntos} + std::string{texto.substr(texto.size() - finalQueCabe(texto, columnas - 1))};
}

}  // namespace zorve
