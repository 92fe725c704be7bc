#include <sys/syscall.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <thread>

#include "Consola/EnConsola.h"
#include "ZorveTui/Consola.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;

class Devolver : public EnConsola {
 protected:
  void seDevuelve() const {
    EXPECT_FALSE(pantalla->enPantallaAparte());
    EXPECT_TRUE(pantalla->cursorVisible());
    EXPECT_TRUE(pantalla->comoUnaShellLaQuiere());
  }
  void trasLaSenal(int senal) {
    auto& vista = abrir();
    EXPECT_TRUE(vista.enPantallaAparte());
    EXPECT_FALSE(vista.comoUnaShellLaQuiere());
    ::kill(vista.pid(), senal);
    EXPECT_EQ(vista.terminar(), -senal);
    seDevuelve();
  }
};

TEST_F(Devolver, alSalir) {
  abrir().escribir("\x1B");
  EXPECT_EQ(pantalla->terminar(), 0);
  seDevuelve();
}

TEST_F(Devolver, conLasSenalesQueAcaban) {
  for (int const senal : {SIGTERM, SIGHUP, SIGINT}) trasLaSenal(senal);
}

TEST_F(Devolver, conLasFaltas) {
  for (int const senal : {SIGSEGV, SIGABRT, SIGBUS}) trasLaSenal(senal);
}

TEST_F(Devolver, cuandoUnHiloCaeConUnaExcepcionQueNadieToma) {
  auto como = con();
  como.enLugar = [] {
    ::setenv("TERM", "xterm-256color", 1);
    auto const consola = tui::Consola::abrir();
    (*consola)->escribir("puesta");
    std::thread{[] { throw std::runtime_error("the loading thread fails"); }}.join();
    return 0;
  };
  pantalla = std::make_unique<PantallaVirtual>(como);
  EXPECT_EQ(pantalla->terminar(), -SIGABRT);
  EXPECT_THAT(pantalla->sacarBytes(), HasSubstr("puesta"));
  seDevuelve();
}

TEST_F(Devolver, cuandoUnHiloDeLaCargaFallaEnMemoria) {
  auto como = con();
  como.enLugar = [] {
    ::setenv("TERM", "xterm-256color", 1);
    auto const consola = tui::Consola::abrir();
    std::thread{[] { ::syscall(SYS_tgkill, ::getpid(), ::gettid(), SIGSEGV); }}.join();
    return 0;
  };
  pantalla = std::make_unique<PantallaVirtual>(como);
  EXPECT_EQ(pantalla->terminar(), -SIGSEGV);
  seDevuelve();
}

TEST_F(Devolver, sinNadieAlOtroLadoAcabaEnMenosDeUnSegundo) {
  EXPECT_LT(abrir().colgar(), std::chrono::seconds{1});
}

TEST_F(Devolver, sinNadieAlOtroLadoAcabaAunqueSeIgnoreLaSenal) {
  auto como = con();
  como.palabras = {"/bin/sh", "-c", std::string{"trap '' HUP; exec "} + ZORVECTL + " panel"};
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/3"));
  EXPECT_LT(pantalla->colgar(), std::chrono::seconds{1});
}

TEST_F(Devolver, sinTerminalEsUnaFraseYEstadoDos) {
  auto const corrida =
      dobles::correr({"/usr/bin/setsid", "--wait", ZORVECTL, "panel"}, {{"HOME", home.ruta()}});
  EXPECT_EQ(corrida.codigo, 2);
  EXPECT_EQ(corrida.error,
            "zorvectl: there is no terminal here to draw the panel on; zorvectl list needs none\n");
  EXPECT_EQ(corrida.salida, "");
}

TEST_F(Devolver, enUnaQueNoSeDejaDibujarEsUnaFraseYEstadoDos) {
  for (auto const* cual : {"TERM=dumb", "TERM="}) {
    pantalla = std::make_unique<PantallaVirtual>(con({}, {cual}));
    EXPECT_EQ(pantalla->terminar(), 2);
    EXPECT_THAT(pantalla->linea(0), HasSubstr("cannot be drawn on"));
    EXPECT_FALSE(pantalla->enPantallaAparte());
  }
}

TEST_F(Devolver, unaQueAquiNoSeConoceSeDibujaComoLaQueTodasImitan) {
  auto& vista = abrir(con({}, {"TERM=una-que-nadie-conoce"}));
  vista.escribir("\x1B");
  EXPECT_EQ(vista.terminar(), 0);
}

TEST_F(Devolver, laSalidaEstandarQuedaLibre) {
  auto como = con();
  auto const archivo = enElHome("salida");
  como.palabras = {"/bin/sh", "-c", std::string{ZORVECTL} + " panel >" + archivo + " 2>&1 </dev/null"};
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/3"));
  pantalla->escribir("\x1B");
  EXPECT_EQ(pantalla->terminar(), 0);
  EXPECT_EQ(std::filesystem::file_size(archivo), 0U);
}

}  // namespace
}  // namespace zorve::pruebas
