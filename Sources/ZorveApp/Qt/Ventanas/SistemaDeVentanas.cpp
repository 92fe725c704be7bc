#include "ZorveApp/Qt/Ventanas/SistemaDeVentanas.h"

#include <QGuiApplication>

#include "ZorveApp/Qt/Ventanas/ExtensionDeGnome.h"
#include "ZorveApp/Qt/Ventanas/SistemaDeVentanasX11.h"

namespace zorve {

namespace {

/// Where the compositor places windows, decides who has the keyboard and tells nobody of others' clicks.
class SistemaDeVentanasSencillo final : public SistemaDeVentanas {
 public:
  [[nodiscard]] bool hayTransparencia() const override { return true; }
  [[nodiscard]] bool hayDesenfoque() const override { return false; }
  void desenfocar(QWindow& /*ventana*/, QRegion const& /*forma*/) override {}
  [[nodiscard]] QRect areaLibre(QScreen const& pantalla) const override {
    return pantalla.availableGeometry();
  }
  void preparar(QWindow& ventana) override { ventana.setFlags(Qt::Window | Qt::FramelessWindowHint); }
  void tomarElTeclado(QWindow& ventana) override {
    ventana.requestActivate();
    if (gnome_) colgarDelIcono(ventana);
  }
  void devolverElTeclado(QWindow& /*ventana*/) override {}
  void soltarElTeclado(QWindow& /*ventana*/) override {}
  [[nodiscard]] bool tieneElTeclado(QWindow const& ventana) const override { return ventana.isActive(); }
  void vigilarPulsaciones(QWindow& /*ventana*/, std::function<void(QPoint)> /*alPulsarFuera*/) override {}

 private:
  bool gnome_ = sobreGnome();
};

}  // namespace

std::unique_ptr<SistemaDeVentanas> sistemaDeVentanasEnUso() {
  if (SistemaDeVentanasX11::hay()) return std::make_unique<SistemaDeVentanasX11>();
  return std::make_unique<SistemaDeVentanasSencillo>();
}

}  // namespace zorve
