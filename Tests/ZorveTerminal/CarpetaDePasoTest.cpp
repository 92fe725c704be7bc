#include "ZorveTerminal/CarpetaDePaso.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "Dobles/CarpetaTemporal.h"

namespace zorve::ayudante {
namespace {

constexpr uid_t alguien = 61001;
LugarDePaso const deTodos{"/tmp", false};

class LugarDePasoTest : public testing::Test {
 protected:
  [[nodiscard]] std::string cerrada(std::string const& nombre) const {
    auto ruta = carpeta.carpeta(nombre);
    std::filesystem::permissions(ruta, std::filesystem::perms{0700});
    return ruta;
  }
  dobles::CarpetaTemporal carpeta;
  std::string home = carpeta.carpeta("home");
};

TEST_F(LugarDePasoTest, esLaCarpetaDeEjecucionSiEsMiaYEstaCerradaALosDemas) {
  auto const r = cerrada("r");
  EXPECT_EQ(lugarDePaso(r, home), (LugarDePaso{r, true}));
}

TEST_F(LugarDePasoTest, unaAbiertaRelativaAusenteOConLetrasRarasNoCuenta) {
  auto const abierta = carpeta.carpeta("abierta");
  for (auto const& cual :
       {abierta, std::string{"r"}, std::string{}, carpeta.dentro("nada"), cerrada("con blanco")}) {
    EXPECT_EQ(lugarDePaso(cual, home), deTodos) << cual;
  }
}

TEST_F(LugarDePasoTest, laDeOtraPersonaNoCuenta) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make a folder of another user";
  auto const r = cerrada("r");
  ASSERT_EQ(::chown(r.c_str(), alguien, alguien), 0);
  EXPECT_EQ(lugarDePaso(r, home), deTodos);
}

TEST_F(LugarDePasoTest, siNoLaHayEsLaReservaDeLaCasaDondeNadieMasEscribe) {
  auto const reserva = carpeta.carpeta("home/.cache");
  EXPECT_EQ(lugarDePaso("", home), (LugarDePaso{reserva, true}));
  std::filesystem::permissions(reserva, std::filesystem::perms{01777});
  EXPECT_EQ(lugarDePaso("", home), deTodos);
}

TEST(CarpetaDePaso, seVaConTodoLoSuyoSalvoSiSeDeja) {
  dobles::CarpetaTemporal const carpeta;
  LugarDePaso const lugar{carpeta.ruta(), true};
  std::string ruta;
  {
    CarpetaDePaso const paso{lugar};
    ruta = paso.ruta();
    EXPECT_TRUE(paso.escribir("a", "texto"));
    EXPECT_FALSE(paso.escribir("a", "otra vez")) << "what is there is not written over";
    EXPECT_EQ(std::filesystem::status(ruta).permissions(), std::filesystem::perms{0700});
  }
  EXPECT_FALSE(std::filesystem::exists(ruta));
  {
    CarpetaDePaso paso{lugar};
    ruta = paso.ruta();
    paso.dejar();
  }
  EXPECT_TRUE(std::filesystem::exists(ruta));
}

TEST(CarpetaDePaso, dondeNoSePuedeHacerNoHayNinguna) {
  CarpetaDePaso const paso{{"/proc", true}};
  EXPECT_EQ(paso.ruta(), "");
  EXPECT_FALSE(paso.escribir("a", "x"));
}

}  // namespace
}  // namespace zorve::ayudante
