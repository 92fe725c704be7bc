#include <gtest/gtest.h>

#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "Terminales/Escritorio.h"
#include "Terminales/Teclado.h"
#include "zorvectl/Home.h"

namespace zorve::pruebas {
namespace {

constexpr std::string_view id = "11111111-aaaa-4bbb-8ccc-000000000001";

struct Emulador {
  std::string nombre;
  std::vector<std::string> palabras;
  /// The style's accent as that terminal has it, as pictures name it.
  std::string acento;
};

void PrintTo(Emulador const& uno, std::ostream* salida) { *salida << uno.nombre; }

/// The panel in a real terminal's window, in the hands of a person who has only a keyboard.
class PanelEnVentana : public testing::TestWithParam<Emulador> {
 protected:
  void SetUp() override {
    if (!programaInstalado(GetParam().nombre)) GTEST_SKIP() << GetParam().nombre << " is not here";
    auto const& home = escritorio.home();
    home.escribir(".claude/projects/-x/" + std::string{id} + ".jsonl", aiTitle("Draw the icon"));
    home.escribir(".claude/history.jsonl", prompt(id, "x", home.carpeta("src icon"), haceMilisegundos(1000)));
    escritorio.variables["SHELL"] = "/bin/bash";
    auto palabras = GetParam().palabras;
    palabras.insert(palabras.end(), {ZORVECTL, "panel", "--here"});
    escritorio.empezar(palabras);
    ASSERT_TRUE(teclado.tieneVentana());
  }
  Escritorio escritorio{Escritorio::Pantalla::x11};
  Teclado teclado{escritorio};
};

TEST_P(PanelEnVentana, loEscritoYRetornoAbrenLaSesionEnLaMismaVentana) {
  auto const& home = escritorio.home();
  ASSERT_TRUE(esperarA([&] {
    teclado.control("u");
    teclado.linea("icon");
    return esperarA([&] { return !std::filesystem::is_empty(home.dentro("anotados")); },
                    std::chrono::seconds{1});
  }));
  auto const anotados = escritorio.anotados(1);
  ASSERT_EQ(anotados.size(), 1U);
  EXPECT_EQ(anotados.front().args, (std::vector<std::string>{"-r", std::string{id}}));
  EXPECT_EQ(anotados.front().directorio, home.dentro("src icon"));
}

TEST_P(PanelEnVentana, losColoresSonLosDelEstiloComoLosTieneEseTerminal) {
  if (!programaInstalado("import")) GTEST_SKIP() << "import is not here (imagemagick)";
  EXPECT_TRUE(esperarA([&] {
    auto const colores =
        escritorio.correr({"import", "-window", "root", "-depth", "8", "-format", "%c", "histogram:info:-"});
    return colores.salida.contains(GetParam().acento);
  }));
}

INSTANTIATE_TEST_SUITE_P(DeVerdad, PanelEnVentana,
                         testing::Values(Emulador{"xterm",
                                                  {"xterm", "-tn", "xterm-256color", "-bg", "black", "-fg",
                                                   "white", "-e"},
                                                  "#00D7AF"},
                                         Emulador{"kitty", {"kitty", "--config", "NONE"}, "#2DD4BF"}),
                         [](auto const& cual) { return cual.param.nombre; });

}  // namespace
}  // namespace zorve::pruebas
