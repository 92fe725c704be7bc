#include <atomic>
#include <memory>

#include "Dobles/DespachadorDeHilos.h"
#include "Dobles/InicioDePrueba.h"
#include "Mesa.h"
#include "ZorveApp/ModeloDeAjustes.h"

namespace zorve {
namespace {

/// The models on real threads: what they share must be safe to share.
class HilosTest : public Mesa {
 protected:
  HilosTest() {
    auto con = colaboradores();
    enHilos = std::make_unique<ModeloDeVista>(ColaboradoresDelModelo{.cargar = con.cargar,
                                                                     .servicios = con.servicios,
                                                                     .ejecutor = ejecutor,
                                                                     .portapapeles = portapapeles,
                                                                     .despachador = hilos,
                                                                     .idioma = idioma});
  }

  bool girarHastaCargar() {
    return hilos.girarHasta([this] { return !*enHilos->refrescando(); });
  }

  std::unique_ptr<ModeloDeVista> enHilos;
  dobles::DespachadorDeHilos hilos;
};

TEST_F(HilosTest, cargaYBuscaALaVez) {
  enDisco(std::vector<Session>(200, sesionDe("a", "alfa")));
  for (int vez = 0; vez < 20; ++vez) {
    enHilos->refrescar();
    enHilos->escribirConsulta(vez % 2 == 0 ? "alf" : "");
    enHilos->mover(1);
    ASSERT_TRUE(girarHastaCargar());
  }
  EXPECT_EQ(enHilos->visibles().size(), 200U);
}

TEST_F(HilosTest, muchasAperturasALaVez) {
  enDisco({sesionDe("a")});
  enHilos->refrescar();
  ASSERT_TRUE(girarHastaCargar());
  corre(reapertura("a"), 1, "A");
  int avisos = 0;
  auto const suscripciones = enHilos->observar([&] { ++avisos; });
  for (int vez = 0; vez < 20; ++vez) enHilos->abrirSeleccionada();
  ASSERT_TRUE(hilos.girarHasta([&] { return ejecutor.llamadas().size() == 20 && avisos > 0; }));
  EXPECT_EQ(*enHilos->errorDeApertura(), "/abrir exited with code 1: A");
}

TEST_F(HilosTest, elModeloDesapareceMientrasCargaYAbre) {
  enDisco({sesionDe("a")});
  enHilos->refrescar();
  ASSERT_TRUE(girarHastaCargar());
  enHilos->refrescar();
  enHilos->abrirSeleccionada();
  enHilos.reset();
  bool llego = false;
  hilos.enPrincipalTras(std::chrono::milliseconds{20}, [&] { llego = true; });
  EXPECT_TRUE(hilos.girarHasta([&] { return llego; }));
}

TEST_F(HilosTest, losAjustesCarganVariasVecesALaVez) {
  dobles::InicioDePrueba inicio;
  ModeloDeAjustes ajustes{{.terminales = colaboradores().servicios.fuentes,
                           .preferencias = preferencias,
                           .inicio = inicio,
                           .idioma = idioma,
                           .despachador = hilos}};
  for (int vez = 0; vez < 10; ++vez) ajustes.cargar();
  ASSERT_TRUE(hilos.girarHasta([&] { return *ajustes.cargado(); }));
  EXPECT_EQ(ajustes.instaladas()->size(), 1U);
}

}  // namespace
}  // namespace zorve
