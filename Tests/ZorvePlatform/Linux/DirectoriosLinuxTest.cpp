#include "ZorvePlatform/Linux/DirectoriosLinux.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/RaizMontada.h"
#include "ZorvePlatform/Linux/Montajes.h"

namespace zorve {
namespace {

namespace fs = std::filesystem;

class DirectoriosLinuxTest : public testing::Test {
 protected:
  [[nodiscard]] static bool falta(std::string const& ruta) { return faltaSegun(DirectoriosLinux{}, ruta); }
  [[nodiscard]] static bool faltaSegun(DirectoriosLinux directorios, std::string const& ruta) {
    return !directorios.losQueFaltan(std::span{&ruta, 1}).empty();
  }

  dobles::CarpetaTemporal carpeta;
};

TEST_F(DirectoriosLinuxTest, loQueNoEsUnDirectorioFalta) {
  if (!dobles::raizMontada()) GTEST_SKIP() << "the root here is no mount of its own";
  EXPECT_TRUE(falta(carpeta.escribir("fichero", "")));
  EXPECT_TRUE(falta(carpeta.dentro("fichero/dentro")));
}

TEST_F(DirectoriosLinuxTest, losEnlacesSeSiguen) {
  if (!dobles::raizMontada()) GTEST_SKIP() << "the root here is no mount of its own";
  carpeta.carpeta("real/dentro");
  fs::create_directory_symlink("real", carpeta.dentro("relativo"));
  fs::create_directory_symlink(carpeta.dentro("real"), carpeta.dentro("absoluto"));
  fs::create_directory_symlink("../real/dentro/..", carpeta.dentro("real/vuelta"));
  fs::create_directory_symlink("nada", carpeta.dentro("roto"));
  EXPECT_FALSE(falta(carpeta.dentro("relativo/dentro")));
  EXPECT_FALSE(falta(carpeta.dentro("absoluto/dentro")));
  EXPECT_FALSE(falta(carpeta.dentro("real/vuelta/dentro")));
  EXPECT_TRUE(falta(carpeta.dentro("roto")));
  EXPECT_TRUE(falta(carpeta.dentro("absoluto/nada")));
}

TEST_F(DirectoriosLinuxTest, deUnCirculoDeEnlacesNoSeSabe) {
  fs::create_directory_symlink("b", carpeta.dentro("a"));
  fs::create_directory_symlink("a", carpeta.dentro("b"));
  EXPECT_FALSE(falta(carpeta.dentro("a")));
}

TEST_F(DirectoriosLinuxTest, deUnaRutaRelativaNoSeSabe) { EXPECT_FALSE(falta("no-esta")); }

TEST_F(DirectoriosLinuxTest, loQueSirveOtraMaquinaNoSeMira) {
  auto const linea = [](std::string const& donde, std::string const& tipo) {
    return "30 1 0:1 / " + donde + " rw - " + tipo + " x rw\n";
  };
  auto const remoto = carpeta.carpeta("remoto");
  fs::create_directory_symlink("remoto", carpeta.dentro("enlace"));
  auto const tabla = carpeta.escribir("mountinfo", linea("/", "ext4") + linea(remoto, "nfs4"));
  EXPECT_FALSE(faltaSegun(DirectoriosLinux{tabla}, remoto + "/nada"));
  EXPECT_FALSE(faltaSegun(DirectoriosLinux{tabla}, carpeta.dentro("enlace/nada")));
  EXPECT_TRUE(faltaSegun(DirectoriosLinux{tabla}, carpeta.dentro("nada")));
}

TEST_F(DirectoriosLinuxTest, sinLaTablaDeMontajesNoFaltaNinguno) {
  EXPECT_FALSE(faltaSegun(DirectoriosLinux{carpeta.dentro("nada")}, carpeta.dentro("nada")));
}

TEST(Montajes, elUltimoMontajeDelLugarMasLargoDecide) {
  Montajes const montajes{
      "1 0 8:1 / / rw shared:1 - ext4 /dev/a rw\n"
      "2 1 0:5 / /mnt/con\\040blanco rw - nfs srv:/x rw\n"
      "basura\n"
      "3 1 0:6 / /home rw - autofs x rw\n"
      "4 3 8:2 / /home rw - xfs /dev/b rw\n"
      "5 1 0:7 / /net rw - fuse.sshfs x rw\n"};
  EXPECT_TRUE(montajes.esLocal("/srv/x"));
  EXPECT_FALSE(montajes.esLocal("/mnt/con blanco"));
  EXPECT_FALSE(montajes.esLocal("/mnt/con blanco/x"));
  EXPECT_TRUE(montajes.esLocal("/mnt/con blancos"));
  EXPECT_TRUE(montajes.esLocal("/home/ana"));
  EXPECT_FALSE(montajes.esLocal("/net/x"));
  EXPECT_FALSE(Montajes{""}.esLocal("/"));
}

}  // namespace
}  // namespace zorve
