#include <cstring>

#include "Consola/EnConsola.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;
using testing::Not;

class AbrirEnConsola : public EnConsola {};

TEST_F(AbrirEnConsola, laAcabadaTomaElLugarDelPanelYSuEstadoEsElNuestro) {
  conClaude("echo \"corre $*\"; pwd; [ -t 0 ] && [ -t 1 ] && echo en terminal; exit 7");
  auto& vista = abrir();
  vista.escribir("icon");
  ASSERT_TRUE(vista.esperar("1/1"));
  vista.escribir("\r");
  EXPECT_EQ(vista.terminar(), 7);
  EXPECT_TRUE(vista.donde("corre -r " + id(3)));
  EXPECT_TRUE(vista.donde(enElHome("src/icon")));
  EXPECT_TRUE(vista.donde("en terminal"));
  EXPECT_FALSE(vista.enPantallaAparte());
}

TEST_F(AbrirEnConsola, controlCLlegaALaSesionYNoLaCierraElPanel) {
  conClaude("trap 'echo interrumpida; exit 3' INT; echo lista; while :; do sleep 0.05; done");
  auto& vista = abrir();
  vista.escribir("icon\r");
  ASSERT_TRUE(vista.esperar("lista"));
  vista.escribir("\x03");
  EXPECT_EQ(vista.terminar(), 3);
  EXPECT_TRUE(vista.donde("interrumpida"));
}

TEST_F(AbrirEnConsola, unDirectorioQueFaltaSeDiceYElPanelSigue) {
  std::filesystem::remove_all(enElHome("src/icon"));
  auto& vista = abrir();
  vista.escribir("icon");
  ASSERT_TRUE(vista.esperar("1/1"));
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperar("No such file"));
  EXPECT_TRUE(vista.donde("Could not open the session"));
  vista.escribir("\x1B");
  EXPECT_EQ(vista.terminar(), 0);
}

TEST_F(AbrirEnConsola, unaQueCorreEnOtroSitioSeDiceConLaTeclaDeAqui) {
  auto& vista = abrir();
  vista.escribir("\r");
  EXPECT_TRUE(vista.esperar("▎ The session is alive"));
}

TEST_F(AbrirEnConsola, conPrintSaleLaLineaYElTerminalQuedaComoEstaba) {
  auto como = con();
  como.palabras = {
      "/bin/sh", "-c",
      std::string{"x=$("} + ZORVECTL + " panel --print --filter icon); echo \"[$x]\"; eval \"$x\" ; pwd"};
  como.columnas = 200;
  conClaude("exit 0");
  como.entorno.push_back("PATH=" + enElHome("propios") + ":/usr/bin:/bin");
  std::erase(como.entorno, "PATH=/usr/bin:/bin");
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/1"));
  pantalla->escribir("\r");
  EXPECT_EQ(pantalla->terminar(), 0);
  EXPECT_TRUE(pantalla->donde("[cd '" + enElHome("src/icon") + "' && claude -r '" + id(3) + "']"));
  EXPECT_THAT(pantalla->lineas(), testing::Contains(enElHome("src/icon")));
}

TEST_F(AbrirEnConsola, dejarElPanelConPrintNoEscribeNada) {
  auto como = con();
  como.palabras = {"/bin/sh", "-c", std::string{"x=$("} + ZORVECTL + " panel --print); echo \"[$x] $?\""};
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/3"));
  pantalla->escribir("\x1B");
  EXPECT_EQ(pantalla->terminar(), 0);
  EXPECT_TRUE(pantalla->donde("[] 0"));
}

}  // namespace
}  // namespace zorve::pruebas
