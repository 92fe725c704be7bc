#pragma once

#include <QObject>
#include <QTimer>
#include <functional>

namespace zorve {

/// Gathers changes: `avisar` is called once, when the event loop comes round, however many were noted before.
/// Main thread only.
class AvisoUnico {
 public:
  explicit AvisoUnico(std::function<void()> avisar) {
    reloj_.setSingleShot(true);
    QObject::connect(&reloj_, &QTimer::timeout, &reloj_, std::move(avisar));
  }

  void anotar() {
    if (!reloj_.isActive()) reloj_.start();
  }
  /// What was noted is told otherwise.
  void olvidar() { reloj_.stop(); }

 private:
  QTimer reloj_;
};

}  // namespace zorve
