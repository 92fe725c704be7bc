#pragma once

#include <QDBusContext>
#include <QObject>
#include <QVariantMap>
#include <cstdint>
#include <functional>

#include "ZorveApp/Qt/Activacion/Testigo.h"

namespace zorve {

/// The program's place on the session bus: the name com.sarnol.zorve and
/// org.freedesktop.Application.Activate, nothing else. Main thread only.
class ServicioDeSesion final : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  enum class Turno : std::uint8_t {
    primero,  ///< the name is ours
    segundo,  ///< another one has it and has been asked to show its panel
    mudo,     ///< another one has it and does not answer
    ajeno,    ///< another program has it, or another user's; it was told nothing
    sinBus,   ///< there is no session bus; nobody can be asked
  };

  /// Who calls: this very program, started again by the person, or anybody on the bus.
  enum class Quien : std::uint8_t { nosotros, cualquiera };

  /// `alActivar` gets the caller's leave to come to the front.
  explicit ServicioDeSesion(std::function<void(Testigo, Quien)> alActivar, QObject* padre = nullptr);

  /// Takes the name, or asks whoever has it to show its panel by `testigo`, if that is this very program of
  /// this user's. Once.
  [[nodiscard]] Turno ocupar(Testigo const& testigo);
  /// Gives the name back, so that a program started from now on is the first.
  void soltar();

 public Q_SLOTS:
  // The method that other programs call.
  Q_SCRIPTABLE void Activate(QVariantMap const& datosDePlataforma);

 private:
  std::function<void(Testigo, Quien)> alActivar_;
};

}  // namespace zorve
