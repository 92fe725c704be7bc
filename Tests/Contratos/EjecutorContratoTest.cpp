#include <cerrno>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

#include "Dobles/EjecutorGuionado.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

namespace zorve {
namespace {

using Fabrica = std::function<std::unique_ptr<Ejecutor>()>;

std::unique_ptr<Ejecutor> doble() {
  auto ejecutor = std::make_unique<dobles::EjecutorGuionado>();
  ejecutor->contestar({"/bin/sh", "-c", "echo fuera; echo mal >&2; exit 3"},
                      ResultadoDeEjecucion{3, "fuera\nmal\n"});
  ejecutor->contestar({"/bin/sh", "-c", "printf %s \"$1\"", "sh", "a b'c\"$(x)\\"},
                      ResultadoDeEjecucion{0, "a b'c\"$(x)\\"});
  return ejecutor;
}

class ContratoDeEjecutor : public testing::TestWithParam<std::pair<char const*, Fabrica>> {
 protected:
  auto correr(std::string const& ruta, std::vector<std::string> const& args) {
    return ejecutor_->correr(ruta, args);
  }

 private:
  std::unique_ptr<Ejecutor> ejecutor_ = GetParam().second();
};

TEST_P(ContratoDeEjecutor, daElCodigoYLasDosSalidas) {
  EXPECT_EQ(correr("/bin/sh", {"-c", "echo fuera; echo mal >&2; exit 3"}),
            (ResultadoDeEjecucion{3, "fuera\nmal\n"}));
}

TEST_P(ContratoDeEjecutor, cadaArgumentoLlegaTalCual) {
  EXPECT_EQ(correr("/bin/sh", {"-c", "printf %s \"$1\"", "sh", "a b'c\"$(x)\\"}),
            (ResultadoDeEjecucion{0, "a b'c\"$(x)\\"}));
}

TEST_P(ContratoDeEjecutor, unProgramaQueNoExisteEsUnFalloDelSistema) {
  auto const resultado = correr("/no/hay/tal", {});
  ASSERT_FALSE(resultado.has_value());
  EXPECT_EQ(resultado.error().codigo, ENOENT);
  EXPECT_FALSE(resultado.error().descripcion.empty());
}

TEST_P(ContratoDeEjecutor, unNulEnUnArgumentoEsUnFalloDelSistema) {
  auto const resultado = correr("/bin/sh", {std::string{"a\0b", 3}});
  ASSERT_FALSE(resultado.has_value());
  EXPECT_EQ(resultado.error().codigo, EINVAL);
}

INSTANTIATE_TEST_SUITE_P(Todos, ContratoDeEjecutor,
                         testing::Values(std::pair{"Guionado", Fabrica{doble}},
                                         std::pair{"DeProcesos", Fabrica{[] {
                                                     return std::make_unique<EjecutorDeProcesos>();
                                                   }}}),
                         [](auto const& caso) { return std::string{caso.param.first}; });

}  // namespace
}  // namespace zorve
