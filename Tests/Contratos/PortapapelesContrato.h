#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ZorveApp/Portapapeles.h"

namespace zorve::contratos {

/// What every clipboard keeps. `Entorno` has `Portapapeles& portapapeles()` and
/// `std::optional<std::string> texto()`, what somebody who pastes plain text gets.
template <class Entorno>
class PortapapelesContrato : public ::testing::Test {
 protected:
  void vaYVuelve(std::string const& texto) {
    entorno.portapapeles().copiar(texto);
    EXPECT_EQ(entorno.texto(), texto);
  }

  Entorno entorno;
};

TYPED_TEST_SUITE_P(PortapapelesContrato);

TYPED_TEST_P(PortapapelesContrato, loCopiadoSePega) { this->vaYVuelve("cd '/srv/a b' && claude --resume 1"); }

TYPED_TEST_P(PortapapelesContrato, loUltimoSustituyeALoAnterior) {
  this->entorno.portapapeles().copiar("uno, que es mas largo");
  this->vaYVuelve("dos");
}

TYPED_TEST_P(PortapapelesContrato, losCaracteresDeCualquierLenguaVanEnteros) {
  this->vaYVuelve("ñ 日本 \u202E \U0001F600 \u0301");
}

TYPED_TEST_P(PortapapelesContrato, losSaltosYTabuladoresSeConservan) { this->vaYVuelve("a\n\tb\r\nc\n"); }

TYPED_TEST_P(PortapapelesContrato, unMegabyteVaEntero) { this->vaYVuelve(std::string(1 << 20, 'x') + "fin"); }

REGISTER_TYPED_TEST_SUITE_P(PortapapelesContrato, loCopiadoSePega, loUltimoSustituyeALoAnterior,
                            losCaracteresDeCualquierLenguaVanEnteros, losSaltosYTabuladoresSeConservan,
                            unMegabyteVaEntero);

}  // namespace zorve::contratos
