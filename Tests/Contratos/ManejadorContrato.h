#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveCore/Terminales/ManejadorDelSistema.h"

namespace zorve::contratos {

/// Makes a system that opens `tipoConocido` with `identificador`, or knows of no application where that is
/// absent; its files go into the folder.
using FabricaDeManejador = std::function<std::unique_ptr<ManejadorDelSistema>(
    dobles::CarpetaTemporal const& carpeta, std::optional<std::string> const& identificador)>;

inline constexpr std::string_view tipoConocido = "com.apple.terminal.shell-script";

/// What every answer about the system's handler keeps. The parameter names a system and makes one.
class ContratoDelManejador : public testing::TestWithParam<std::pair<char const*, FabricaDeManejador>> {
 protected:
  [[nodiscard]] std::unique_ptr<ManejadorDelSistema> sistema(
      std::optional<std::string> const& identificador) const {
    return GetParam().second(carpeta_, identificador);
  }

 private:
  dobles::CarpetaTemporal carpeta_;
};

TEST_P(ContratoDelManejador, diceLaAplicacionDelTipo) {
  EXPECT_EQ(sistema("kitty")->preguntar(tipoConocido).aplicacion, "kitty");
}

TEST_P(ContratoDelManejador, sinAplicacionNoHayRespuestaNiQuienLaDe) {
  auto const ninguna = sistema(std::nullopt);
  EXPECT_EQ(ninguna->preguntar(tipoConocido), RespuestaDelSistema{});
}

TEST_P(ContratoDelManejador, unTipoDesconocidoNoTieneAplicacion) {
  auto const suyo = sistema("kitty");
  for (std::string_view const tipo :
       {"", "public.plain-text", "com.apple.terminal.shell-script ", "com.apple.terminal", "*"}) {
    EXPECT_EQ(suyo->preguntar(tipo), RespuestaDelSistema{}) << tipo;
  }
}

TEST_P(ContratoDelManejador, preguntarDosVecesDaLoMismo) {
  auto const suyo = sistema("kitty");
  EXPECT_EQ(suyo->preguntar(tipoConocido), suyo->preguntar(tipoConocido));
}

}  // namespace zorve::contratos
