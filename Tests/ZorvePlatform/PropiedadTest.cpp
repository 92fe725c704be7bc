#include "ZorvePlatform/Posix/Propiedad.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "Dobles/CarpetaTemporal.h"

namespace zorve {
namespace {

constexpr uid_t alguien = 61001;

class PropiedadTest : public testing::Test {
 protected:
  void modo(std::string const& cual, mode_t bits) const {
    ASSERT_EQ(::chmod(carpeta.dentro(cual).c_str(), bits), 0);
  }
  dobles::CarpetaTemporal carpeta;
};

TEST_F(PropiedadTest, loMioEnUnaCarpetaMiaEsSoloNuestro) {
  auto const archivo = carpeta.escribir("a/b/archivo", "x");
  EXPECT_TRUE(soloNuestra(archivo));
  EXPECT_TRUE(soloNuestra("/"));
  EXPECT_TRUE(soloNuestra("/tmp")) << "sticky";
}

TEST_F(PropiedadTest, loQueOtrosPuedenCambiarNoLoEs) {
  auto const archivo = carpeta.escribir("a/b/archivo", "x");
  modo("a/b/archivo", 0666);
  EXPECT_FALSE(soloNuestra(archivo));
  modo("a/b/archivo", 0644);
  modo("a", 0777);
  EXPECT_FALSE(soloNuestra(archivo)) << "a folder farther up";
  modo("a", 01777);
  EXPECT_TRUE(soloNuestra(archivo)) << "sticky";
}

TEST_F(PropiedadTest, nadaRelativoNiAusenteLoEs) {
  EXPECT_FALSE(soloNuestra(""));
  EXPECT_FALSE(soloNuestra("."));
  EXPECT_FALSE(soloNuestra(carpeta.dentro("nada")));
}

TEST_F(PropiedadTest, unEnlaceValeLoQueAquelloAQueLleva) {
  carpeta.carpeta("abierta");
  modo("abierta", 0777);
  carpeta.escribir("abierta/archivo", "x");
  std::filesystem::create_symlink(carpeta.dentro("abierta/archivo"), carpeta.dentro("enlace"));
  EXPECT_FALSE(soloNuestra(carpeta.dentro("enlace")));
}

TEST_F(PropiedadTest, loDeOtraPersonaNoEsNuestro) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make files of another user";
  auto const archivo = carpeta.escribir("a/archivo", "x");
  ASSERT_EQ(::chown(carpeta.dentro("a").c_str(), alguien, alguien), 0);
  EXPECT_FALSE(soloNuestra(archivo));
}

TEST_F(PropiedadTest, unGrupoConOtrosPuedeCambiarlo) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a folder to another group";
  carpeta.carpeta("a");
  ASSERT_EQ(::chown(carpeta.dentro("a").c_str(), 0, alguien), 0);
  modo("a", 02775);
  EXPECT_FALSE(soloNuestra(carpeta.dentro("a")));
}

TEST_F(PropiedadTest, privadaEsLaMiaCerradaALosDemas) {
  auto const cual = carpeta.carpeta("r");
  modo("r", 0700);
  EXPECT_TRUE(esCarpetaPrivada(cual));
  for (mode_t const bits : {0755U, 0710U, 0701U, 0777U, 01777U}) {
    modo("r", bits);
    EXPECT_FALSE(esCarpetaPrivada(cual)) << bits;
  }
  modo("r", 0700);
  std::filesystem::create_directory_symlink(cual, carpeta.dentro("enlace"));
  EXPECT_FALSE(esCarpetaPrivada(carpeta.dentro("enlace")));
}

}  // namespace
}  // namespace zorve
