#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "Dobles/AplicacionesFijas.h"
#include "Terminales/CadaTerminal.h"
#include "Terminales/Escritorio.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Texto/Escape.h"

namespace zorve::pruebas {
namespace {

using namespace std::chrono_literals;

constexpr char const* raro =
    "-a 'b'\"c\" $HOME `id` $(id) \\ \\\\n ;&|<>*?[x]{y,z}~!#%s\t\n\x01\x1b[31m\x7f ñ 日 \xff\xfe\n";

std::vector<std::string> directoriosHostiles() {
  return {"con espacios y ñ",
          "it's",
          "\"comillas\"",
          "$HOME y ${PATH} y $(id) y `id`",
          "barra\\ doble\\\\ \\n \\t \\x41",
          "salto\nde línea\n",
          "\x01\x07\x1b[31m\x1b]0;x\x07\x7f\t",
          "\xff\xfe no es UTF-8 \x80",
          "-e --help; touch /tmp/x & | < > * ? [a] {b,c} ~ ! # %s %n",
          raro};
}

class CadaTerminal : public DeUnTerminal {
 protected:
  /// Whether the driver knows one of the processes that the session descends from as its own, by what ps
  /// says.
  static bool laHospeda(Escritorio const& escritorio, pid_t pid) {
    dobles::AplicacionesFijas const ninguna;
    TerminalDeLinux const terminal{GetParam(), ninguna, "", [] { return SesionGrafica::otra; }};
    for (; pid > 1; pid = procesoDe(pid).padre) {
      auto const comm = escritorio.correr({"ps", "-o", "comm=", "-p", std::to_string(pid)}).salida;
      if (terminal.hospeda(comm.substr(0, comm.find('\n')))) return true;
    }
    return false;
  }

  static void abreEn(Escritorio const& escritorio, std::string const& nombre) {
    auto const directorio = escritorio.home().carpeta("d/" + nombre);
    auto const corrida = escritorio.ayudante(
        {"open", GetParam().identificador, directorio, "claude -r " + palabraDeShell(nombre)});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_EQ(corrida.error, "");
    auto const anotados = escritorio.anotados(1);
    ASSERT_EQ(anotados.size(), 1U)
        << escritorio.correr({"ps", "-o", "pid,ppid,stat,comm", "-U", "65534"}).salida;
    EXPECT_EQ(anotados[0].directorio, std::filesystem::canonical(directorio).string());
    EXPECT_EQ(anotados[0].args, (std::vector<std::string>{"-r", nombre}));
    EXPECT_TRUE(anotados[0].tty.starts_with("/dev/pts/")) << anotados[0].tty;
    EXPECT_EQ(laHospeda(escritorio, anotados[0].pid), !GetParam().esCualquierOtra);
    escritorio.olvidar();
  }
};

INSTANTIATE_TEST_SUITE_P(Linux, CadaTerminal,
                         testing::ValuesIn(fichasDeLinux().begin(), fichasDeLinux().end()),
                         nombreDelTerminal);

TEST_P(CadaTerminal, abreEnElDirectorioYEntregaLosArgumentosByteAByte) {
  EscritorioDe const escritorio{GetParam()};
  abreEn(escritorio, raro);
}

TEST_P(CadaTerminal, sinPantallaFallaConSusPropiasPalabrasEnTresSegundos) {
  EscritorioDe const escritorio{GetParam(), Escritorio::Pantalla::ninguna};
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida =
      escritorio.ayudante({"open", GetParam().identificador, escritorio.home().ruta(), "claude"});
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, 3s);
  EXPECT_NE(corrida.codigo, 0);
  EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: " + GetParam().programas.front() + " "));
  EXPECT_FALSE(corrida.error.contains("said nothing")) << corrida.error;
  EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1) << corrida.error;
  EXPECT_EQ(corrida.salida, "");
}

TEST_P(CadaTerminal, largoSinBusDeSesionAbreOFallaConSusPropiasPalabrasEnTresSegundos) {
  EscritorioDe escritorio{GetParam()};
  escritorio.variables["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=" + escritorio.home().dentro("nada");
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida =
      escritorio.ayudante({"open", GetParam().identificador, escritorio.home().ruta(), "claude"});
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, 3s);
  EXPECT_EQ(corrida.codigo == 0, GetParam().identificador != "org.gnome.Terminal") << corrida.error;
  if (corrida.codigo == 0) {
    EXPECT_EQ(escritorio.anotados(1).size(), 1U);
  } else {
    EXPECT_TRUE(corrida.error.contains(" ended with exit code ")) << corrida.error;
    EXPECT_TRUE(corrida.error.contains("connect")) << corrida.error;
    EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1) << corrida.error;
  }
}

TEST_P(CadaTerminal, largoAbreEnCadaDirectorioHostilConCadaGestorDeVentanas) {
  for (auto const* const gestor : {"openbox", "xfwm4"}) {
    EscritorioDe const escritorio{GetParam(), gestor};
    for (auto const& nombre : directoriosHostiles()) abreEn(escritorio, nombre);
  }
}

TEST(Foot, dondeUnoEsperaLaVentanaEsSuya) {
  if (auto const& foot = *fichaDeLinux("foot"); !estaAqui(foot)) GTEST_SKIP() << noEstaAqui(foot);
  Escritorio const escritorio{Escritorio::Pantalla::wayland};
  auto const servidor = escritorio.empezar({"foot", "--server"});
  auto const zocalo =
      escritorio.home().dentro("r/foot-" + escritorio.variables.at("WAYLAND_DISPLAY") + ".sock");
  ASSERT_TRUE(esperarA([&] { return std::filesystem::exists(zocalo); }));
  auto const directorio = escritorio.home().carpeta(raro);
  auto const corrida = escritorio.ayudante({"open", "foot", directorio, "claude -r " + palabraDeShell(raro)});
  ASSERT_EQ(corrida.codigo, 0) << corrida.error;
  auto const anotados = escritorio.anotados(1);
  ASSERT_EQ(anotados.size(), 1U);
  EXPECT_EQ(anotados[0].directorio, std::filesystem::canonical(directorio).string());
  EXPECT_EQ(anotados[0].args, (std::vector<std::string>{"-r", raro}));
  EXPECT_EQ(procesoDe(procesoDe(anotados[0].pid).padre).padre, servidor);
}

}  // namespace
}  // namespace zorve::pruebas
