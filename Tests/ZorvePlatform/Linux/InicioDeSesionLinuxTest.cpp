#include "ZorvePlatform/Linux/InicioDeSesionLinux.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Dobles/CarpetaTemporal.h"

namespace zorve {
namespace {

std::string leer(std::string const& ruta) {
  std::ifstream archivo{ruta};
  return {std::istreambuf_iterator<char>{archivo}, {}};
}

class InicioDeSesionLinuxTest : public testing::Test {
 protected:
  dobles::CarpetaTemporal carpeta_;
  EntornoLinux entorno_{
      .home = "/home/ana", .path = {}, .configHome = carpeta_.ruta() + "/config", .datos = {}};
  InicioDeSesionLinux inicio_{entorno_, "/opt/zorve/bin/zorve"};
};

TEST_F(InicioDeSesionLinuxTest, sinEntradaNoEstaActivo) { EXPECT_FALSE(inicio_.activo()); }

TEST_F(InicioDeSesionLinuxTest, alRegistrarEscribeUnaEntradaConLaRutaAbsoluta) {
  ASSERT_TRUE(inicio_.registrar());
  EXPECT_TRUE(inicio_.activo());
  EXPECT_NE(leer(inicio_.entrada()).find("\nExec=\"/opt/zorve/bin/zorve\"\n"), std::string::npos);
}

TEST_F(InicioDeSesionLinuxTest, lasCarpetasQueHaceEstanCerradasALosDemas) {
  auto const antes = ::umask(0);
  ASSERT_TRUE(inicio_.registrar());
  ::umask(antes);
  auto const autoarranque = std::filesystem::path{inicio_.entrada()}.parent_path();
  for (auto const& carpeta : {autoarranque, autoarranque.parent_path()}) {
    EXPECT_EQ(std::filesystem::status(carpeta).permissions(), std::filesystem::perms{0700}) << carpeta;
  }
}

TEST_F(InicioDeSesionLinuxTest, alRetirarQuitaLaEntrada) {
  ASSERT_TRUE(inicio_.registrar());
  ASSERT_TRUE(inicio_.retirar());
  EXPECT_FALSE(inicio_.activo());
  EXPECT_FALSE(std::filesystem::exists(inicio_.entrada()));
}

TEST_F(InicioDeSesionLinuxTest, retirarLoQueNoEstaSaleBien) { EXPECT_TRUE(inicio_.retirar()); }

TEST_F(InicioDeSesionLinuxTest, unaEntradaEscondidaNoEstaActiva) {
  ASSERT_TRUE(inicio_.registrar());
  std::ofstream{inicio_.entrada(), std::ios::app} << "Hidden=true\n";
  EXPECT_FALSE(inicio_.activo());
}

TEST_F(InicioDeSesionLinuxTest, unaCarpetaQueNoSePuedeHacerEsUnFallo) {
  std::ofstream{entorno_.configHome} << "un archivo en su lugar";
  auto const registrado = inicio_.registrar();
  ASSERT_FALSE(registrado);
  EXPECT_EQ(registrado.error(), entorno_.configHome + "/autostart: Not a directory");
  EXPECT_FALSE(inicio_.activo());
}

TEST(ArgumentoDeExec, losCaracteresEspecialesSeEscapanDosVeces) {
  EXPECT_EQ(argumentoDeExec("/a b"), R"("/a b")");
  EXPECT_EQ(argumentoDeExec("/a$b"), R"("/a\\$b")");
  EXPECT_EQ(argumentoDeExec("/a\"b`"), R"("/a\\"b\\`")");
  EXPECT_EQ(argumentoDeExec("/a\\b"), R"("/a\\\\b")");
  EXPECT_EQ(argumentoDeExec("/100%"), R"("/100%%")");
}

}  // namespace
}  // namespace zorve
