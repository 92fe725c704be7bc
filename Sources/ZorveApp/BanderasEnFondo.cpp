#include "ZorveApp/BanderasEnFondo.h"

namespace zorve {

bool BanderasEnFondo::bandera(std::string const& clave) const {
  return marcadas_.contains(clave) || BanderasDeUsuario{defaults_}.bandera(clave);
}

void BanderasEnFondo::marcar(std::string const& clave) {
  marcadas_.insert(clave);
  despachador_.enSegundoPlano([&defaults = defaults_, clave] { BanderasDeUsuario{defaults}.marcar(clave); });
}

}  // namespace zorve
