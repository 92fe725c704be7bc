#include "ZorveApp/BanderasEnFondo.h"

#include <gtest/gtest.h>

#include <string>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/PreferenciasEnMemoria.h"

namespace zorve {
namespace {

TEST(BanderasEnFondo, marcarCuentaAlInstanteYSeGuardaFueraDelHiloPrincipal) {
  dobles::PreferenciasEnMemoria preferencias;
  dobles::DespachadorPaso despachador;
  BanderasEnFondo banderas{preferencias, despachador};
  EXPECT_FALSE(banderas.bandera("a"));
  banderas.marcar("a");
  EXPECT_TRUE(banderas.bandera("a"));
  EXPECT_FALSE(banderas.bandera("b"));
  EXPECT_EQ(preferencias.cambios(), 0);
  despachador.correrTodo();
  EXPECT_EQ(preferencias.leer("a").value(), Preferencias::Valor{true});
}

TEST(BanderasEnFondo, lasDeOtroArranqueSeLeen) {
  dobles::PreferenciasEnMemoria preferencias{{{"a", true}}};
  dobles::DespachadorPaso despachador;
  EXPECT_TRUE((BanderasEnFondo{preferencias, despachador}.bandera("a")));
}

}  // namespace
}  // namespace zorve
