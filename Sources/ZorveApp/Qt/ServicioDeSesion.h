#pragma once

#include <QObject>
#include <QVariantMap>
#include <cstdint>
#include <functional>

#include "ZorveApp/Qt/Testigo.h"

namespace zorve {

/// The program's place on the session bus: the name com.sarnol.zorve and
/// org.freedesktop.Application.Activate, nothing else. Main thread only.
class ServicioDeSesion final : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  enum class Turno : std::uint8_t {
    primero,  ///< the name is ours
    segundo,  ///< another one has it and has been asked to show its panel
    mudo,     ///< another one has it and does not answer
    sinBus,   ///< there is no session bus; nobody can be asked
  };

  /// `alActivar` gets the caller's leave to come to the front.
  explicit ServicioDeSesion(std::function<void(Testigo)> alActivar, QObject* padre = nullptr);

  /// Takes the name, or asks whoever has it to show its panel by `testigo`. Once.
  [[nodiscard]] Turno ocupar(Testigo const& testigo);
  /// Gives the name back, so that a program started from now on is the first.
  void soltar();

 public Q_SLOTS:
  // The method that other programs call.
  Q_SCRIPTABLE void Activate(QVariantMap const& datosDePlataforma);

 private:
  std::function<void(Testigo)> alActivar_;
};

}  // namespace zorve
