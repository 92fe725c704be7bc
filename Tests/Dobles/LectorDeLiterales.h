#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zorve::dobles {

/// What AppleScript reads in `literal`, when that is one text literal and nothing else: between quotation
/// marks, a backslash stands before a backslash or a quotation mark. Nothing otherwise.
[[nodiscard]] inline std::optional<std::string> leerLiteralDeAppleScript(std::string_view literal) {
  if (literal.size() < 2 || literal.front() != '"' || literal.back() != '"') return std::nullopt;
  literal = literal.substr(1, literal.size() - 2);
  std::string texto;
  for (std::size_t i = 0; i < literal.size(); ++i) {
    if (literal[i] == '"') return std::nullopt;
    if (literal[i] == '\\') {
      ++i;
      if (i == literal.size() || (literal[i] != '\\' && literal[i] != '"')) return std::nullopt;
    }
    texto += literal[i];
  }
  return texto;
}

}  // namespace zorve::dobles
