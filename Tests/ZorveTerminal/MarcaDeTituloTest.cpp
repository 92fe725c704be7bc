#include "ZorveTerminal/MarcaDeTitulo.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <string>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Pseudoterminal.h"

namespace zorve::ayudante {
namespace {

/// A shell that waits on a terminal device of its own.
class MarcaDeTituloTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(terminal.esperar("]"));
    tty = terminal.pantalla().substr(1, terminal.pantalla().find(']') - 1);
    auto const hallado = liderDelTty(tty);
    ASSERT_TRUE(hallado) << tty;
    lider = *hallado;
  }

  dobles::Pseudoterminal terminal{
      {"/bin/sh", "-c", "stty -echo; echo [$(tty)]; read -r linea"}, {"PATH=/usr/bin:/bin"}, "/"};
  std::string tty;
  Proceso lider;
};

TEST_F(MarcaDeTituloTest, poneElTituloYLoDevuelveAlFinal) {
  std::string texto;
  {
    auto const marca = MarcaDeTitulo::poner(tty, lider);
    ASSERT_TRUE(marca) << marca.error();
    texto = marca->texto();
    ASSERT_TRUE(terminal.esperar("\033[22;0t\033]0;" + texto + "\a"));
    marca->repetir();
    ASSERT_TRUE(terminal.esperar("\033]0;" + texto + "\a"));
    EXPECT_FALSE(terminal.pantalla().contains("\033[23;0t"));
  }
  ASSERT_TRUE(terminal.esperar("\033[23;0t"));
  EXPECT_EQ(terminal.pantalla(),
            "[" + tty + "]\r\n\033[22;0t\033]0;" + texto + "\a\033]0;" + texto + "\a\033[23;0t");
}

TEST_F(MarcaDeTituloTest, cadaMarcaEsOtra) {
  auto const una = MarcaDeTitulo::poner(tty, lider);
  auto const otra = MarcaDeTitulo::poner(tty, lider);
  ASSERT_TRUE(una && otra);
  EXPECT_EQ(una->texto().size(), std::string{"zorve-"}.size() + 24);
  EXPECT_NE(una->texto(), otra->texto());
}

TEST_F(MarcaDeTituloTest, elTituloVuelveAunqueUnaSenalMateAQuienLoPuso) {
  for (int const senal : {SIGTERM, SIGINT, SIGHUP, SIGALRM, SIGKILL}) {
    auto const hijo = ::fork();
    if (hijo == 0) {
      auto const marca = MarcaDeTitulo::poner(tty, lider);
      if (marca) ::raise(senal);
      ::_exit(0);
    }
    int estado = 0;
    ASSERT_EQ(::waitpid(hijo, &estado, 0), hijo);
    ASSERT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == senal) << senal;
    ASSERT_TRUE(terminal.esperar("\033[22;0t")) << senal;
    EXPECT_TRUE(terminal.esperar("\033[23;0t")) << senal;
  }
}

TEST_F(MarcaDeTituloTest, otroLiderOtroDispositivoUnEnlaceOUnArchivoNoRecibenNada) {
  dobles::CarpetaTemporal carpeta;
  auto const archivo = carpeta.escribir("archivo", "");
  ASSERT_EQ(::symlink(tty.c_str(), carpeta.dentro("enlace").c_str()), 0);
  for (std::string const& otro : {std::string{"null"}, std::string{"tty"}, std::string{"pts/ptmx"},
                                  std::string{"pts/"}, std::string{""}, std::string{"pts/../null"}, archivo,
                                  carpeta.dentro("enlace"), "pts/../.." + carpeta.dentro("enlace")}) {
    EXPECT_FALSE(MarcaDeTitulo::poner(otro, lider)) << otro;
  }
  auto ajeno = lider;
  ajeno.tty += 1;
  EXPECT_FALSE(MarcaDeTitulo::poner(tty, ajeno)) << "not the leader's device";
  ajeno = lider;
  ajeno.pid = ::getpid();
  EXPECT_FALSE(MarcaDeTitulo::poner(tty, ajeno)) << "not the leader's process";
  ajeno = lider;
  ajeno.padre += 1;
  EXPECT_FALSE(MarcaDeTitulo::poner(tty, ajeno)) << "the number of a process that is gone";
  EXPECT_EQ(terminal.pantalla(), "[" + tty + "]\r\n");
  EXPECT_EQ(std::system(("test -s " + archivo).c_str()) == 0, false);
}

TEST_F(MarcaDeTituloTest, unDispositivoDeOtroUsuarioNoRecibeNada) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  ASSERT_EQ(::chown(tty.c_str(), 65534, static_cast<gid_t>(-1)), 0);
  auto const marca = MarcaDeTitulo::poner(tty, lider);
  ASSERT_FALSE(marca);
  EXPECT_EQ(marca.error(),
            "the title of " + tty.substr(5) + " cannot be marked: it is not this user's own terminal device");
}

}  // namespace
}  // namespace zorve::ayudante
