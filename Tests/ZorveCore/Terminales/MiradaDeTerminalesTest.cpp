#include "ZorveCore/Terminales/MiradaDeTerminales.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "Dobles/PreferenciasEnMemoria.h"
#include "Dobles/TerminalFija.h"

namespace zorve {
namespace {

using dobles::terminalFija;

class MiradaDeTerminalesTest : public testing::Test {
 protected:
  std::vector<TerminalRef> conocidas{
      terminalFija({.identificador = "uno", .nombre = "Uno"}),
      terminalFija({.identificador = "dos", .nombre = "Dos"}),
      terminalFija({.identificador = "tres", .nombre = "Tres", .instalada = false})};
  int preguntas = 0;
  int lecturas = 0;
  FuentesDeTerminales fuentes{.conocidas = conocidas,
                              .sistema =
                                  [this] {
                                    ++preguntas;
                                    return RespuestaDelSistema{"dos", "$TERMINAL"};
                                  },
                              .eleccion =
                                  [this] {
                                    ++lecturas;
                                    return std::optional<std::string>{};
                                  }};
};

TEST_F(MiradaDeTerminalesTest, cadaFuenteRespondeUnaVezYElCatalogoRepiteSuRespuesta) {
  auto const mirada = mirar(fuentes);
  EXPECT_EQ(mirada.catalogo.manejadorDelSistema(), "dos");
  EXPECT_EQ(mirada.catalogo.leerEleccion(), std::nullopt);
  EXPECT_EQ(mirada.catalogo.resolver()->terminal, conocidas[1]);
  EXPECT_EQ(preguntas, 1);
  EXPECT_EQ(lecturas, 1);
}

TEST_F(MiradaDeTerminalesTest, tieneLasInstaladasLaResueltaYQuienLaDice) {
  auto const mirada = mirar(fuentes);
  EXPECT_EQ(mirada.instaladas, (std::vector{conocidas[0], conocidas[1]}));
  EXPECT_FALSE(mirada.estaInstalada(conocidas[2]));
  ASSERT_TRUE(mirada.resuelta);
  EXPECT_EQ(*mirada.resuelta, (TerminalResuelta{conocidas[1], OrigenDeLaTerminal::manejadorDelSistema}));
  EXPECT_EQ(mirada.dichoPor(), "$TERMINAL");
}

TEST_F(MiradaDeTerminalesTest, conUnaEleccionNadieDiceLaDelSistema) {
  fuentes.eleccion = [] { return std::optional<std::string>{"uno"}; };
  auto const mirada = mirar(fuentes);
  EXPECT_EQ(*mirada.resuelta, (TerminalResuelta{conocidas[0], OrigenDeLaTerminal::eleccionDeLaPersona}));
  EXPECT_EQ(mirada.dichoPor(), std::nullopt);
  EXPECT_EQ(mirada.sistema.dichoPor, "$TERMINAL");
}

TEST_F(MiradaDeTerminalesTest, unaEleccionIlegibleDiceSuFalloYCuentaComoNinguna) {
  IndexError const fallo{IndexSource::launcher, "damaged"};
  fuentes.eleccion = [&]() -> std::expected<std::optional<std::string>, IndexError> {
    return std::unexpected{fallo};
  };
  auto const mirada = mirar(fuentes);
  ASSERT_FALSE(mirada.eleccion);
  EXPECT_EQ(mirada.eleccion.error(), fallo);
  EXPECT_EQ(mirada.resuelta->terminal, conocidas[1]);
}

TEST_F(MiradaDeTerminalesTest, loQueLanceUnaFuenteEsElFalloDeLaResolucion) {
  fuentes.sistema = []() -> RespuestaDelSistema { throw std::runtime_error{"boom"}; };
  auto const mirada = mirar(fuentes);
  ASSERT_FALSE(mirada.resuelta);
  EXPECT_EQ(std::get<FalloDelSistema>(mirada.resuelta.error()).descripcion, "boom");
  EXPECT_EQ(mirada.instaladas.size(), 2U);
}

TEST_F(MiradaDeTerminalesTest, elFalloDelCatalogoHablaConLasVocesDeLasFuentes) {
  fuentes.sistema = [] { return RespuestaDelSistema{}; };
  fuentes.voces = vocesDeLinux;
  auto const mirada = mirar(fuentes);
  ASSERT_FALSE(mirada.resuelta);
  EXPECT_TRUE(std::get<IndexError>(mirada.resuelta.error()).mensaje.ends_with("zorvectl choose uno"));
}

TEST(FuentesDelSistema, cadaMiradaPreguntaDeNuevoALasPreferencias) {
  struct SinManejador final : ManejadorDelSistema {
    [[nodiscard]] RespuestaDelSistema preguntar(std::string_view /*tipo*/) const override { return {}; }
  };
  SinManejador const manejador;
  dobles::PreferenciasEnMemoria preferencias;
  auto const fuentes = fuentesDelSistema({}, manejador, preferencias, {});
  EXPECT_EQ(mirar(fuentes).eleccion.value(), std::nullopt);
  ASSERT_TRUE(elegir(preferencias, "uno"));
  EXPECT_EQ(mirar(fuentes).eleccion.value(), "uno");
}

}  // namespace
}  // namespace zorve
