#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/DirectoriosFijos.h"
#include "Dobles/RaizMontada.h"
#include "ZorvePlatform/Linux/DirectoriosLinux.h"

namespace zorve {
namespace {

struct MundoLinux {
  dobles::CarpetaTemporal carpeta;
  DirectoriosLinux directorios;
  std::string presente = carpeta.carpeta("esta");
  std::string ausente = carpeta.dentro("no-esta");
};

struct MundoDePrueba {
  MundoDePrueba() { directorios.perdidos.insert(ausente); }
  dobles::DirectoriosFijos directorios;
  std::string presente = "/esta";
  std::string ausente = "/no-esta";
};

template <class Mundo>
class DirectoriosContrato : public testing::Test {
 protected:
  Mundo mundo;
};

using Mundos = testing::Types<MundoLinux, MundoDePrueba>;
TYPED_TEST_SUITE(DirectoriosContrato, Mundos);

TYPED_TEST(DirectoriosContrato, daLosQueFaltanYNoLosDemas) {
  if (!dobles::raizMontada()) GTEST_SKIP() << "the root here is no mount of its own";
  auto const& [presente, ausente] = std::pair{this->mundo.presente, this->mundo.ausente};
  std::vector<std::string> const rutas{presente, ausente};
  EXPECT_EQ(this->mundo.directorios.losQueFaltan(rutas), std::vector<std::string>{ausente});
}

TYPED_TEST(DirectoriosContrato, deNingunoNoFaltaNinguno) {
  EXPECT_TRUE(this->mundo.directorios.losQueFaltan({}).empty());
}

}  // namespace
}  // namespace zorve
