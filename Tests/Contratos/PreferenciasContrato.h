#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveCore/Preferencias.h"

namespace zorve::contratos {

using FabricaDePreferencias = std::function<std::unique_ptr<Preferencias>(dobles::CarpetaTemporal const&)>;

/// What every store of settings keeps. The parameter names a store and makes one that holds nothing; a file
/// of its own goes into the folder.
class ContratoDePreferencias : public testing::TestWithParam<std::pair<char const*, FabricaDePreferencias>> {
 protected:
  using Valor = Preferencias::Valor;
  std::optional<Valor> leido(std::string const& clave) { return preferencias_->leer(clave).value(); }
  void escrito(std::string const& clave, Valor const& valor) {
    ASSERT_TRUE(preferencias_->escribir(clave, valor).has_value());
  }
  void quitado(std::string const& clave) { ASSERT_TRUE(preferencias_->quitar(clave).has_value()); }

 private:
  dobles::CarpetaTemporal carpeta_;
  std::unique_ptr<Preferencias> preferencias_ = GetParam().second(carpeta_);
};

TEST_P(ContratoDePreferencias, loQueNuncaSeEscribioEstaAusente) { EXPECT_EQ(leido("a"), std::nullopt); }

TEST_P(ContratoDePreferencias, loEscritoSeLee) {
  escrito("texto", std::string{"com.apple.Terminal"});
  escrito("si", true);
  escrito("no", false);
  EXPECT_EQ(leido("texto"), Valor{std::string{"com.apple.Terminal"}});
  EXPECT_EQ(leido("si"), Valor{true});
  EXPECT_EQ(leido("no"), Valor{false});
}

TEST_P(ContratoDePreferencias, elUltimoValorGanaAunqueCambieDeTipo) {
  escrito("a", std::string{"x"});
  escrito("a", true);
  EXPECT_EQ(leido("a"), Valor{true});
}

TEST_P(ContratoDePreferencias, unTextoVacioNoEsLaAusencia) {
  escrito("a", std::string{});
  EXPECT_EQ(leido("a"), Valor{std::string{}});
}

TEST_P(ContratoDePreferencias, quitarUnaClaveDejaLasDemas) {
  escrito("a", true);
  escrito("b", std::string{"y"});
  quitado("a");
  EXPECT_EQ(leido("a"), std::nullopt);
  EXPECT_EQ(leido("b"), Valor{std::string{"y"}});
}

TEST_P(ContratoDePreferencias, quitarLoAusenteNoEsFallo) {
  quitado("a");
  quitado("a");
  EXPECT_EQ(leido("a"), std::nullopt);
}

TEST_P(ContratoDePreferencias, clavesYTextosRarosVanYVuelven) {
  std::string const raro{"\"\\/\b\f\n\r\t\x01 ñ 日本 \U0001F600 \0 z", 28};
  escrito(raro, raro);
  EXPECT_EQ(leido(raro), Valor{raro});
  quitado(raro);
  EXPECT_EQ(leido(raro), std::nullopt);
}

}  // namespace zorve::contratos
