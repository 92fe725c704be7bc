#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"

namespace zorve {
namespace {

using dobles::CarpetaTemporal;
using dobles::Corrida;

/// The helper, with a script in the place of every terminal.
class Ayudante : public testing::Test {
 protected:
  std::string terminal(std::string const& nombre, std::string const& guion,
                       std::string const& donde = "bin") const {
    auto ruta = carpeta.escribir(donde + "/" + nombre, "#!/bin/sh\n" + guion);
    std::filesystem::permissions(ruta, std::filesystem::perms{0755});
    return ruta;
  }

  [[nodiscard]] Corrida correr(std::vector<std::string> palabras) const {
    palabras.insert(palabras.begin(), ZORVE_TERMINAL);
    return dobles::correr(palabras, {{"PATH", carpeta.dentro("bin") + ":/usr/bin:/bin"},
                                     {"HOME", carpeta.ruta()},
                                     {"SHELL", "/bin/sh"},
                                     {"XDG_DATA_DIRS", carpeta.dentro("datos")},
                                     {"XDG_RUNTIME_DIR", carpeta.ruta()}});
  }

  CarpetaTemporal carpeta;
};

TEST_F(Ayudante, elUsoIncorrectoTermina2ConUnaLinea) {
  for (auto const& palabras : std::vector<std::vector<std::string>>{{},
                                                                    {"abrir"},
                                                                    {"open"},
                                                                    {"open", "xterm", "/"},
                                                                    {"open", "nada", "/", "x"},
                                                                    {"--help", "x"},
                                                                    {"focus", "tmux", "pts/3", "nada"}}) {
    auto const corrida = correr(palabras);
    EXPECT_EQ(corrida.codigo, 2);
    EXPECT_EQ(corrida.salida, "");
    EXPECT_TRUE(corrida.error.starts_with("zorve-terminal: "));
    EXPECT_EQ(corrida.error.find('\n'), corrida.error.size() - 1);
  }
}

TEST_F(Ayudante, laAyudaNombraCadaTerminal) {
  auto const corrida = correr({"--help"});
  EXPECT_EQ(corrida.codigo, 0);
  EXPECT_TRUE(corrida.salida.contains(" xterm"));
  EXPECT_TRUE(corrida.salida.contains(" org.gnome.Terminal "));
}

TEST_F(Ayudante, unTerminalQueNoEstaSeDice) {
  auto const corrida =
      dobles::correr({ZORVE_TERMINAL, "open", "com.gexperts.Tilix", "/", "x"},
                     {{"PATH", carpeta.ruta()}, {"HOME", carpeta.ruta()}, {"XDG_DATA_DIRS", carpeta.ruta()}});
  EXPECT_EQ(corrida.codigo, 127);
  EXPECT_EQ(corrida.error, "zorve-terminal: Tilix is not installed\n");
}

TEST_F(Ayudante, unTerminalQueSoloTieneEntradaDeEscritorioSeAbrePorElla) {
  auto const ghostty = terminal("ghostty", "exit 7\n", "opt");
  carpeta.escribir("datos/applications/com.mitchellh.ghostty.desktop",
                   "[Desktop Entry]\nExec=" + ghostty + " --gtk\n");
  EXPECT_EQ(correr({"open", "ghostty-linux", "/", "x"}).codigo, 7);
}

TEST_F(Ayudante, elIdentificadorSeComparaSinMayusculas) {
  terminal("xterm", "exit 5\n");
  EXPECT_EQ(correr({"open", "XTerm", "/", "x"}).codigo, 5);
}

TEST_F(Ayudante, unTerminalQueSeCaeDaSuCodigoYSusPalabras) {
  terminal("xterm", "echo 'sin pantalla' >&2; kill -ABRT $$\n");
  auto const corrida = correr({"open", "xterm", "/", "x"});
  EXPECT_EQ(corrida.codigo, 128 + SIGABRT);
  EXPECT_EQ(corrida.error, "zorve-terminal: xterm was ended by signal 6 (Aborted): sin pantalla\n");
}

TEST_F(Ayudante, quienNoQuiereSaberDeSusHijosTambienSeEnteraDeUnFallo) {
  terminal("xterm", "exit 5\n");
  auto const corrida =
      dobles::correr({"/usr/bin/env", "--ignore-signal=CHLD", ZORVE_TERMINAL, "open", "xterm", "/", "x"},
                     {{"PATH", carpeta.dentro("bin") + ":/usr/bin:/bin"}, {"HOME", carpeta.ruta()}});
  EXPECT_EQ(corrida.codigo, 5) << corrida.error;
}

TEST_F(Ayudante, correLaOrdenEnElDirectorioYNoDejaLaSenal) {
  terminal("xterm", "shift; exec \"$@\" </dev/null\n");
  auto const donde = carpeta.carpeta("un directorio");
  auto const corrida = correr({"open", "xterm", donde, "pwd >\"$HOME/escrito\""});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  std::ifstream escrito{carpeta.dentro("escrito")};
  std::string linea;
  for (int i = 0; i < 1000 && !std::getline(escrito, linea); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds{10});
    escrito = std::ifstream{carpeta.dentro("escrito")};
  }
  EXPECT_EQ(linea, donde);
  for (auto const& entrada : std::filesystem::directory_iterator{carpeta.ruta()}) {
    EXPECT_FALSE(entrada.path().filename().string().starts_with("zorve-")) << entrada.path();
  }
}

TEST_F(Ayudante, unTextoUnicoLlegaComoUnaSolaPalabraQueUnaShellEntiende) {
  terminal("tilix", "printf '%s\\n' \"$#\" \"$1\" \"$2\" >$HOME/palabras; sh -c \"$3\" </dev/null\n");
  EXPECT_EQ(correr({"open", "com.gexperts.Tilix", "/", ">\"$HOME/escrito\""}).codigo, 0);
  std::ifstream palabras{carpeta.dentro("palabras")};
  std::string numero;
  std::string primera;
  std::string segunda;
  palabras >> numero >> primera >> segunda;
  EXPECT_EQ(numero, "3");
  EXPECT_EQ(primera, "--action=app-new-window");
  EXPECT_EQ(segunda, "-e");
  for (int i = 0; i < 1000 && !std::filesystem::exists(carpeta.dentro("escrito")); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds{10});
  }
  EXPECT_TRUE(std::filesystem::exists(carpeta.dentro("escrito")));
}

TEST_F(Ayudante, quienLeeHastaElFinalNoEsperaAlTerminal) {
  terminal("xterm", "echo $$ >$HOME/pid; rmdir $HOME/zorve-*; exec sleep 60\n");
  auto const empieza = std::chrono::steady_clock::now();
  auto const orden = "PATH='" + carpeta.dentro("bin") + ":/usr/bin:/bin' HOME='" + carpeta.ruta() +
                     "' XDG_RUNTIME_DIR='" + carpeta.ruta() + "' '" + ZORVE_TERMINAL +
                     "' open xterm / x | cat";
  EXPECT_EQ(dobles::correr({"/bin/sh", "-c", orden}).codigo, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{20});
  std::ifstream escrito{carpeta.dentro("pid")};
  pid_t pid = 0;
  escrito >> pid;
  ASSERT_GT(pid, 1);
  EXPECT_EQ(::kill(pid, SIGKILL), 0);
}

}  // namespace
}  // namespace zorve
