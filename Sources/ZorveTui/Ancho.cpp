#include "ZorveTui/Ancho.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "ZorveCore/Texto/Texto.h"

namespace zorve::tui {

namespace {

constexpr std::int32_t unionSinAncho = 0x200D;
constexpr std::int32_t comoDibujo = 0xFE0F;
constexpr std::size_t deDosColumnas = 2;

bool esIndicadorDeRegion(std::int32_t punto) { return punto >= 0x1F1E6 && punto <= 0x1F1FF; }
bool esTonoDePiel(std::int32_t punto) { return punto >= 0x1F3FB && punto <= 0x1F3FF; }

/// What makes one picture of two columns out of several code points.
bool esDibujoCompuesto(std::int32_t punto) {
  return punto == unionSinAncho || punto == comoDibujo || esIndicadorDeRegion(punto) || esTonoDePiel(punto);
}

struct Suma {
  std::size_t columnas = 0;
  std::size_t puntos = 0;
  bool compuesto = false;
};

Suma sumar(std::string_view caracter) {
  Suma suma;
  while (!caracter.empty()) {
    auto const [punto, bytes] = puntoAlInicio(caracter);
    suma.compuesto = suma.compuesto || (esDibujoCompuesto(punto) && suma.puntos > 0);
    suma.columnas += static_cast<std::size_t>(std::max(0, punto < 0 ? 1 : utf8proc_charwidth(punto)));
    ++suma.puntos;
    caracter.remove_prefix(bytes);
  }
  return suma;
}

}  // namespace

std::string_view sacarCaracter(std::string_view& resto) {
  auto const caracter = primerosCaracteres(resto, 1);
  resto.remove_prefix(caracter.size());
  return caracter;
}

std::size_t anchoDeCaracter(std::string_view caracter) {
  if (caracter.size() == 1) return 1;
  auto const suma = sumar(caracter);
  if (suma.compuesto && suma.columnas > 0) return deDosColumnas;
  return std::min(suma.columnas, deDosColumnas);
}

bool anchoDudoso(std::string_view caracter) {
  return caracter.size() > 1 && (anchoDeCaracter(caracter) != 1 || sumar(caracter).puntos > 1);
}

std::size_t anchoDe(std::string_view texto) {
  if (esAscii(texto)) return texto.size();
  std::size_t columnas = 0;
  while (!texto.empty()) columnas += anchoDeCaracter(sacarCaracter(texto));
  return columnas;
}

std::string hastaDonde(std::string_view texto, std::size_t columnas) {
  if (anchoDe(texto) <= columnas) return std::string{texto};
  if (columnas == 0) return {};
  std::string cabe;
  auto quedan = columnas - 1;
  for (auto resto = texto; !resto.empty();) {
    auto const caracter = sacarCaracter(resto);
    auto const ancho = anchoDeCaracter(caracter);
    if (ancho > quedan) break;
    quedan -= ancho;
    cabe += caracter;
  }
  return cabe + "…";
}

std::string desdeDonde(std::string_view texto, std::size_t columnas) {
  if (anchoDe(texto) <= columnas) return std::string{texto};
  if (columnas == 0) return {};
  std::vector<std::string_view> caracteres;
  for (auto resto = texto; !resto.empty();) caracteres.push_back(sacarCaracter(resto));
  auto quedan = columnas - 1;
  std::size_t bytes = 0;
  for (auto uno = caracteres.rbegin(); uno != caracteres.rend(); ++uno) {
    auto const ancho = anchoDeCaracter(*uno);
    if (ancho > quedan) break;
    quedan -= ancho;
    bytes += uno->size();
  }
  return "…" + std::string{texto.substr(texto.size() - bytes)};
}

}  // namespace zorve::tui
