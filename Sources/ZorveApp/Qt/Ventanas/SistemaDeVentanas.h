#pragma once

#include <QObject>
#include <QRect>
#include <QRegion>
#include <QScreen>
#include <QWindow>
#include <functional>
#include <memory>

namespace zorve {

/// What the panel needs of the window system beyond what the toolkit offers. Main thread only.
class SistemaDeVentanas {
 public:
  SistemaDeVentanas() = default;
  SistemaDeVentanas(SistemaDeVentanas const&) = delete;
  SistemaDeVentanas& operator=(SistemaDeVentanas const&) = delete;
  virtual ~SistemaDeVentanas() = default;

  /// Whether a compositor draws translucent windows.
  [[nodiscard]] virtual bool hayTransparencia() const = 0;
  /// Whether what is behind a window can be blurred.
  [[nodiscard]] virtual bool hayDesenfoque() const = 0;
  /// Asks that what is behind this part of `ventana`, in native pixels, be blurred; an empty one takes that
  /// back.
  virtual void desenfocar(QWindow& ventana, QRegion const& forma) = 0;
  /// The part of `pantalla` that no bar takes.
  [[nodiscard]] virtual QRect areaLibre(QScreen const& pantalla) const = 0;
  /// The window type and place of a panel that this desktop lets a program choose itself.
  virtual void preparar(QWindow& ventana) = 0;
  /// The keyboard to `ventana`, which has just been shown, at once.
  virtual void tomarElTeclado(QWindow& ventana) = 0;
  /// The keyboard back to whoever had it before, if `ventana` has it still. Before hiding it.
  virtual void devolverElTeclado(QWindow& ventana) = 0;
  /// The same after a press elsewhere: whoever was pressed comes first, and the one before only if nobody
  /// takes the keyboard. Before hiding `ventana`.
  virtual void soltarElTeclado(QWindow& ventana) = 0;
  [[nodiscard]] virtual bool tieneElTeclado(QWindow const& ventana) const = 0;
  /// Until the next call, `alPulsarFuera` is told each button press outside `ventana`, with the pointer's
  /// place; other programs get the press all the same. An empty function ends it.
  virtual void vigilarPulsaciones(QWindow& ventana, std::function<void(QPoint)> alPulsarFuera) = 0;
};

/// For the window system in use.
[[nodiscard]] std::unique_ptr<SistemaDeVentanas> sistemaDeVentanasEnUso();

}  // namespace zorve
