#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "Dobles/CarpetaTemporal.h"
#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {
namespace {

TEST(ArchivosOcultos, unNombreConPuntoNoEsUnaMarcaDelSistemaDeArchivos) {
  dobles::CarpetaTemporal const carpeta;
  EXPECT_FALSE(ArchivosPosix{}.atributos(carpeta.escribir(".a", ""))->oculto);
}

#ifdef __APPLE__
TEST(ArchivosOcultos, laMarcaDelSistemaDeArchivosSeVe) {
  dobles::CarpetaTemporal const carpeta;
  auto const ruta = carpeta.escribir("a", "");
  ASSERT_EQ(::chflags(ruta.c_str(), UF_HIDDEN), 0);
  EXPECT_TRUE(ArchivosPosix{}.atributos(ruta)->oculto);
}
#endif

}  // namespace
}  // namespace zorve
