#include "ZorveApp/Qt/Ventanas/VentanaDelPanel.h"

#include <gtest/gtest.h>

#include <utility>

namespace zorve {
namespace {

/// A desktop on which the test itself presses.
class EscritorioDePrueba final : public SistemaDeVentanas {
 public:
  std::function<void(QPoint)> pulsarFuera;

  [[nodiscard]] bool hayTransparencia() const override { return false; }
  [[nodiscard]] bool hayDesenfoque() const override { return false; }
  void desenfocar(QWindow& /*ventana*/, QRegion const& /*forma*/) override {}
  [[nodiscard]] QRect areaLibre(QScreen const& pantalla) const override { return pantalla.geometry(); }
  void preparar(QWindow& /*ventana*/) override {}
  void tomarElTeclado(QWindow& /*ventana*/) override {}
  void devolverElTeclado(QWindow& /*ventana*/) override {}
  void soltarElTeclado(QWindow& /*ventana*/) override {}
  [[nodiscard]] bool tieneElTeclado(QWindow const& /*ventana*/) const override { return true; }
  void vigilarPulsaciones(QWindow& /*ventana*/, std::function<void(QPoint)> alPulsarFuera) override {
    pulsarFuera = std::move(alPulsarFuera);
  }
};

class VentanaDelPanel : public testing::Test {
 protected:
  static void SetUpTestSuite() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
  void SetUp() override {
    QObject::connect(&ventana, &zorve::VentanaDelPanel::escondida, [this] { ++escondidas; });
    ventana.mostrarEn(std::nullopt);
  }
  void pulsarFuera() {
    auto const pulsar = escritorio.pulsarFuera;
    pulsar({1, 1});
  }

  int escondidas = 0;
  EscritorioDePrueba escritorio;
  zorve::VentanaDelPanel ventana{escritorio, [](Pulsacion const& /*tecla*/) { return false; }};
};

TEST_F(VentanaDelPanel, unaPulsacionFueraLaEscondeUnaVez) {
  pulsarFuera();
  EXPECT_FALSE(ventana.isVisible());
  EXPECT_FALSE(escritorio.pulsarFuera);
  EXPECT_EQ(escondidas, 1);
}

TEST_F(VentanaDelPanel, elCierrePorFueraEsDeUnSoloClic) {
  pulsarFuera();
  EXPECT_TRUE(ventana.tomarElCierre());
  EXPECT_FALSE(ventana.tomarElCierre());
}

TEST_F(VentanaDelPanel, quienLaEscondePorDentroNoGastaElClicSiguiente) {
  ventana.esconder();
  EXPECT_FALSE(ventana.tomarElCierre());
}

TEST_F(VentanaDelPanel, cerradaPorElSistemaQuedaEscondidaYSinVigilancia) {
  ventana.close();
  EXPECT_FALSE(ventana.isVisible());
  EXPECT_FALSE(escritorio.pulsarFuera);
  EXPECT_EQ(escondidas, 1);
}

TEST_F(VentanaDelPanel, cerradaPorElSistemaVuelveAMostrarse) {
  ventana.close();
  ventana.mostrarEn(std::nullopt);
  EXPECT_TRUE(ventana.isVisible());
  EXPECT_TRUE(escritorio.pulsarFuera);
}

}  // namespace
}  // namespace zorve
