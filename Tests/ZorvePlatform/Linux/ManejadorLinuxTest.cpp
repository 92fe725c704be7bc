#include "ZorvePlatform/Linux/ManejadorLinux.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "Dobles/CarpetaTemporal.h"
#include "ZorveCore/Terminales/CatalogoDeTerminales.h"

namespace zorve {
namespace {

class ManejadorLinuxTest : public testing::Test {
 protected:
  [[nodiscard]] std::optional<std::string> conEnlaceA(std::string const& destino) const {
    std::filesystem::remove(enlace);
    std::filesystem::create_symlink(destino, enlace);
    return manejadorRegistrado(ManejadorLinux{enlace});
  }

  dobles::CarpetaTemporal carpeta;
  std::string enlace = carpeta.dentro("x-terminal-emulator");
};

TEST_F(ManejadorLinuxTest, elProgramaDelEnlaceDiceQueTerminalEs) {
  EXPECT_EQ(conEnlaceA("/usr/bin/xterm"), "xterm");
}

TEST_F(ManejadorLinuxTest, laEnvolturaDeDebianSeQuita) {
  EXPECT_EQ(conEnlaceA("/usr/bin/xterm.wrapper"), "xterm");
}

TEST_F(ManejadorLinuxTest, lasVariantesDeXtermSonXterm) {
  for (auto const* programa : {"/usr/bin/lxterm", "/usr/bin/uxterm", "/usr/bin/koi8rxterm"}) {
    EXPECT_EQ(conEnlaceA(programa), "xterm") << programa;
  }
}

TEST_F(ManejadorLinuxTest, unProgramaDesconocidoNoEsNinguna) {
  EXPECT_EQ(conEnlaceA("/usr/bin/otra"), std::nullopt);
  EXPECT_EQ(conEnlaceA("/usr/bin/xterm/otra"), std::nullopt);
  EXPECT_EQ(conEnlaceA("/usr/bin/.wrapper"), std::nullopt);
}

TEST_F(ManejadorLinuxTest, sinEnlaceNoHayManejador) {
  EXPECT_EQ(manejadorRegistrado(ManejadorLinux{enlace}), std::nullopt);
  carpeta.escribir("x-terminal-emulator", "");
  EXPECT_EQ(manejadorRegistrado(ManejadorLinux{enlace}), std::nullopt);
}

TEST_F(ManejadorLinuxTest, soloHayManejadorParaGuionesDeShell) {
  std::filesystem::create_symlink("/usr/bin/xterm", enlace);
  EXPECT_EQ(ManejadorLinux{enlace}.preguntar("public.html"), RespuestaDelSistema{});
}

}  // namespace
}  // namespace zorve
