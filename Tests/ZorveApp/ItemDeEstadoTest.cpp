#include "ZorveApp/ItemDeEstado.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/PreferenciasEnMemoria.h"

namespace zorve {
namespace {

using std::chrono::milliseconds;

class CaraDePrueba final : public CaraDelItem {
 public:
  [[nodiscard]] bool panelVisible() const override { return visible; }
  void mostrarPanel() override { anotar("panel", true); }
  void cerrarPanel() override { anotar("cierra", false); }
  void mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) override {
    menu = entradas;
    hechos.emplace_back("menu");
  }
  void mostrarAjustes() override { hechos.emplace_back("ajustes"); }
  void salir() override { hechos.emplace_back("sale"); }

  bool visible = false;
  std::array<EntradaDelMenu, 3> menu;
  std::vector<std::string> hechos;

 private:
  void anotar(char const* hecho, bool ahoraVisible) {
    visible = ahoraVisible;
    hechos.emplace_back(hecho);
  }
};

class ItemDeEstadoTest : public ::testing::Test {
 protected:
  using Hechos = std::vector<std::string>;

  dobles::PreferenciasEnMemoria preferencias;
  PreferenciaDeIdioma idioma{preferencias};
  BanderasDeUsuario banderas{preferencias};
  dobles::DespachadorPaso despachador;
  EstadoDelPanel estado;
  CaraDePrueba cara;
  std::unique_ptr<ItemDeEstado> item =
      std::make_unique<ItemDeEstado>(cara, estado, idioma, despachador, PrimerArranque{banderas});
};

TEST_F(ItemDeEstadoTest, elClicIzquierdoAbreYElSegundoCierra) {
  item->clic(ClicEnLaBarra{});
  EXPECT_TRUE(cara.visible);
  item->clic(ClicEnLaBarra{});
  EXPECT_FALSE(cara.visible);
  EXPECT_EQ(cara.hechos, (Hechos{"panel", "cierra"}));
}

TEST_F(ItemDeEstadoTest, sinEventoEsComoElClicIzquierdo) {
  item->clic(std::nullopt);
  EXPECT_EQ(cara.hechos, (Hechos{"panel"}));
}

TEST_F(ItemDeEstadoTest, elClicDerechoAbreElMenuYDejaElPanelComoEsta) {
  item->clic(ClicEnLaBarra{});
  item->clic(ClicEnLaBarra{.derecho = true});
  EXPECT_TRUE(cara.visible);
  EXPECT_EQ(cara.hechos, (Hechos{"panel", "menu"}));
}

TEST_F(ItemDeEstadoTest, conControlElClicIzquierdoEsDerecho) {
  item->clic(ClicEnLaBarra{.conControl = true});
  EXPECT_EQ(cara.hechos, (Hechos{"menu"}));
}

TEST_F(ItemDeEstadoTest, trasElMenuElClicIzquierdoVuelveAAbrirElPanel) {
  item->clic(ClicEnLaBarra{.derecho = true});
  item->clic(ClicEnLaBarra{});
  EXPECT_EQ(cara.hechos, (Hechos{"menu", "panel"}));
}

TEST_F(ItemDeEstadoTest, elMenuTieneAjustesSeparadorYSalir) {
  using enum EntradaDelMenu::Clase;
  EXPECT_EQ(menuDelItem(Textos{Idioma::en}),
            (std::array<EntradaDelMenu, 3>{
                {{ajustes, "Settings…", ","}, {separador, "", ""}, {salir, "Quit Zorve", "q"}}}));
}

TEST_F(ItemDeEstadoTest, elMenuSigueAlIdiomaDelMomento) {
  item->clic(ClicEnLaBarra{.derecho = true});
  EXPECT_EQ(cara.menu[0].titulo, "Settings…");
  idioma.elegir(Idioma::es);
  item->clic(ClicEnLaBarra{.derecho = true});
  EXPECT_EQ(cara.menu[0].titulo, "Ajustes…");
  EXPECT_EQ(cara.menu[2].titulo, "Salir de Zorve");
}

TEST_F(ItemDeEstadoTest, laPrimeraVezElPanelSaleSoloALos350Milisegundos) {
  item->mostrarElPanelSiEsLaPrimeraVez();
  despachador.avanzar(milliseconds{349});
  despachador.correrTodo();
  EXPECT_TRUE(cara.hechos.empty());
  despachador.avanzar(milliseconds{1});
  despachador.correrTodo();
  EXPECT_EQ(cara.hechos, (Hechos{"panel"}));
}

TEST_F(ItemDeEstadoTest, enArranquesPosterioresNoSale) {
  banderas.marcar(PrimerArranque::clave);
  item->mostrarElPanelSiEsLaPrimeraVez();
  despachador.avanzar(milliseconds{10'000});
  despachador.correrTodo();
  EXPECT_TRUE(cara.hechos.empty());
}

TEST_F(ItemDeEstadoTest, siElItemYaNoEstaLaPrimeraMuestraNoHaceNada) {
  item->mostrarElPanelSiEsLaPrimeraVez();
  item.reset();
  despachador.avanzar(milliseconds{350});
  despachador.correrTodo();
  EXPECT_TRUE(cara.hechos.empty());
}

TEST_F(ItemDeEstadoTest, abrirElProgramaOtraVezMuestraElPanel) {
  EXPECT_TRUE(item->reabrir());
  EXPECT_EQ(cara.hechos, (Hechos{"panel"}));
}

TEST_F(ItemDeEstadoTest, losAjustesCierranAntesElPanelDesdeElMenuYDesdeElPanel) {
  item->elegir(EntradaDelMenu::Clase::ajustes);
  estado.abrirLaVentanaDeAjustes();
  EXPECT_EQ(cara.hechos, (Hechos{"cierra", "ajustes", "cierra", "ajustes"}));
}

TEST_F(ItemDeEstadoTest, laEntradaDeSalirSaleYElSeparadorNoHaceNada) {
  item->elegir(EntradaDelMenu::Clase::separador);
  EXPECT_TRUE(cara.hechos.empty());
  item->elegir(EntradaDelMenu::Clase::salir);
  EXPECT_EQ(cara.hechos, (Hechos{"sale"}));
}

TEST_F(ItemDeEstadoTest, sinItemLaAccionDelPanelNoHaceNada) {
  item.reset();
  estado.abrirLaVentanaDeAjustes();
  EXPECT_TRUE(cara.hechos.empty());
}

TEST(EstadoDelPanel, antesDeInstalarLaAccionNoHaceNada) { EstadoDelPanel{}.abrirLaVentanaDeAjustes(); }

}  // namespace
}  // namespace zorve
