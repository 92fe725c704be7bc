#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>

#include "ZorvePlatform/Linux/EntradaDeEscritorio.h"

namespace {

void exigir(bool seCumple) {
  if (!seCumple) std::abort();
}

std::string recortado(std::string const& texto) {
  auto const blanco = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  auto inicio = texto.begin();
  auto fin = texto.end();
  while (inicio != fin && blanco(*inicio)) ++inicio;
  while (fin != inicio && blanco(*(fin - 1))) --fin;
  return {inicio, fin};
}

/// The raw value of a key in the group, read line by line as the format's page tells it.
std::optional<std::string> crudo(std::string const& texto, std::string const& clave) {
  std::istringstream lineas{texto};
  bool dentro = false;
  for (std::string linea; std::getline(lineas, linea);) {
    linea = recortado(linea);
    if (!linea.empty() && linea[0] == '[') dentro = linea == "[Desktop Entry]";
    auto const igual = linea.find('=');
    if (!dentro || igual == std::string::npos || linea[0] == '#') continue;
    if (recortado(linea.substr(0, igual)) == clave) return recortado(linea.substr(igual + 1));
  }
  return std::nullopt;
}

void probar(std::string const& texto) {
  auto const entrada = zorve::leerEntradaDeEscritorio(texto);
  auto const exec = crudo(texto, "Exec");
  auto const tryExec = crudo(texto, "TryExec");
  exigir(entrada.tryExec.has_value() == tryExec.has_value());
  if (tryExec && !tryExec->contains('\\')) exigir(entrada.tryExec == tryExec);
  auto const oculta = crudo(texto, "Hidden");
  if (oculta && !oculta->contains('\\')) exigir(entrada.oculta == (oculta == "true"));
  if (!exec || exec->empty()) return exigir(entrada.programa.empty());
  exigir(entrada.programa.size() <= exec->size());
  if (exec->find_first_of("\\\"") == std::string::npos) {
    auto const fin = exec->find_first_of(" \t\r\n");
    exigir(entrada.programa == exec->substr(0, fin));
  }
}

}  // namespace

/// Any text is taken; what it says without escapes is what a plain reading of its lines says.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
