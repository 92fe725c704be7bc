#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ZorveApp/Idioma.h"
#include "ZorveApp/Observable.h"

namespace zorve {

/// Whether the desktop lets windows be brought to the front, where that is a matter of a switch of its own:
/// GNOME's, with an extension of ours. Main thread only; nothing waits for the desktop.
class InterruptorDeVentanas {
 public:
  enum class Estado : std::uint8_t { encendido, apagado, alProximoInicio, noInstalado };

  /// Why it could not be switched; `detalle` is the desktop's own description, with `rehusado` alone.
  struct Rechazo {
    enum class Caso : std::uint8_t { rehusado, todasApagadas, alProximoInicio, noInstalado };
    Caso caso = Caso::rehusado;
    std::string detalle = {};
    bool operator==(Rechazo const&) const = default;
  };

  InterruptorDeVentanas() = default;
  InterruptorDeVentanas(InterruptorDeVentanas const&) = delete;
  InterruptorDeVentanas& operator=(InterruptorDeVentanas const&) = delete;
  virtual ~InterruptorDeVentanas() = default;

  /// Nothing until the desktop has answered for the first time.
  [[nodiscard]] Observable<std::optional<Estado>> const& estado() const { return estado_; }
  /// Of the last attempt; gone with the next one and the next look.
  [[nodiscard]] Observable<std::optional<Rechazo>> const& rechazo() const { return rechazo_; }
  /// Asks the desktop again.
  virtual void mirar() = 0;
  virtual void alternar() = 0;

 protected:
  Observable<std::optional<Estado>> estado_;
  Observable<std::optional<Rechazo>> rechazo_;
};

/// The texts of that switch.
namespace TextosDelInterruptor {

[[nodiscard]] std::string_view titulo(Idioma idioma);
[[nodiscard]] std::string_view nota(InterruptorDeVentanas::Estado estado, Idioma idioma);
/// A line of the settings' band.
[[nodiscard]] std::string banda(InterruptorDeVentanas::Rechazo const& rechazo, Idioma idioma);
/// A line of the panel's band, after the one that says that a session cannot be focused.
[[nodiscard]] std::string_view consejo(Idioma idioma);

}  // namespace TextosDelInterruptor
}  // namespace zorve
