#include "ZorvePlatform/Linux/AjusteDeKde.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zorve {
namespace {

std::optional<std::string> segun(std::vector<std::string> const& textos) {
  return ajusteDeKde(textos, "General", "Clave");
}

TEST(AjusteDeKde, sinArchivosNiClaveNoHayAjuste) {
  EXPECT_EQ(segun({}), std::nullopt);
  EXPECT_EQ(segun({"", "Clave=a\n[Otro]\nClave=b\n[General][Dentro]\nClave=c\n[General]\nOtra=d\n"}),
            std::nullopt);
  EXPECT_EQ(segun({"[General]\nClave=\n"}), std::nullopt);
}

TEST(AjusteDeKde, elMasImportanteDiceLaUltimaPalabra) {
  EXPECT_EQ(segun({"[General]\nClave=a\n", "[General]\nClave = b c \r\n"}), "b c");
  EXPECT_EQ(segun({"[General]\nClave=a\n", "[General]\nOtra=b\n"}), "a");
  EXPECT_EQ(segun({"[General]\nClave=a\nClave=b"}), "b");
}

TEST(AjusteDeKde, loBloqueadoNoLoCambiaNadie) {
  std::string const despues = "[General]\nClave=b\n";
  EXPECT_EQ(segun({"[General]\nClave[$i]=a\n", despues}), "a");
  EXPECT_EQ(segun({"[General]\nClave[$ei]=a\n", despues}), "a");
  EXPECT_EQ(segun({"[General][$i]\nClave=a\n", despues}), "a");
  EXPECT_EQ(segun({"[$i]\n[General]\nClave=a\n", despues}), "a");
  EXPECT_EQ(segun({"[Otro][$i]\nClave=a\n", despues}), "b");
}

TEST(AjusteDeKde, loBorradoVuelveASerNada) {
  EXPECT_EQ(segun({"[General]\nClave=a\n", "[General]\nClave[$d]\n"}), std::nullopt);
}

TEST(AjusteDeKde, lasMarcasNoSonParteDeLaClaveYLosIdiomasSi) {
  EXPECT_EQ(segun({"[General]\nClave[$e]=a\n"}), "a");
  EXPECT_EQ(segun({"[General]\nClave[es]=a\n"}), std::nullopt);
  EXPECT_EQ(segun({"[General]\n#Clave=a\n"}), std::nullopt);
}

TEST(AjusteDeKde, loRotoNoRompeNada) {
  EXPECT_EQ(segun({"[", "[General", "]\n[General]\nClave[=a\n[General]\nClave[$i", "=\n==\n[General]\n=x\n"}),
            std::nullopt);
}

}  // namespace
}  // namespace zorve
