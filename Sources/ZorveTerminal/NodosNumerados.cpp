#include "ZorveTerminal/NodosNumerados.h"

#include <algorithm>
#include <string>

#include "ZorveCore/Texto/Entero.h"

namespace zorve::ayudante {

std::vector<std::uint32_t> nodosNumerados(std::string_view introspeccion, std::string_view prefijo) {
  auto const principio = "<node name=\"" + std::string{prefijo};
  std::vector<std::uint32_t> numeros;
  for (auto i = introspeccion.find(principio); i != std::string_view::npos;
       i = introspeccion.find(principio)) {
    introspeccion.remove_prefix(i + principio.size());
    auto const nombre = introspeccion.substr(0, introspeccion.find('"'));
    if (auto const numero = enteroEn<std::uint32_t>(nombre)) numeros.push_back(*numero);
  }
  std::ranges::sort(numeros);
  return numeros;
}

}  // namespace zorve::ayudante
