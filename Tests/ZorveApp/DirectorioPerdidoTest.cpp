#include "ZorveApp/DirectorioPerdido.h"

#include "Dobles/DirectoriosFijos.h"
#include "Mesa.h"
#include "ZorveApp/PanelView.h"

namespace zorve {
namespace {

class DirectorioPerdido : public Mesa {
 protected:
  DirectorioPerdido() {
    directorios = &disponibles;
    disponibles.perdidos = {"/perdido"};
    hacerDeNuevo();
  }
  [[nodiscard]] Fila fila(std::size_t cual) {
    return PanelView{*modelo, estado, idioma, "/h", [] { return Fecha{}; }, Modificador::control}.fila(cual);
  }

  void principales() {
    while (despachador.pasoPrincipal()) {
    }
  }

  dobles::DirectoriosFijos disponibles;
  EstadoDelPanel estado;
};

TEST_F(DirectorioPerdido, trasLaCargaSeSabeCualesFaltan) {
  cargar({sesionDe("a"), sesionDe("b", "otra", "/perdido")});
  EXPECT_EQ(fila(0).directorioPerdido, std::nullopt);
  EXPECT_EQ(fila(1).directorioPerdido, "The directory no longer exists.");
  enEspanol();
  EXPECT_EQ(fila(1).directorioPerdido, "El directorio ya no existe.");
}

TEST_F(DirectorioPerdido, lasSesionesSeVenAntesDeQueSeSepa) {
  enDisco({sesionDe("b", "otra", "/perdido")});
  modelo->refrescar();
  despachador.pasoDeFondo();
  principales();
  EXPECT_FALSE(*modelo->refrescando());
  EXPECT_EQ(fila(0).directorioPerdido, std::nullopt);
  despachador.correrTodo();
  EXPECT_NE(fila(0).directorioPerdido, std::nullopt);
}

TEST_F(DirectorioPerdido, mientrasUnaMiradaNoAcabaNoEmpiezaOtra) {
  enDisco({sesionDe("a")});
  for (int vez = 0; vez < 2; ++vez) {
    modelo->refrescar();
    despachador.pasoDeFondo(despachador.deFondo() - 1);
    principales();
  }
  EXPECT_EQ(despachador.deFondo(), 1U);
}

TEST_F(DirectorioPerdido, elQueVuelveDejaDeFaltar) {
  cargar({sesionDe("b", "otra", "/perdido")});
  disponibles.perdidos.clear();
  cargar({sesionDe("b", "otra", "/perdido")});
  EXPECT_EQ(fila(0).directorioPerdido, std::nullopt);
}

TEST_F(DirectorioPerdido, abrirAhiLoDiceYNoCorreNada) {
  cargar({sesionDe("b", "otra", "/perdido")});
  abrir();
  EXPECT_EQ(*modelo->errorDeApertura(),
            "The directory /perdido no longer exists: the session cannot be opened there.");
  EXPECT_TRUE(ejecutor.llamadas().empty());
}

TEST_F(DirectorioPerdido, unaSesionVivaSeTraeAlFrenteAunqueFalte) {
  auto viva = sesionViva("a", 7);
  viva.cwd = "/perdido";
  cargar({viva});
  auto const antes = disponibles.miradas.load();
  abrir();
  EXPECT_EQ(disponibles.miradas.load(), antes);
}

TEST_F(DirectorioPerdido, sinDondeMirarNoFaltaNinguno) {
  directorios = nullptr;
  hacerDeNuevo();
  corre(reapertura("b"), 0, "");
  cargar({sesionDe("b", "otra", "/x")});
  abrir();
  EXPECT_EQ(*modelo->errorDeApertura(), std::nullopt);
  EXPECT_EQ(disponibles.miradas.load(), 0);
}

}  // namespace
}  // namespace zorve
