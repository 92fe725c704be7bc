#include "ZorveTerminal/EleccionDeVentana.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>
#include <vector>

#include "Dobles/Pseudoterminal.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/Sway.h"

namespace zorve::ayudante {
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

TEST(VentanasDelArbol, unTituloQueNoEsUtf8NoOcultaNingunaVentana) {
  EXPECT_EQ(ventanasDelArbol("{\"id\":1,\"nodes\":[{\"id\":2,\"pid\":20,\"name\":\"bad\xff title\"}]}"),
            (std::vector<Ventana>{{2, 20, "bad\uFFFD title"}}));
}

TEST(VentanasDelArbol, unaVentanaDeXNoPasaPorLaDeNingunProceso) {
  EXPECT_TRUE(ventanasDelArbol(R"({"id":2,"pid":20,"shell":"xwayland","name":"a"})").empty());
}

TEST(VentanaDe, laPropiaValeAunqueUnProcesoMasCercanoTengaOtra) {
  EXPECT_EQ(ventanaDe(std::vector<Ventana>{{7, 30}, {1, 10}}, ascendencia_, 1), 1U);
}

TEST(VentanasDelArbol, unProcesoQueNoCabeEnElTipoNoPasaPorOtro) {
  EXPECT_TRUE(ventanasDelArbol(R"({"id":1,"pid":4294967303,"name":"a","focused":true})").empty());
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

/// A terminal device of the test's own, and what leads a session on it.
class EnUnaTerminal : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(terminal.esperar("] ["));
    ASSERT_TRUE(terminal.esperar("]"));
    auto const pantalla = terminal.pantalla();
    tty = pantalla.substr(6, pantalla.find(']') - 6);
    pid = std::stoi(pantalla.substr(pantalla.find("] [") + 3));
  }
  dobles::Pseudoterminal terminal{
      {"/bin/sh", "-c", "echo [$(tty)] [$$]; read -r linea"}, {"PATH=/usr/bin:/bin"}, "/"};
  std::string tty;
  pid_t pid = 0;
};

TEST_F(EnUnaTerminal, unProcesoDeLaSesionDiceQuienLaDirige) {
  ASSERT_TRUE(liderDelTty(tty, pid));
  EXPECT_EQ(liderDelTty(tty, pid)->pid, pid);
}

TEST_F(EnUnaTerminal, unProcesoQueYaNoEstaAhiNoTieneSesion) {
  EXPECT_EQ(liderDelTty(tty, ::getpid()), std::nullopt) << "it has another terminal, or none";
  EXPECT_EQ(liderDelTty(tty, 0x7FFFFFFF), std::nullopt);
  EXPECT_EQ(liderDelTty(tty, 0), std::nullopt);
}

TEST_F(EnUnaTerminal, unNumeroQueAhoraEsDeOtroProcesoNoEsLaSesion) {
  auto sesion = sesionEnTty(tty, pid);
  ASSERT_TRUE(sesion);
  EXPECT_TRUE(sesion->sigue());
  --sesion->lider.inicio;
  EXPECT_FALSE(sesion->sigue());
}

/// A process in a container: it has terminal devices of its own, and leads a session on one of the same
/// number.
class ProcesoEnContenedor {
 public:
  explicit ProcesoEnContenedor(int numero) {
    std::array<int, 2> tubo{};
    if (::pipe(tubo.data()) != 0) return;
    pid_ = ::fork();
    if (pid_ == 0) {
      ::close(tubo[0]);
      if (dentro(numero)) (void)!::write(tubo[1], "x", 1);
      ::close(tubo[1]);
      for (;;) ::pause();
    }
    ::close(tubo[1]);
    char letra = 0;
    listo_ = ::read(tubo[0], &letra, 1) == 1;
    ::close(tubo[0]);
  }
  ProcesoEnContenedor(ProcesoEnContenedor const&) = delete;
  ProcesoEnContenedor& operator=(ProcesoEnContenedor const&) = delete;
  ~ProcesoEnContenedor() {
    if (pid_ <= 0) return;
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }
  [[nodiscard]] bool listo() const { return listo_; }
  [[nodiscard]] pid_t pid() const { return pid_; }

 private:
  static bool dentro(int numero) {
    if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        ::mount("devpts", "/dev/pts", "devpts", 0, "ptmxmode=0666") != 0) {
      return false;
    }
    for (int cual = -1; cual < numero;) {
      int const maestro = ::open("/dev/pts/ptmx", O_RDWR | O_NOCTTY);
      if (maestro < 0 || ::ioctl(maestro, TIOCGPTN, &cual) != 0 || ::unlockpt(maestro) != 0) return false;
    }
    ::setsid();
    return ::open(("/dev/pts/" + std::to_string(numero)).c_str(), O_RDWR) >= 0;
  }

  pid_t pid_ = 0;
  bool listo_ = false;
};

TEST_F(EnUnaTerminal, laSesionDeUnContenedorConElMismoNumeroEsOtra) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make a container";
  ProcesoEnContenedor const contenedor{std::stoi(tty.substr(tty.rfind('/') + 1))};
  if (!contenedor.listo()) GTEST_SKIP() << "this machine lets nobody mount terminal devices";
  ASSERT_EQ(procesoVivo(contenedor.pid())->tty, procesoVivo(pid)->tty);
  EXPECT_EQ(liderDelTty(tty, contenedor.pid()), std::nullopt);
  EXPECT_EQ(liderDelTty(tty).value_or(Proceso{}).pid, pid);
}

TEST(ProcesosDelTty, loQueNoEsUnaTerminalNoTieneLider) {
  for (auto const* const tty : {"", "/dev/", "pts/99999", "null", "../tmp", "pts/..", "a b", "/etc/passwd"}) {
    EXPECT_EQ(liderDelTty(tty), std::nullopt) << tty;
  }
}

}  // namespace
}  // namespace zorve::ayudante
