#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ArbolJson.h"
#include "Descifrado.h"
#include "Exigir.h"
#include "ZorveTerminal/Sway.h"
#include "ZorveTerminal/VentanasDeKWin.h"

namespace zorve::fuzz {
namespace {

using namespace ayudante;

void recoger(NodoJson const& nodo, std::vector<Ventana>& ventanas) {
  auto const id = nodo.entero("id").value_or(0);
  auto const pid = nodo.entero("pid").value_or(0);
  auto const* const concha = nodo.texto("shell");
  bool const deX = concha != nullptr && *concha == "xwayland";
  if (id > 0 && pid > 0 && std::in_range<pid_t>(pid) && !deX) {
    auto const* const titulo = nodo.texto("name");
    auto const* const enfocada = nodo.cierto("focused");
    ventanas.push_back({static_cast<std::uint64_t>(id), static_cast<pid_t>(pid),
                        titulo == nullptr ? "" : *titulo, enfocada != nullptr && *enfocada});
  }
  for (auto const* const clave : {"nodes", "floating_nodes"}) {
    auto const* const hijos = nodo.de(clave);
    if (hijos == nullptr || !hijos->esLista) continue;
    for (auto const& hijo : hijos->hijos) recoger(hijo, ventanas);
  }
}

void sway(std::string_view bytes) {
  auto const ventanas = ventanasDelArbol(bytes);
  auto const arbol = leerArbol(descifradoByteAByte(bytes));
  if (arbol.noSabe) return;
  std::vector<Ventana> esperadas;
  if (arbol.raiz) recoger(*arbol.raiz, esperadas);
  exigir(ventanas == esperadas);
}

void kwin(std::string_view bytes) {
  auto const ventanas = ventanasDeLaRespuesta(bytes);
  auto const arbol = leerArbol(bytes);
  if (arbol.noSabe) return;
  std::vector<VentanaDeKWin> esperadas;
  if (arbol.raiz && arbol.raiz->esLista) {
    for (auto const& una : arbol.raiz->hijos) {
      auto const* const nombre = una.texto("id");
      auto const* const titulo = una.texto("name");
      auto const* const enfocada = una.cierto("focused");
      auto const pid = una.entero("pid");
      if (nombre == nullptr || titulo == nullptr || enfocada == nullptr || !pid) continue;
      if (nombre->empty() || nombre->find_first_not_of("0123456789abcdef{}-") != std::string::npos) continue;
      if (!std::in_range<pid_t>(*pid)) continue;
      esperadas.push_back({*nombre, {0, static_cast<pid_t>(*pid), *titulo, *enfocada}});
    }
  }
  exigir(ventanas == esperadas);
}

}  // namespace
}  // namespace zorve::fuzz

/// Whatever sway or a script inside KWin answers, the windows are those that another parser finds there.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  std::string_view const bytes{reinterpret_cast<char const*>(datos), largo};
  zorve::fuzz::sway(bytes);
  zorve::fuzz::kwin(bytes);
  return 0;
}
