#pragma once

#include <QQuickView>
#include <QTimer>
#include <functional>
#include <memory>

#include "ZorveApp/Qt/Ventanas/Colocacion.h"
#include "ZorveApp/Qt/Ventanas/SistemaDeVentanas.h"
#include "ZorveApp/Teclado.h"

namespace zorve {

/// How dense the glass is where what is behind it is blurred, or said to be, and where it is not.
inline constexpr double densidadConDesenfoque = 0.94;
inline constexpr double densidadSinDesenfoque = 0.95;

/// The panel's window: shown and hidden; whoever closes it hides it. It closes by itself when the keyboard
/// goes elsewhere or a button is pressed outside it and outside its anchor. Main thread only.
class VentanaDelPanel final : public QQuickView {
  Q_OBJECT

 public:
  /// `sistema` outlives the window.
  VentanaDelPanel(SistemaDeVentanas& sistema, std::function<bool(Pulsacion const&)> alPulsar);

  /// Loads the content and paints it once, unseen, so that the first showing is quick. Again does nothing.
  void preparar();
  /// Shows it at `ancla`, or without one in the upper part of the screen with the pointer, and takes the
  /// keyboard: at once, or when it is pressed.
  void mostrarEn(std::optional<Ancla> const& ancla, bool conTeclado = true);
  void esconder();
  /// Whether it is shown. One that is fading away is not.
  [[nodiscard]] bool mostrada() const { return isVisible() && !ida_.isActive(); }
  /// Whether a press outside has closed it a moment ago: that press was meant to close it, not to open it.
  /// A press is one click: asked again, no.
  [[nodiscard]] bool tomarElCierre();
  /// Square corners and solid glass even where windows can be translucent.
  void exigirOpaco(bool si);
  /// How much larger than usual it is. A screen without room for it gets a smaller one all the same.
  void escribirEscala(double escala);

 Q_SIGNALS:
  void escondida();
  /// The key for a menu was pressed, or Shift+F10.
  void menuLlamado();

 protected:
  void mousePressEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  /// The window system's own way to close it.
  void closeEvent(QCloseEvent* evento) override;

 private:
  void ocultar();
  void irse();
  void vestir();
  void desenfocar();
  void colocarEn(std::optional<Ancla> const& ancla);
  void alCambiarElFoco();
  void alPulsarFuera(QPoint donde);

  SistemaDeVentanas& sistema_;
  std::function<bool(Pulsacion const&)> alPulsar_;
  QSize tamano_;
  double escala_ = 1;
  QRect zonaDelIcono_;
  qint64 cerradaPorFuera_ = -1;
  bool exigeOpaco_ = false;
  /// While what was closed fades away.
  QTimer ida_;
};

}  // namespace zorve
