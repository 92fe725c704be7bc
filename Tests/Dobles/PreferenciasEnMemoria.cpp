#include "Dobles/PreferenciasEnMemoria.h"

#include <utility>

namespace zorve::dobles {

PreferenciasEnMemoria::PreferenciasEnMemoria(std::map<std::string, Valor> valores)
    : valores_{std::move(valores)} {}

std::expected<std::optional<Preferencias::Valor>, IndexError> PreferenciasEnMemoria::leer(
    std::string const& clave) const {
  std::scoped_lock const turno{cerrojo_};
  if (fallo_) return std::unexpected{*fallo_};
  auto const hallado = valores_.find(clave);
  return hallado == valores_.end() ? std::nullopt : std::optional{hallado->second};
}

std::expected<void, IndexError> PreferenciasEnMemoria::escribir(std::string const& clave,
                                                                Valor const& valor) {
  std::scoped_lock const turno{cerrojo_};
  if (fallo_) return std::unexpected{*fallo_};
  valores_.insert_or_assign(clave, valor);
  ++cambios_;
  return {};
}

std::expected<void, IndexError> PreferenciasEnMemoria::quitar(std::string const& clave) {
  std::scoped_lock const turno{cerrojo_};
  if (fallo_) return std::unexpected{*fallo_};
  valores_.erase(clave);
  ++cambios_;
  return {};
}

void PreferenciasEnMemoria::fallarCon(std::optional<IndexError> fallo) {
  std::scoped_lock const turno{cerrojo_};
  fallo_ = std::move(fallo);
}

int PreferenciasEnMemoria::cambios() const {
  std::scoped_lock const turno{cerrojo_};
  return cambios_;
}

}  // namespace zorve::dobles
