#include <cstdint>

#include "ZorveCore/Escape.h"
#include "ZorveTerminal/GuionDeShell.h"

namespace zorve {

namespace {

constexpr std::string_view alfabeto = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string sinOpciones(std::string const& directorio) {
  return directorio.empty() || directorio.starts_with('/') ? directorio : "./" + directorio;
}

}  // namespace

std::string base64(std::string_view texto) {
  std::string resultado;
  resultado.reserve((texto.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < texto.size(); i += 3) {
    auto const trozo = texto.substr(i, 3);
    std::uint32_t bits = 0;
    for (std::size_t j = 0; j < 3; ++j) {
      bits = (bits << 8U) | (j < trozo.size() ? static_cast<unsigned char>(trozo[j]) : 0U);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      resultado += j <= trozo.size() ? alfabeto[(bits >> (18 - 6 * j)) & 63U] : '=';
    }
  }
  return resultado;
}

std::vector<std::string> palabrasDelGuion(OrdenParaLaShell const& orden) {
  std::string texto = "set --";
  for (auto const& palabra :
       {sinOpciones(orden.directorio), orden.comando, orden.shell, orden.casa, orden.senal}) {
    texto += " " + palabraDeShell(palabra);
  }
  texto += "\n" + std::string{guionDeShell()};
  return {"/bin/sh", "-c", "eval \"$(printf %s " + base64(texto) + "|base64 -d)\"", "zorve"};
}

}  // namespace zorve
