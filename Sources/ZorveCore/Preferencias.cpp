#include "ZorveCore/Preferencias.h"

namespace zorve {

std::optional<std::string> textoGuardado(Preferencias const& preferencias, std::string const& clave) {
  auto const valor = preferencias.leer(clave);
  if (!valor || !*valor) return std::nullopt;
  auto const* texto = std::get_if<std::string>(&**valor);
  return texto == nullptr ? std::nullopt : std::optional{*texto};
}

}  // namespace zorve
