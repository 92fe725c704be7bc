#include "ZorveApp/Observable.h"

#include <algorithm>

namespace zorve {

Suscripcion::Suscripcion(std::shared_ptr<std::function<void()>> observador)
    : observador_{std::move(observador)} {}

Suscripcion::Suscripcion(Suscripcion&& otra) noexcept : observador_{std::move(otra.observador_)} {}

Suscripcion& Suscripcion::operator=(Suscripcion&& otra) noexcept {
  if (this != &otra) {
    terminar();
    observador_ = std::move(otra.observador_);
  }
  return *this;
}

Suscripcion::~Suscripcion() { terminar(); }

void Suscripcion::terminar() { observador_.reset(); }

Suscripcion Observadores::anadir(std::function<void()> observador) {
  std::erase_if(lista_, [](auto const& uno) { return uno.expired(); });
  auto entrada = std::make_shared<std::function<void()>>(std::move(observador));
  lista_.push_back(entrada);
  return Suscripcion{std::move(entrada)};
}

void Observadores::avisar() {
  auto const deAhora = lista_;
  for (auto const& uno : deAhora) {
    if (auto const observador = uno.lock()) (*observador)();
  }
}

}  // namespace zorve
