#include "ZorveCore/Texto/Escape.h"

namespace zorve {

std::string palabraDeShell(std::string_view texto) {
  std::string palabra = "'";
  for (char const byte : texto) {
    if (byte == '\'') {
      palabra += R"('\'')";
    } else {
      palabra += byte;
    }
  }
  return palabra + "'";
}

std::string palabraDeCualquierShell(std::string_view texto) {
  std::string palabra;
  while (!texto.empty()) {
    auto const llano = texto.substr(0, texto.find_first_of("'\\"));
    if (!llano.empty()) palabra += "'" + std::string{llano} + "'";
    texto.remove_prefix(llano.size());
    if (texto.empty()) break;
    palabra += '\\';
    palabra += texto.front();
    texto.remove_prefix(1);
  }
  return palabra.empty() ? "''" : palabra;
}

std::string literalDeAppleScript(std::string_view texto) {
  std::string literal = "\"";
  for (char const byte : texto) {
    if (byte == '\\' || byte == '"') literal += '\\';
    literal += byte;
  }
  return literal + "\"";
}

std::string ttyCorto(std::string_view tty) {
  constexpr std::string_view prefijo = "/dev/";
  return std::string{tty.starts_with(prefijo) ? tty.substr(prefijo.size()) : tty};
}

}  // namespace zorve
