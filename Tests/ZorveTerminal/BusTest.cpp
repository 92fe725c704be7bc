#include "ZorveTerminal/Bus.h"

#include <gtest/gtest.h>

#include <vector>

namespace zorve {
namespace {

using Numeros = std::vector<std::uint32_t>;

TEST(NodosNumerados, sonLosHijosCuyoNombreEsElPrefijoYUnNumero) {
  constexpr char const* texto =
      "<node><interface name=\"7\"/><node name=\"10\"/><node name=\"2\"/><node name=\"a3\"/></node>";
  EXPECT_EQ(nodosNumerados(texto, ""), (Numeros{2, 10}));
  EXPECT_EQ(nodosNumerados(texto, "a"), Numeros{3});
}

TEST(NodosNumerados, loQueNoEsUnNumeroNoCuenta) {
  for (auto const* const texto :
       {"", "<node name=\"", "<node name=\"\"/>", "<node name=\"-1\"/>", "<node name=\"1 \"/>",
        "<node name=\"99999999999\"/>", "<node name=\"/org\">"}) {
    EXPECT_EQ(nodosNumerados(texto, ""), Numeros{}) << texto;
  }
}

}  // namespace
}  // namespace zorve
