#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zorve {

/// An observer's place in a list of observers. It ends when it is destroyed, assigned over or `terminar` is
/// called; the observed object may be gone by then.
class [[nodiscard]] Suscripcion {
 public:
  Suscripcion() = default;
  explicit Suscripcion(std::shared_ptr<std::function<void()>> observador);
  Suscripcion(Suscripcion&& otra) noexcept;
  Suscripcion& operator=(Suscripcion&& otra) noexcept;
  Suscripcion(Suscripcion const&) = delete;
  Suscripcion& operator=(Suscripcion const&) = delete;
  ~Suscripcion();

  void terminar();

 private:
  std::shared_ptr<std::function<void()>> observador_;
};

/// Who wants to hear of changes. One thread only. While a change is told, observers may subscribe,
/// end subscriptions (theirs or others'), cause further changes and destroy the list.
class Observadores {
 public:
  Suscripcion anadir(std::function<void()> observador);
  /// Calls every observer that is subscribed now and still is when its turn comes, in order of subscription.
  void avisar();

 private:
  std::vector<std::weak_ptr<std::function<void()>>> lista_;
};

/// A property that tells its observers of real changes only. One thread only.
template <class T>
class Observable {
 public:
  Observable() = default;
  explicit Observable(T inicial) : valor_{std::move(inicial)} {}

  [[nodiscard]] T const& operator*() const { return valor_; }
  [[nodiscard]] T const* operator->() const { return &valor_; }

  /// Stores `nuevo` and, if it differs from the value held, tells the observers. Gives whether it differed.
  bool escribir(T nuevo) {
    if (nuevo == valor_) return false;
    valor_ = std::move(nuevo);
    observadores_.avisar();
    return true;
  }

  /// `observador` is called after each change until the subscription ends.
  Suscripcion observar(std::function<void()> observador) const {
    return observadores_.anadir(std::move(observador));
  }

 private:
  T valor_{};
  mutable Observadores observadores_;
};

/// `observador` is called after each change of any of `propiedades`, until the subscriptions end.
template <class... T>
[[nodiscard]] std::vector<Suscripcion> observarTodas(std::function<void()> const& observador,
                                                     Observable<T> const&... propiedades) {
  std::vector<Suscripcion> todas;
  todas.reserve(sizeof...(T));
  (todas.push_back(propiedades.observar(observador)), ...);
  return todas;
}

}  // namespace zorve
