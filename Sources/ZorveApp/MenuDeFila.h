#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "ZorveApp/Idioma.h"
#include "ZorveCore/Modelo.h"

namespace zorve {

/// An entry of a row's menu.
struct EntradaDelMenuDeFila {
  enum class Clase : std::uint8_t {
    abrir,
    copiarIdentificador,
    copiarComando,
    copiarDirectorio,
    mostrarDirectorio
  };
  Clase clase = Clase::abrir;
  std::string_view titulo;
  bool operator==(EntradaDelMenuDeFila const&) const = default;
};

/// What can be done with the session, in order: what cannot is left out. `seMuestranDirectorios`: whether
/// there is a file manager to show one in.
[[nodiscard]] std::vector<EntradaDelMenuDeFila> menuDeFila(Session const& sesion, bool seMuestranDirectorios,
                                                           Idioma idioma);

}  // namespace zorve
