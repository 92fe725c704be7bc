#include "ZorvePlatform/Linux/EntradaDeEscritorio.h"

#include <map>

#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

std::map<std::string_view, std::string_view> clavesDelGrupo(std::string_view texto) {
  std::map<std::string_view, std::string_view> claves;
  bool dentro = false;
  while (!texto.empty()) {
    auto const linea = recortarAscii(sacarLinea(texto));
    if (linea.starts_with('[')) dentro = linea == "[Desktop Entry]";
    auto const igual = linea.find('=');
    if (!dentro || linea.starts_with('#') || igual == std::string_view::npos) continue;
    claves.try_emplace(recortarAscii(linea.substr(0, igual)), recortarAscii(linea.substr(igual + 1)));
  }
  return claves;
}

char desescapado(char c) {
  switch (c) {
    case 's':
      return ' ';
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'r':
      return '\r';
    default:
      return c;
  }
}

/// The value of a string key: \s, \n, \t, \r and \\ stand for one character each.
std::string valorDe(std::string_view crudo) {
  std::string valor;
  for (std::size_t i = 0; i < crudo.size(); ++i) {
    bool const escapado = crudo[i] == '\\' && i + 1 < crudo.size();
    valor += escapado ? desescapado(crudo[++i]) : crudo[i];
  }
  return valor;
}

/// The first word of a command line; a word in quotation marks may hold blanks and backslash escapes.
std::string primeraPalabra(std::string_view linea) {
  auto const inicio = linea.find_first_not_of(" \t\n\r");
  if (inicio == std::string_view::npos) return {};
  linea.remove_prefix(inicio);
  if (!linea.starts_with('"')) return std::string{linea.substr(0, linea.find_first_of(" \t\n\r"))};
  std::string palabra;
  for (std::size_t i = 1; i < linea.size() && linea[i] != '"'; ++i) {
    if (linea[i] == '\\' && i + 1 < linea.size()) ++i;
    palabra += linea[i];
  }
  return palabra;
}

}  // namespace

EntradaDeEscritorio leerEntradaDeEscritorio(std::string_view texto) {
  auto const claves = clavesDelGrupo(texto);
  auto const valor = [&](std::string_view clave) {
    auto const hallada = claves.find(clave);
    return hallada == claves.end() ? std::nullopt : std::optional{valorDe(hallada->second)};
  };
  return {.tryExec = valor("TryExec"),
          .programa = primeraPalabra(valor("Exec").value_or("")),
          .oculta = valor("Hidden") == "true"};
}

}  // namespace zorve
