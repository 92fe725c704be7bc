#pragma once

#include <string_view>
#include <vector>

namespace zorve::dobles {

/// Unicode white space (White_Space in PropList.txt of the Unicode Character Database), by its bytes.
inline constexpr std::string_view blancosDeUnicode[] = {
    " ",      "\t",     "\n",     "\v",     "\f",     "\r",     "\u0085", "\u00A0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006", "\u2007", "\u2008",
    "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"};

/// The bytes of the white space that `texto` begins with, 0 for none.
[[nodiscard]] inline std::size_t blancoAlPrincipio(std::string_view texto) {
  for (auto const blanco : blancosDeUnicode) {
    if (texto.starts_with(blanco)) return blanco.size();
  }
  return 0;
}

/// `texto` without white space at its ends.
[[nodiscard]] inline std::string_view sinBlancos(std::string_view texto) {
  for (bool cambia = true; cambia;) {
    cambia = false;
    for (auto const blanco : blancosDeUnicode) {
      if (texto.starts_with(blanco)) texto.remove_prefix(blanco.size()), cambia = true;
      if (texto.ends_with(blanco)) texto.remove_suffix(blanco.size()), cambia = true;
    }
  }
  return texto;
}

/// What stands between white space, in its order.
[[nodiscard]] inline std::vector<std::string_view> entreBlancos(std::string_view texto) {
  std::vector<std::string_view> trozos;
  for (texto = sinBlancos(texto); !texto.empty(); texto = sinBlancos(texto)) {
    std::size_t largo = 0;
    while (largo < texto.size() && blancoAlPrincipio(texto.substr(largo)) == 0) ++largo;
    trozos.push_back(texto.substr(0, largo));
    texto.remove_prefix(largo);
  }
  return trozos;
}

}  // namespace zorve::dobles
