#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"

namespace zorve::ayudante {
namespace {

using dobles::CarpetaTemporal;
using dobles::Corrida;

std::string leer(std::string const& ruta) {
  std::ifstream archivo{ruta};
  return {std::istreambuf_iterator<char>{archivo}, {}};
}

/// Whether the folder is empty in the end.
bool seVacia(std::string const& carpeta) {
  for (int i = 0; i < 1000 && !std::filesystem::is_empty(carpeta); ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds{10});
  }
  return std::filesystem::is_empty(carpeta);
}

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
                                     {"XDG_RUNTIME_DIR", ejecucion}});
  }

  /// A folder that is closed to others.
  [[nodiscard]] static std::string cerrada(std::string const& ruta) {
    std::filesystem::permissions(ruta, std::filesystem::perms{0700});
    return ruta;
  }

  CarpetaTemporal carpeta;
  std::string ejecucion = cerrada(carpeta.carpeta("r"));
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
  EXPECT_TRUE(seVacia(ejecucion));
}

TEST_F(Ayudante, siElTerminalNoEmpiezaNoQuedaNada) {
  terminal("xterm", "exit 5\n");
  EXPECT_EQ(correr({"open", "xterm", "/", "x"}).codigo, 5);
  EXPECT_TRUE(std::filesystem::is_empty(ejecucion));
}

TEST_F(Ayudante, losArgumentosDelTerminalNoDicenNiElDirectorioNiLaOrdenNiLaCasa) {
  terminal("xterm", "printf '%s\\n' \"$@\" >\"$HOME/palabras\"; exit 5\n");
  EXPECT_EQ(correr({"open", "xterm", carpeta.carpeta("un secreto"), "claude -r 'otro secreto'"}).codigo, 5);
  auto const todas = leer(carpeta.dentro("palabras"));
  EXPECT_TRUE(todas.starts_with("-e\n/bin/sh\n" + ejecucion + "/zorve-")) << todas;
  EXPECT_FALSE(todas.contains("secreto")) << todas;
}

TEST_F(Ayudante, unaCasaRelativaNoEsLaDeNadie) {
  terminal("xterm", "shift; exec \"$@\" </dev/null\n");
  auto const repositorio = carpeta.carpeta("repositorio");
  carpeta.escribir("repositorio/mia/.bashrc", ": >" + carpeta.dentro("AJENO") + "\n");
  auto const corrida = dobles::correr({"/usr/bin/env", "-C", repositorio, ZORVE_TERMINAL, "open", "xterm",
                                       repositorio, ": >" + carpeta.dentro("hecho")},
                                      {{"PATH", carpeta.dentro("bin") + ":/usr/bin:/bin"},
                                       {"HOME", "mia"},
                                       {"SHELL", "/bin/bash"},
                                       {"XDG_RUNTIME_DIR", ejecucion}});
  EXPECT_EQ(corrida.codigo, 0) << corrida.error;
  EXPECT_TRUE(seVacia(ejecucion));
  EXPECT_FALSE(std::filesystem::exists(carpeta.dentro("AJENO")));
}

TEST_F(Ayudante, laCarpetaDeEjecucionDeOtraPersonaNoRecibeNada) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can be two other users";
  terminal("xterm", "printf '%s\\n' \"$@\" >\"$HOME/palabras\"; exit 5\n");
  auto const ajena = carpeta.carpeta("ajena");
  ASSERT_EQ(::chown(ajena.c_str(), 61002, 61002), 0);
  std::filesystem::permissions(ajena, std::filesystem::perms{0777});
  auto const home = carpeta.carpeta("home");
  ASSERT_EQ(::chown(home.c_str(), 61001, 61001), 0);
  auto const copia = carpeta.dentro("zorve-terminal");
  std::filesystem::copy_file(ZORVE_TERMINAL, copia);
  auto const corrida = dobles::correr({"/usr/bin/setpriv", "--reuid", "61001", "--regid", "61001",
                                       "--clear-groups", copia, "open", "xterm", "/", "x"},
                                      {{"PATH", carpeta.dentro("bin") + ":/usr/bin:/bin"},
                                       {"HOME", home},
                                       {"XDG_RUNTIME_DIR", ajena},
                                       {"TMPDIR", ajena}});
  EXPECT_EQ(corrida.codigo, 5) << corrida.error;
  auto const todas = leer(home + "/palabras");
  EXPECT_TRUE(todas.starts_with("-e\n/bin/sh\n/tmp/zorve-")) << todas;
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
  terminal("xterm", "echo $$ >$HOME/pid; rmdir $HOME/r/zorve-*/senal; exec sleep 60\n");
  auto const empieza = std::chrono::steady_clock::now();
  auto const orden = "PATH='" + carpeta.dentro("bin") + ":/usr/bin:/bin' HOME='" + carpeta.ruta() +
                     "' XDG_RUNTIME_DIR='" + ejecucion + "' '" + ZORVE_TERMINAL + "' open xterm / x | cat";
  EXPECT_EQ(dobles::correr({"/bin/sh", "-c", orden}).codigo, 0);
  EXPECT_LT(std::chrono::steady_clock::now() - empieza, std::chrono::seconds{20});
  std::ifstream escrito{carpeta.dentro("pid")};
  pid_t pid = 0;
  escrito >> pid;
  ASSERT_GT(pid, 1);
  EXPECT_EQ(::kill(pid, SIGKILL), 0);
}

}  // namespace
}  // namespace zorve::ayudante
