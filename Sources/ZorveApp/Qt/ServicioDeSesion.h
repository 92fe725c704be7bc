#pragma once

#include <QObject>
#include <QVariantMap>
#include <cstdint>
#include <functional>

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
    sinBus,   ///< there is no session bus; nobody can be asked
  };

  explicit ServicioDeSesion(std::function<void()> alActivar, QObject* padre = nullptr);

  /// Takes the name, or asks whoever has it to show its panel. Once.
  [[nodiscard]] Turno ocupar();
  /// Gives the name back, so that a program started from now on is the first.
  void soltar();

 public Q_SLOTS:
  // The method that other programs call.
  Q_SCRIPTABLE void Activate(QVariantMap const& datosDePlataforma);

 private:
  std::function<void()> alActivar_;
};

}  // namespace zorve
