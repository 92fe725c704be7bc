#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include "ZorveApp/Despachador.h"

namespace zorve::contratos {

/// What every dispatcher keeps. `Entorno` is made on the main thread and has `Despachador& despachador()`
/// and `bool girarHasta(std::function<bool()> listo)`, which runs the main thread's tasks until `listo` holds
/// or too much time has passed (then it gives false).
template <class Entorno>
class DespachadorContrato : public ::testing::Test {
 protected:
  Entorno entorno;
};

TYPED_TEST_SUITE_P(DespachadorContrato);

TYPED_TEST_P(DespachadorContrato, lasTareasPrincipalesCorrenEnElOrdenEnQueSeDieron) {
  std::vector<int> vistas;
  for (int i = 0; i < 100; ++i)
    this->entorno.despachador().enPrincipal([&vistas, i] { vistas.push_back(i); });
  ASSERT_TRUE(this->entorno.girarHasta([&] { return vistas.size() == 100; }));
  for (int i = 0; i < 100; ++i) EXPECT_EQ(vistas[static_cast<std::size_t>(i)], i);
}

TYPED_TEST_P(DespachadorContrato, ningunaTareaPrincipalCorreAntesDeQueVuelvaLaLlamada) {
  bool corrio = false;
  this->entorno.despachador().enPrincipal([&] { corrio = true; });
  EXPECT_FALSE(corrio);
  EXPECT_TRUE(this->entorno.girarHasta([&] { return corrio; }));
}

TYPED_TEST_P(DespachadorContrato, unaTareaPrincipalDadaPorOtraCorreDespuesDeElla) {
  std::vector<int> vistas;
  auto& despachador = this->entorno.despachador();
  despachador.enPrincipal([&] {
    despachador.enPrincipal([&] { vistas.push_back(2); });
    vistas.push_back(1);
  });
  ASSERT_TRUE(this->entorno.girarHasta([&] { return vistas.size() == 2; }));
  EXPECT_EQ(vistas, (std::vector{1, 2}));
}

TYPED_TEST_P(DespachadorContrato, loQueElSegundoPlanoDevuelveCorreEnElHiloPrincipal) {
  std::thread::id donde;
  auto& despachador = this->entorno.despachador();
  despachador.enSegundoPlano([&] { despachador.enPrincipal([&] { donde = std::this_thread::get_id(); }); });
  ASSERT_TRUE(this->entorno.girarHasta([&] { return donde != std::thread::id{}; }));
  EXPECT_EQ(donde, std::this_thread::get_id());
}

TYPED_TEST_P(DespachadorContrato, cadaTareaDeFondoCorreUnaVez) {
  int vueltas = 0;
  auto& despachador = this->entorno.despachador();
  for (int i = 0; i < 20; ++i) {
    despachador.enSegundoPlano([&] { despachador.enPrincipal([&] { ++vueltas; }); });
  }
  ASSERT_TRUE(this->entorno.girarHasta([&] { return vueltas == 20; }));
  bool despues = false;
  despachador.enPrincipal([&] { despues = true; });
  ASSERT_TRUE(this->entorno.girarHasta([&] { return despues; }));
  EXPECT_EQ(vueltas, 20);
}

TYPED_TEST_P(DespachadorContrato, loAplazadoCorreEnElHiloPrincipalYPorOrdenDeTiempo) {
  std::vector<int> vistas;
  auto& despachador = this->entorno.despachador();
  using std::chrono::milliseconds;
  despachador.enPrincipalTras(milliseconds{30}, [&] { vistas.push_back(2); });
  despachador.enPrincipalTras(milliseconds{1}, [&] { vistas.push_back(1); });
  EXPECT_TRUE(vistas.empty());
  ASSERT_TRUE(this->entorno.girarHasta([&] { return vistas.size() == 2; }));
  EXPECT_EQ(vistas, (std::vector{1, 2}));
}

TYPED_TEST_P(DespachadorContrato, unaTareaSueltaLoQueGuardabaCuandoHaCorrido) {
  auto const guardado = std::make_shared<int>(7);
  std::weak_ptr<int> const testigo = guardado;
  bool corrio = false;
  this->entorno.despachador().enPrincipal([guardado, &corrio] { corrio = true; });
  ASSERT_TRUE(this->entorno.girarHasta([&] { return corrio; }));
  EXPECT_EQ(testigo.use_count(), 1);
}

REGISTER_TYPED_TEST_SUITE_P(DespachadorContrato, lasTareasPrincipalesCorrenEnElOrdenEnQueSeDieron,
                            ningunaTareaPrincipalCorreAntesDeQueVuelvaLaLlamada,
                            unaTareaPrincipalDadaPorOtraCorreDespuesDeElla,
                            loQueElSegundoPlanoDevuelveCorreEnElHiloPrincipal, cadaTareaDeFondoCorreUnaVez,
                            loAplazadoCorreEnElHiloPrincipalYPorOrdenDeTiempo,
                            unaTareaSueltaLoQueGuardabaCuandoHaCorrido);

}  // namespace zorve::contratos
