#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "Terminales/CadaTerminal.h"
#include "Terminales/Escritorio.h"
#include "Terminales/Teclado.h"

namespace zorve::pruebas {
namespace {

/// A window with a session in it, in the hands of a person who has only a keyboard.
class Ventana {
 public:
  Ventana(FichaDeTerminal const& ficha, std::string const& shell)
      : escritorio{ficha}, terminal_{ficha.identificador} {
    escritorio.variables["SHELL"] = shell;
    auto const& home = escritorio.home();
    std::string const ajustes = "PATH=\"$HOME/propios:$PATH\"\nPS1='LISTO> '\n";
    home.escribir(".bashrc", ajustes + "PROMPT_COMMAND='echo . >>\"$HOME/prompts\"'\n");
    home.escribir(".zshrc", ajustes + "precmd() { echo . >>\"$HOME/prompts\" }\n");
    EXPECT_EQ(escritorio.correr({"mkdir", "-p", home.dentro(".config/fish")}).codigo, 0);
    home.escribir(".config/fish/config.fish", "set -x PATH \"$HOME/propios\" $PATH\n");
    home.escribir("ajustes.sh", ajustes);
    escritorio.variables["ENV"] = home.dentro("ajustes.sh");
  }

  void abrir(std::string const& directorio) const {
    auto const corrida = escritorio.ayudante({"open", terminal_, directorio, "claude -r 'un id'"});
    EXPECT_EQ(corrida.codigo, 0) << corrida.error;
    EXPECT_TRUE(teclado.tieneVentana());
  }

  /// Waits for the start number `cuantas` of the stand-in for `claude`.
  [[nodiscard]] Anotado sesion(std::size_t cuantas) const {
    auto const todas = escritorio.anotados(cuantas);
    EXPECT_EQ(todas.size(), cuantas);
    return todas.size() == cuantas ? todas.back() : Anotado{};
  }
  [[nodiscard]] bool hayPrompts(std::size_t cuantos) const {
    return esperarA(
        [&] { return leerArchivoDePrueba(escritorio.home().dentro("prompts")).size() >= 2 * cuantos; });
  }
  [[nodiscard]] static bool llegaA(pid_t pid, char estado) {
    return esperarA([&] { return procesoDe(pid).estado == estado; });
  }
  [[nodiscard]] bool leyo(Anotado const& sesion, std::string const& linea,
                          std::chrono::seconds plazo = std::chrono::seconds{20}) const {
    auto const ruta = escritorio.home().dentro("teclas/" + std::to_string(sesion.pid));
    return esperarA([&] { return leerArchivoDePrueba(ruta).ends_with(linea + "\n"); }, plazo);
  }
  /// A window that is just opening may miss keys: types until the session has read a whole line.
  [[nodiscard]] bool escucha(Anotado const& sesion) const {
    return esperarA([&] {
      teclado.linea("uno");
      return leyo(sesion, "uno", std::chrono::seconds{1});
    });
  }

  /// Types a line until the shell has started a session with it.
  [[nodiscard]] bool empiezaCon(std::string const& linea) const {
    return esperarA([&] {
      teclado.linea(linea);
      auto const anotados = escritorio.home().dentro("anotados");
      return esperarA([&] { return !std::filesystem::is_empty(anotados); }, std::chrono::seconds{1});
    });
  }

  EscritorioDe escritorio;
  Teclado teclado{escritorio};

 private:
  std::string terminal_;
};

class TeclasEnCadaTerminal : public DeUnTerminal {
 protected:
  static void detenerSeguirTerminarYRepetir(std::string const& shell) {
    Ventana const ventana{GetParam(), shell};
    ventana.abrir(ventana.escritorio.home().ruta());
    auto const& teclado = ventana.teclado;
    auto const primera = ventana.sesion(1);
    ASSERT_GT(primera.pid, 0);
    auto const laShell = procesoDe(primera.pid).padre;
    ASSERT_TRUE(ventana.escucha(primera));
    teclado.control("z");
    ASSERT_TRUE(Ventana::llegaA(primera.pid, 'T')) << "Ctrl-Z stops the session";
    ASSERT_TRUE(ventana.hayPrompts(1)) << "and the prompt is back";
    teclado.linea("fg");
    ASSERT_TRUE(esperarA([&] { return procesoDe(primera.pid).estado == 'S'; }));
    teclado.linea("dos");
    ASSERT_TRUE(ventana.leyo(primera, "dos")) << "fg takes it up again";
    teclado.control("c");
    ASSERT_TRUE(Ventana::llegaA(primera.pid, '\0')) << "Ctrl-C ends the session";
    ASSERT_TRUE(ventana.hayPrompts(2));
    for (auto const* const tecla : {"Up", "Up", "Return"}) teclado.tecla(tecla);
    auto const segunda = ventana.sesion(2);
    EXPECT_EQ(segunda.args, (std::vector<std::string>{"-r", "un id"})) << "the history has the line";
    EXPECT_EQ(segunda.tty, primera.tty);
    teclado.control("c");
    ASSERT_TRUE(ventana.hayPrompts(3));
    teclado.linea("exit");
    EXPECT_TRUE(Ventana::llegaA(laShell, '\0')) << "the shell is the window's own";
  }

  static void correrLaLineaYQuedarse(std::string const& shell) {
    Ventana const ventana{GetParam(), shell};
    ventana.abrir(ventana.escritorio.home().ruta());
    auto const primera = ventana.sesion(1);
    EXPECT_EQ(primera.args, (std::vector<std::string>{"-r", "un id"}));
    ASSERT_TRUE(ventana.escucha(primera));
    ventana.teclado.control("c");
    ASSERT_TRUE(Ventana::llegaA(primera.pid, '\0'));
    ventana.teclado.linea("claude otra");
    EXPECT_EQ(ventana.sesion(2).args, (std::vector<std::string>{"otra"}));
  }
};

INSTANTIATE_TEST_SUITE_P(Linux, TeclasEnCadaTerminal,
                         testing::ValuesIn(fichasDeLinux().begin(), fichasDeLinux().end()),
                         nombreDelTerminal);

TEST_P(TeclasEnCadaTerminal, enBashControlZFgControlCEHistorialObedecenAlTeclado) {
  detenerSeguirTerminarYRepetir("/bin/bash");
}

TEST_P(TeclasEnCadaTerminal, largoEnZshControlZFgControlCEHistorialObedecenAlTeclado) {
  detenerSeguirTerminarYRepetir("/bin/zsh");
}

TEST_P(TeclasEnCadaTerminal, largoFishCorreLaLineaYSeQueda) { correrLaLineaYQuedarse("/usr/bin/fish"); }

TEST_P(TeclasEnCadaTerminal, largoDashCorreLaLineaYSeQueda) { correrLaLineaYQuedarse("/bin/dash"); }

TEST_P(TeclasEnCadaTerminal, largoUnDirectorioQueYaNoEstaDejaUnaShellQueNoHaCorridoNada) {
  Ventana const ventana{GetParam(), "/bin/bash"};
  ventana.abrir(ventana.escritorio.home().dentro("perdido"));
  ASSERT_TRUE(ventana.empiezaCon("claude sigo"));
  EXPECT_EQ(ventana.sesion(1).args, (std::vector<std::string>{"sigo"}));
}

TEST_P(TeclasEnCadaTerminal, largoSinClaudeQuedaUnaShellQueLoHaDicho) {
  Ventana const ventana{GetParam(), "/bin/bash"};
  auto const& home = ventana.escritorio.home();
  auto const propios = home.dentro("propios");
  std::filesystem::rename(propios + "/claude", propios + "/otro");
  home.escribir(".bashrc",
                "PATH=\"$HOME/propios:$PATH\"\n"
                "command_not_found_handle() { echo \"$@\" >>\"$HOME/falta\"; }\n");
  ventana.abrir(home.ruta());
  ASSERT_TRUE(ventana.empiezaCon("otro sigo"));
  EXPECT_EQ(ventana.sesion(1).args, (std::vector<std::string>{"sigo"}));
  EXPECT_TRUE(leerArchivoDePrueba(home.dentro("falta")).starts_with("claude -r un id\n"));
}

}  // namespace
}  // namespace zorve::pruebas
