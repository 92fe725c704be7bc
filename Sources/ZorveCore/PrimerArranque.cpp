#include "ZorveCore/PrimerArranque.h"

namespace zorve {

bool BanderasDeUsuario::bandera(std::string const& clave) const {
  auto const valor = defaults_.leer(clave);
  if (!valor) return true;
  if (!*valor) return false;
  auto const* bandera = std::get_if<bool>(&**valor);
  return bandera != nullptr && *bandera;
}

void BanderasDeUsuario::marcar(std::string const& clave) {
  [[maybe_unused]] auto const guardada = defaults_.escribir(clave, true);
}

bool PrimerArranque::debeMostrarElPanel() const {
  if (almacen.bandera(clave)) return false;
  almacen.marcar(clave);
  return true;
}

}  // namespace zorve
