#include "ZorvePlatform/Linux/RutaDelAyudante.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "Dobles/CarpetaTemporal.h"

namespace zorve {
namespace {

constexpr char const* delSistema = "/usr/libexec/zorve/zorve-terminal";

class RutaDelAyudanteTest : public testing::Test {
 protected:
  [[nodiscard]] std::string ayudante(std::string const& donde) const {
    auto ruta = carpeta.escribir(donde + "/zorve-terminal", "#!/bin/sh\n");
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
    return ruta;
  }
  dobles::CarpetaTemporal carpeta;
};

TEST_F(RutaDelAyudanteTest, estaJuntoAlProgramaOBajoLibexec) {
  auto const bin = carpeta.carpeta("bin");
  auto const enLibexec = ayudante("libexec/zorve");
  EXPECT_EQ(rutaDelAyudanteDesde(bin), enLibexec);
  auto const junto = ayudante("bin");
  EXPECT_EQ(rutaDelAyudanteDesde(bin), junto);
}

TEST_F(RutaDelAyudanteTest, dondeNoEstaSeBuscaEnElLugarDelSistema) {
  EXPECT_EQ(rutaDelAyudanteDesde(carpeta.carpeta("bin")), delSistema);
}

TEST_F(RutaDelAyudanteTest, unoQueNoSePuedeCorrerNoCuenta) {
  std::filesystem::permissions(ayudante("bin"), std::filesystem::perms{0644});
  EXPECT_EQ(rutaDelAyudanteDesde(carpeta.dentro("bin")), delSistema);
}

TEST_F(RutaDelAyudanteTest, unoQueOtrosPudieronPonerAhiNoCuenta) {
  (void)ayudante("libexec/zorve");
  for (auto const* const abierta : {"libexec", "libexec/zorve", "libexec/zorve/zorve-terminal"}) {
    std::filesystem::permissions(carpeta.dentro(abierta), std::filesystem::perms{0777});
    EXPECT_EQ(rutaDelAyudanteDesde(carpeta.carpeta("bin")), delSistema) << abierta;
    std::filesystem::permissions(carpeta.dentro(abierta), std::filesystem::perms{0755});
  }
}

}  // namespace
}  // namespace zorve
