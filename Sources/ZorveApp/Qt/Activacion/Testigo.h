#pragma once

#include <QString>
#include <QVariantMap>
#include <string>
#include <vector>

namespace zorve {

/// The desktop's leave for one window to come to the front with the keyboard: an activation token, the
/// identifier of an announced start (X11), both, or neither. One with control characters or longer than any
/// desktop's does not count. Plain values; any thread.
struct Testigo {
  QString activacion;
  QString arranque;
  bool operator==(Testigo const&) const = default;

  /// What this process was started with, taken out of its environment, so that no child inherits it. Before
  /// the toolkit and other threads run.
  [[nodiscard]] static Testigo tomarDelEntorno();
  /// From the platform data of a call to org.freedesktop.Application.
  [[nodiscard]] static Testigo de(QVariantMap const& datosDePlataforma);

  [[nodiscard]] bool vacio() const { return activacion.isEmpty() && arranque.isEmpty(); }
  /// As platform data, to pass it on to whoever shows the window.
  [[nodiscard]] QVariantMap datosDePlataforma() const;
  /// As environment variables ("NAME=value") of a program that will show a window.
  [[nodiscard]] std::vector<std::string> variables() const;
  /// The X server's time, in milliseconds, at which the person asked; 0 when it says none.
  [[nodiscard]] std::uint32_t momento() const;
};

}  // namespace zorve
