#include <fcntl.h>
#include <unistd.h>

#include <string>

#include <gtest/gtest.h>

#include "ZorvePlatform/Posix/ArchivosPosix.h"

namespace zorve {
namespace {

TEST(ArchivosPosix, lasLecturasCortasSeJuntan) {
  // The kernel hands this one out a page at a time, whatever is asked for.
  constexpr char const* porPaginas = "/proc/kallsyms";
  std::string trozo(1 << 20, '\0');
  int const descriptor = ::open(porPaginas, O_RDONLY | O_CLOEXEC);
  auto const deUnaVez = descriptor < 0 ? -1 : ::pread(descriptor, trozo.data(), trozo.size(), 0);
  ::close(descriptor);
  if (deUnaVez <= 0 || deUnaVez >= 1 << 18) GTEST_SKIP() << "no file here is read short";
  ArchivosPosix archivos;
  auto const archivo = archivos.abrir(porPaginas);
  ASSERT_TRUE(archivo);
  EXPECT_EQ((*archivo)->leer(0, trozo), trozo.size());
  EXPECT_EQ(trozo.find('\0'), std::string::npos);
}

}  // namespace
}  // namespace zorve
