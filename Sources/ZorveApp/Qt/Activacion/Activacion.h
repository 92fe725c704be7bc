#pragma once

#include <QWindow>
#include <chrono>
#include <functional>
#include <memory>

#include "ZorveApp/Qt/Activacion/Testigo.h"

namespace zorve {

/// Who may come to the front: the leave that others give us for our windows, and the one that we ask for
/// those of the programs that we start. Main thread only.
class Activacion {
 public:
  Activacion() = default;
  Activacion(Activacion const&) = delete;
  Activacion& operator=(Activacion const&) = delete;
  virtual ~Activacion() = default;

  /// The next window to come to the front does so by `testigo`.
  virtual void recibir(Testigo testigo) = 0;
  /// `ventana`, which has just been shown, to the front with the keyboard.
  virtual void alFrente(QWindow& ventana) = 0;
  /// What was received has served, or no window will come of it: the desktop waits no longer.
  virtual void agotar() = 0;
  /// Calls `alTener`, once and soon, with a leave for another program's window, for what the person has just
  /// done in ours; it is empty where the desktop gives none.
  virtual void pedir(std::function<void(Testigo)> alTener) = 0;
};

/// Asks from another thread, which waits for `plazo` at most; empty after it.
[[nodiscard]] Testigo pedirDesdeOtroHilo(Activacion& activacion, std::chrono::milliseconds plazo);

/// For the window system in use.
[[nodiscard]] std::unique_ptr<Activacion> activacionEnUso();

}  // namespace zorve
