#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveApp/InicioDeSesion.h"

namespace zorve::contratos {

/// Whether switching works on the system that the factory makes.
enum class Sistema : bool { obedece, seNiega };

/// Makes the switch of a system where it is off; its files go into the folder.
using FabricaDeInicio =
    std::function<std::unique_ptr<InicioDeSesion>(dobles::CarpetaTemporal const& carpeta, Sistema sistema)>;

/// What every start at login keeps. The parameter names a system and makes its switch.
class ContratoDeInicio : public testing::TestWithParam<std::pair<char const*, FabricaDeInicio>> {
 protected:
  [[nodiscard]] std::unique_ptr<InicioDeSesion> inicio(Sistema sistema = Sistema::obedece) const {
    return GetParam().second(carpeta_, sistema);
  }

 private:
  dobles::CarpetaTemporal carpeta_;
};

TEST_P(ContratoDeInicio, alPrincipioNoEstaActivo) { EXPECT_FALSE(inicio()->activo()); }

TEST_P(ContratoDeInicio, registrarLoActivaYRetirarLoQuita) {
  auto const suyo = inicio();
  EXPECT_TRUE(suyo->registrar().has_value());
  EXPECT_TRUE(suyo->activo());
  EXPECT_TRUE(suyo->retirar().has_value());
  EXPECT_FALSE(suyo->activo());
}

TEST_P(ContratoDeInicio, registrarDosVecesEsComoUna) {
  auto const suyo = inicio();
  EXPECT_TRUE(suyo->registrar().has_value());
  EXPECT_TRUE(suyo->registrar().has_value());
  EXPECT_TRUE(suyo->activo());
  EXPECT_TRUE(suyo->retirar().has_value());
  EXPECT_FALSE(suyo->activo());
}

TEST_P(ContratoDeInicio, retirarLoQueNoEstaNoEsFallo) {
  auto const suyo = inicio();
  EXPECT_TRUE(suyo->retirar().has_value());
  EXPECT_FALSE(suyo->activo());
}

TEST_P(ContratoDeInicio, unFalloTieneUnaLineaQueLoDiceYNoCambiaElEstado) {
  auto const suyo = inicio(Sistema::seNiega);
  auto const registrado = suyo->registrar();
  ASSERT_FALSE(registrado.has_value());
  EXPECT_FALSE(registrado.error().empty());
  EXPECT_EQ(registrado.error().find('\n'), std::string::npos);
  EXPECT_FALSE(suyo->activo());
}

}  // namespace zorve::contratos
