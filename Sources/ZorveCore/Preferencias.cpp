#include "ZorveCore/Preferencias.h"

namespace zorve {

std::expected<std::optional<std::string>, IndexError> leerTexto(Preferencias const& preferencias,
                                                                std::string const& clave) {
  auto const valor = preferencias.leer(clave);
  if (!valor) return std::unexpected{valor.error()};
  auto const* texto = *valor ? std::get_if<std::string>(&**valor) : nullptr;
  return texto == nullptr ? std::nullopt : std::optional{*texto};
}

std::optional<std::string> textoGuardado(Preferencias const& preferencias, std::string const& clave) {
  return leerTexto(preferencias, clave).value_or(std::nullopt);
}

}  // namespace zorve
