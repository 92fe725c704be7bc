#include "ZorveTerminal/EleccionDeVentana.h"

#include <algorithm>
#include <iterator>

namespace zorve::ayudante {

std::vector<Ventana> delMasCercano(std::span<Ventana const> ventanas, std::span<pid_t const> ascendencia) {
  std::vector<Ventana> suyas;
  for (auto const pid : ascendencia) {
    std::ranges::copy_if(ventanas, std::back_inserter(suyas),
                         [pid](auto const& una) { return una.pid == pid; });
    if (!suyas.empty()) break;
  }
  return suyas;
}

std::expected<std::uint64_t, SinVentana> ventanaDe(std::span<Ventana const> ventanas,
                                                   std::span<pid_t const> ascendencia, std::uint64_t propia) {
  auto const escrita = std::ranges::find(ventanas, propia, &Ventana::id);
  if (propia != 0 && escrita != ventanas.end() &&
      std::ranges::find(ascendencia, escrita->pid) != ascendencia.end()) {
    return propia;
  }
  auto const suyas = delMasCercano(ventanas, ascendencia);
  if (suyas.empty()) return std::unexpected{SinVentana::ninguna};
  if (suyas.size() > 1) return std::unexpected{SinVentana::varias};
  return suyas.front().id;
}

}  // namespace zorve::ayudante
