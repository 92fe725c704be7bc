#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "Terminales/Escritorio.h"
#include "ZorveCore/Escape.h"
#include "ZorveCore/FichaDeTerminal.h"

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

bool todo() {
  char const* const valor = std::getenv("ZORVE_TODO");
  return valor != nullptr && std::string{valor} == "si";
}

/// The terminals that are tried here: those of the table that this machine has.
bool estaAqui(FichaDeTerminal const& ficha) {
  if (programaInstalado(ficha.programas.front())) return true;
  std::cout << "skipped: " << ficha.nombre << " is not installed here\n";
  return false;
}

class CadaTerminal : public testing::TestWithParam<FichaDeTerminal> {
 protected:
  /// foot speaks Wayland alone.
  static Escritorio::Pantalla pantalla() {
    return GetParam().identificador == "foot" ? Escritorio::Pantalla::wayland : Escritorio::Pantalla::x11;
  }

  static void abreEn(Escritorio const& escritorio, std::string const& nombre) {
    auto const directorio = escritorio.casa().carpeta("d/" + nombre);
    auto const corrida = escritorio.ayudante(
        {"open", GetParam().identificador, directorio, "claude -r " + palabraDeShell(nombre)});
    ASSERT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_EQ(corrida.error, "");
    auto const anotados = escritorio.anotados(1);
    ASSERT_EQ(anotados.size(), 1U)
        << escritorio.correr({"ps", "-o", "pid,ppid,stat,args", "-U", "65534"}).salida;
    EXPECT_EQ(anotados[0].directorio, std::filesystem::canonical(directorio).string());
    EXPECT_EQ(anotados[0].args, (std::vector<std::string>{"-r", nombre}));
    EXPECT_TRUE(anotados[0].tty.starts_with("/dev/pts/")) << anotados[0].tty;
    escritorio.olvidar();
  }
};

INSTANTIATE_TEST_SUITE_P(Linux, CadaTerminal,
                         testing::ValuesIn(fichasDeLinux().begin(), fichasDeLinux().end()),
                         [](auto const& caso) {
                           std::string nombre;
                           for (char const letra : caso.param.identificador) {
                             if (letra != '.' && letra != '-') nombre += letra;
                           }
                           return nombre;
                         });

TEST_P(CadaTerminal, abreEnElDirectorioYEntregaLosArgumentosByteAByte) {
  if (!estaAqui(GetParam())) return;
  Escritorio const escritorio{pantalla()};
  abreEn(escritorio, raro);
}

TEST_P(CadaTerminal, sinPantallaFallaConSusPropiasPalabrasEnTresSegundos) {
  if (!estaAqui(GetParam())) return;
  Escritorio const escritorio{Escritorio::Pantalla::ninguna};
  auto const empieza = std::chrono::steady_clock::now();
  auto const corrida =
      escritorio.ayudante({"open", GetParam().identificador, escritorio.casa().ruta(), "claude"});
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, 3s);
  EXPECT_NE(corrida.codigo, 0);
  EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: " + GetParam().programas.front() + " "));
  EXPECT_FALSE(corrida.error.contains("said nothing")) << corrida.error;
  EXPECT_EQ(corrida.salida, "");
}

TEST_P(CadaTerminal, largoAbreEnCadaDirectorioHostilConOtroGestorDeVentanas) {
  if (!todo() || !estaAqui(GetParam())) return;
  Escritorio const escritorio{pantalla(), "xfwm4"};
  for (auto const& nombre : directoriosHostiles()) abreEn(escritorio, nombre);
}

}  // namespace
}  // namespace zorve::pruebas
