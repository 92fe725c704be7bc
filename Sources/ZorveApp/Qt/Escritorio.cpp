#include "ZorveApp/Qt/Escritorio.h"

#include <QGuiApplication>

#include "ZorveApp/Qt/EscritorioX11.h"

namespace zorve {

namespace {

/// Where the compositor places windows, decides who has the keyboard and tells nobody of others' clicks.
class EscritorioSencillo final : public Escritorio {
 public:
  [[nodiscard]] bool hayTransparencia() const override { return true; }
  [[nodiscard]] bool hayDesenfoque() const override { return false; }
  [[nodiscard]] QRect areaLibre(QScreen const& pantalla) const override {
    return pantalla.availableGeometry();
  }
  void preparar(QWindow& ventana) override { ventana.setFlags(Qt::Window | Qt::FramelessWindowHint); }
  void tomarElTeclado(QWindow& ventana) override { ventana.requestActivate(); }
  void devolverElTeclado(QWindow& /*ventana*/) override {}
  void soltarElTeclado(QWindow& /*ventana*/) override {}
  [[nodiscard]] bool tieneElTeclado(QWindow const& ventana) const override { return ventana.isActive(); }
  void vigilarPulsaciones(QWindow& /*ventana*/, std::function<void(QPoint)> /*alPulsarFuera*/) override {}
};

}  // namespace

std::unique_ptr<Escritorio> escritorioEnUso() {
  if (EscritorioX11::hay()) return std::make_unique<EscritorioX11>();
  return std::make_unique<EscritorioSencillo>();
}

}  // namespace zorve
