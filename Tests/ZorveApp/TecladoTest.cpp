#include "ZorveApp/Teclado.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

using Panel = AccionDelPanel;
using enum Modificador;

constexpr Modificador sistemas[] = {mando, control};

Pulsacion letra(char32_t caracter, Modificador con) { return {Tecla::caracter, caracter, con}; }

TEST(TecladoDelPanel, flechasRetornoYEscape) {
  EXPECT_EQ(accionDelPanel({Tecla::arriba}, mando), Panel::subir);
  EXPECT_EQ(accionDelPanel({Tecla::abajo}, mando), Panel::bajar);
  EXPECT_EQ(accionDelPanel({Tecla::retorno}, mando), Panel::abrir);
  EXPECT_EQ(accionDelPanel({Tecla::escape}, mando), Panel::esconder);
}

TEST(TecladoDelPanel, losAtajosLlevanElModificadorDelSistemaYSoloEse) {
  for (auto const principal : sistemas) {
    EXPECT_EQ(accionDelPanel(letra(U'r', principal), principal), Panel::refrescar);
    EXPECT_EQ(accionDelPanel(letra(U'c', principal), principal), Panel::copiar);
    EXPECT_EQ(accionDelPanel(letra(U'q', principal), principal), Panel::salir);
    EXPECT_EQ(accionDelPanel(letra(U',', principal), principal), Panel::ajustes);
    for (auto const otro : {mayusculas, opcion, Modificador::otro}) {
      for (auto const caracter : {U'r', U'c', U'q', U','}) {
        EXPECT_EQ(accionDelPanel(letra(caracter, principal | otro), principal), std::nullopt);
      }
    }
  }
}

TEST(TecladoDelPanel, elModificadorDelOtroSistemaNoEsAtajo) {
  EXPECT_EQ(accionDelPanel(letra(U'c', control), mando), std::nullopt);
  EXPECT_EQ(accionDelPanel(letra(U'c', mando), control), std::nullopt);
}

TEST(TecladoDelPanel, otroCaracterConElModificadorPasaDeLargo) {
  for (auto const caracter : {U'a', U'v', U'x', U'w', U'ñ', U'1'}) {
    EXPECT_EQ(accionDelPanel(letra(caracter, mando), mando), std::nullopt);
  }
}

TEST(TecladoDelPanel, lasLetrasSinModificadorSonParaLaBusqueda) {
  for (auto const caracter : {U'r', U'c', U'q', U','}) {
    EXPECT_EQ(accionDelPanel(letra(caracter, ninguno), mando), std::nullopt);
  }
}

TEST(TecladoDelPanel, conBloqueoDeMayusculasElAtajoEsElMismo) {
  EXPECT_EQ(accionDelPanel(letra(U'R', mando), mando), Panel::refrescar);
}

TEST(TecladoDelPanel, unaFlechaConModificadorEsDelCampoDeBusqueda) {
  EXPECT_EQ(accionDelPanel({Tecla::arriba, 0, mayusculas}, mando), std::nullopt);
  EXPECT_EQ(accionDelPanel({Tecla::abajo, 0, mando}, mando), std::nullopt);
}

TEST(TecladoDelPanel, lasFlechasSostenidasSiguenMoviendo) {
  EXPECT_EQ(accionDelPanel({Tecla::abajo, 0, ninguno, true}, mando), Panel::bajar);
}

TEST(TecladoDelPanel, unRetornoSostenidoNoVuelveAAbrir) {
  EXPECT_EQ(accionDelPanel({Tecla::retorno, 0, ninguno, true}, mando), Panel::nada);
}

TEST(TecladoDeAjustes, escapeYElAtajoWCierran) {
  for (auto const principal : sistemas) {
    EXPECT_EQ(accionDeAjustes({Tecla::escape}, principal), AccionDeAjustes::cerrar);
    EXPECT_EQ(accionDeAjustes(letra(U'w', principal), principal), AccionDeAjustes::cerrar);
  }
}

TEST(TecladoDeAjustes, elAtajoQSale) {
  for (auto const principal : sistemas) {
    EXPECT_EQ(accionDeAjustes(letra(U'q', principal), principal), AccionDeAjustes::salir);
  }
}

TEST(TecladoDeAjustes, conOtroModificadorAdemasPasaDeLargo) {
  for (auto const otro : {mayusculas, opcion, control, Modificador::otro}) {
    EXPECT_EQ(accionDeAjustes(letra(U'w', mando | otro), mando), std::nullopt);
    EXPECT_EQ(accionDeAjustes(letra(U'q', mando | otro), mando), std::nullopt);
  }
}

TEST(TecladoDeAjustes, lasDemasTeclasPasanDeLargo) {
  EXPECT_EQ(accionDeAjustes(letra(U'w', ninguno), mando), std::nullopt);
  EXPECT_EQ(accionDeAjustes(letra(U'r', mando), mando), std::nullopt);
  EXPECT_EQ(accionDeAjustes({Tecla::retorno}, mando), std::nullopt);
  EXPECT_EQ(accionDeAjustes({Tecla::escape, 0, mando}, mando), std::nullopt);
}

}  // namespace
}  // namespace zorve
