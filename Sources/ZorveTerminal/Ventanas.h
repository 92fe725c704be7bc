#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve::ayudante {

/// A window on the person's desktop.
struct Ventana {
  /// What its window system calls it.
  std::uint64_t id = 0;
  /// The process that it belongs to by its window system's own word, 0 where that has none: what a window of
  /// X says of itself does not count.
  pid_t pid = 0;
  std::string titulo = {};
  /// Whether it has the keyboard.
  bool enfocada = false;
  bool operator==(Ventana const&) const = default;
};

/// The windows of a desktop, by whatever draws them.
class Ventanas {
 public:
  Ventanas() = default;
  Ventanas(Ventanas const&) = delete;
  Ventanas& operator=(Ventanas const&) = delete;
  virtual ~Ventanas() = default;

  /// Whether the desktop answers; without it there are no windows.
  [[nodiscard]] virtual bool abierta() const = 0;
  /// Whether identifiers are those of the X server, which WINDOWID names.
  [[nodiscard]] virtual bool sonDeX() const { return false; }
  /// Every window that a person could switch to.
  [[nodiscard]] virtual std::vector<Ventana> todas() const = 0;
  /// Brings the window to the front, its desktop too, and waits until it is reported to have the keyboard.
  /// False when that did not happen within `plazo`.
  [[nodiscard]] virtual bool activar(std::uint64_t id, std::chrono::milliseconds plazo) const = 0;
};

/// The windows of this process's desktop; null where nothing can be asked for them. Where the desktop tells
/// no more than it is asked for, those of `procesos`.
[[nodiscard]] std::unique_ptr<Ventanas> ventanasDe(SesionGrafica sesion, std::vector<pid_t> const& procesos);

}  // namespace zorve::ayudante
