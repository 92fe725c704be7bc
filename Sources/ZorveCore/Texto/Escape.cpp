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
