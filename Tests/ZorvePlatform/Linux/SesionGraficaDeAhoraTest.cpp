#include "ZorvePlatform/Linux/SesionGraficaDeAhora.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "Dobles/CarpetaTemporal.h"

namespace zorve {
namespace {

/// A helper that says what a file holds, and notes that it was asked.
class SesionGraficaDeAhoraTest : public testing::Test {
 protected:
  SesionGraficaDeAhoraTest() { std::filesystem::permissions(ayudante, std::filesystem::perms{0755}); }

  void dice(std::string const& texto) const { (void)carpeta.escribir("dicho", texto); }
  [[nodiscard]] bool preguntado() const { return std::filesystem::exists(carpeta.dentro("preguntado")); }

  dobles::CarpetaTemporal carpeta;
  std::string ayudante =
      carpeta.escribir("ayudante", "#!/bin/sh\ntouch '" + carpeta.dentro("preguntado") +
                                       "'\n[ \"$1\" = desktop ] && cat '" + carpeta.dentro("dicho") + "'\n");
};

TEST_F(SesionGraficaDeAhoraTest, laExtensionDeGnomeSeMiraCadaVez) {
  SesionGraficaDeAhora sesion{SesionGrafica::gnome, ayudante};
  dice("gnome off\n");
  EXPECT_EQ(sesion.actual(), SesionGrafica::gnomeSinExtension);
  dice("gnome\n");
  EXPECT_EQ(sesion.actual(), SesionGrafica::gnomeSinExtension);
  sesion.mirar();
  EXPECT_EQ(sesion.actual(), SesionGrafica::gnome);
}

TEST_F(SesionGraficaDeAhoraTest, sinAyudanteLaExtensionCuentaComoApagada) {
  SesionGraficaDeAhora sesion{SesionGrafica::gnome, carpeta.dentro("no-esta")};
  EXPECT_EQ(sesion.actual(), SesionGrafica::gnomeSinExtension);
}

TEST_F(SesionGraficaDeAhoraTest, enOtrosEscritoriosNoSePreguntaANadie) {
  for (auto const cual :
       {SesionGrafica::x11, SesionGrafica::sway, SesionGrafica::kwin, SesionGrafica::otra}) {
    SesionGraficaDeAhora sesion{cual, ayudante};
    sesion.mirar();
    EXPECT_EQ(sesion.actual(), cual);
  }
  EXPECT_FALSE(preguntado());
}

}  // namespace
}  // namespace zorve
