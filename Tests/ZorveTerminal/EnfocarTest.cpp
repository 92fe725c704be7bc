#include "ZorveTerminal/EleccionDeVentana.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "Dobles/Pseudoterminal.h"
#include "ZorveTerminal/ProcesosDelTty.h"
#include "ZorveTerminal/Sway.h"

namespace zorve {
namespace {

constexpr std::array<pid_t, 3> ascendencia_{30, 20, 10};
std::vector<Ventana> const ventanas{{1, 10}, {2, 20}, {3, 20}, {4, 99}, {5, 0}};

TEST(VentanaDe, laPropiaSiEstaYEsDeUnAscendiente) {
  EXPECT_EQ(ventanaDe(ventanas, ascendencia_, 3), 3U);
  EXPECT_EQ(ventanaDe(ventanas, ascendencia_, 1), 1U);
}

TEST(VentanaDe, unaPropiaAjenaODesaparecidaNoCuenta) {
  std::vector<Ventana> const una{{1, 10}, {4, 99}};
  EXPECT_EQ(ventanaDe(una, ascendencia_, 4), 1U);
  EXPECT_EQ(ventanaDe(una, ascendencia_, 7), 1U);
  EXPECT_EQ(ventanaDe(una, ascendencia_, 0), 1U);
}

TEST(VentanaDe, deVariasDelMasCercanoNingunaSeAdivina) {
  EXPECT_EQ(ventanaDe(ventanas, ascendencia_, 0), std::unexpected{SinVentana::varias});
}

TEST(VentanaDe, sinVentanasNoHayNinguna) {
  EXPECT_EQ(ventanaDe({}, ascendencia_, 3), std::unexpected{SinVentana::ninguna});
  EXPECT_EQ(ventanaDe(ventanas, {}, 3), std::unexpected{SinVentana::ninguna});
}

TEST(VentanasDelArbol, sonLosNodosConProcesoEnElOrdenDelArbol) {
  EXPECT_EQ(ventanasDelArbol(
                R"({"id":1,"nodes":[{"id":2,"pid":20,"name":"a","focused":true,"nodes":[]},{"id":3,"nodes":[
      {"id":4,"pid":40,"name":null}],"floating_nodes":[{"id":5,"pid":50,"name":"ñ\n","focused":false}]}]})"),
            (std::vector<Ventana>{{2, 20, "a", true}, {4, 40}, {5, 50, "ñ\n"}}));
}

TEST(VentanasDelArbol, loQueNoSeEntiendeNoTieneVentanas) {
  for (auto const* const texto : {"", "{", "[]", "7", "{\"id\":\"x\",\"pid\":1}", "{\"nodes\":{}}"}) {
    EXPECT_TRUE(ventanasDelArbol(texto).empty()) << texto;
  }
}

TEST(LeerStat, elNombreDelProcesoPuedeSerCualquiera) {
  EXPECT_EQ(leerStat("12 (a) b (c)) S 3 4 5 34816 7"), (Proceso{12, 3, 5, 34816}));
  EXPECT_EQ(leerStat("12 (tmux: server) S 1 12 12 0 -1"), (Proceso{12, 1, 12, 0}));
  EXPECT_EQ(leerStat("12 (a) S 3 4 5 34816 8 9 10 11 12 13 14 15 16 17 18 19 20 21 987654321012 23"),
            (Proceso{12, 3, 5, 34816, 987654321012}));
}

TEST(LeerStat, loQueNoSeEntiendeNoEsUnProceso) {
  for (auto const* const texto : {"", "x", "12", "12 (a", "12 (a)", "12 (a) S 3", "x (a) S 3 4 5 6"}) {
    EXPECT_EQ(leerStat(texto), std::nullopt) << texto;
  }
}

TEST(ProcesosDelTty, elLiderDeLaSesionDeUnDispositivoYSuAscendencia) {
  dobles::Pseudoterminal terminal{
      {"/bin/sh", "-c", "echo [$(tty)] [$$]; read -r linea"}, {"PATH=/usr/bin:/bin", "MIA=a=b"}, "/"};
  ASSERT_TRUE(terminal.esperar("] ["));
  ASSERT_TRUE(terminal.esperar("]"));
  auto const pantalla = terminal.pantalla();
  auto const tty = pantalla.substr(1, pantalla.find(']') - 1);
  auto const pid = std::stoi(pantalla.substr(pantalla.find("] [") + 3));
  auto const lider = liderDelTty(tty);
  ASSERT_TRUE(lider) << tty;
  EXPECT_EQ(lider->pid, pid);
  EXPECT_EQ(liderDelTty(tty.substr(5)), lider);
  EXPECT_EQ(variableDelProceso(pid, "MIA"), "a=b");
  EXPECT_EQ(variableDelProceso(pid, "IA"), "");
  auto const todos = ascendencia(*lider);
  ASSERT_GE(todos.size(), 2U);
  EXPECT_EQ(todos[0], pid);
  EXPECT_EQ(todos[1], ::getpid());
  EXPECT_EQ(sesionesDe(::getpid()), std::vector{*lider});
  EXPECT_TRUE(sesionesDe(pid).empty());
}

TEST(ProcesosDelTty, loQueNoEsUnaTerminalNoTieneLider) {
  for (auto const* const tty : {"", "/dev/", "pts/99999", "null", "../tmp", "pts/..", "a b", "/etc/passwd"}) {
    EXPECT_EQ(liderDelTty(tty), std::nullopt) << tty;
  }
}

}  // namespace
}  // namespace zorve
