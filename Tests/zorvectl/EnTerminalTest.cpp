#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <unistd.h>

#include "zorvectl/Home.h"
#include "zorvectl/Terminal.h"

namespace zorve::pruebas {
namespace {

class EnTerminal : public testing::Test {
 protected:
  EnTerminal() {
    home.transcripcion(Home::uno, aiTitle("Migrar las pruebas a la nueva interfaz de la aplicación"));
    home.historia(prompt(Home::uno, "x", home.ruta() + "/src/zorve", haceMilisegundos(7'300'000)));
    home.viva("1.json", R"({"pid":)" + std::to_string(::getpid()) + R"(,"sessionId":")" +
                            std::string{Home::uno} + R"(","cwd":"/v","status":"busy"})");
  }
  std::string lista(unsigned short columnas, std::vector<std::string> entorno = {}) {
    entorno.push_back("HOME=" + home.ruta());
    return enTerminal({ZORVECTL, "list"}, columnas, std::move(entorno));
  }

  Home home;
};

TEST_F(EnTerminal, laTablaLlevaColorYCabeEnElAncho) {
  EXPECT_EQ(lista(80),
            "\x1B[2m1111\x1B[0m  Migrar las pruebas a la nueva interf…  \x1B[36m~/src/zorve\x1B[0m  "
            "\x1B[1;33mworking\x1B[0m  \x1B[2m2h\x1B[0m  \x1B[2m1 prompts\x1B[0m\n");
}

TEST_F(EnTerminal, conNoColorNoHayColor) {
  std::string const sinColor =
      "1111  Migrar las pruebas a la nueva interf…  ~/src/zorve  working  2h  1 prompts\n";
  EXPECT_EQ(lista(80, {"NO_COLOR=1"}), sinColor);
  EXPECT_EQ(lista(80, {"TERM=dumb"}), sinColor);
  EXPECT_NE(lista(80, {"NO_COLOR="}), sinColor);
}

TEST_F(EnTerminal, elAnchoDelTerminalValeMasQueLaVariable) {
  EXPECT_EQ(lista(80, {"COLUMNS=20"}), lista(80));
  EXPECT_EQ(lista(0, {"COLUMNS=20", "NO_COLOR=1"}), "Migrar las prue…  2h\n");
}

}  // namespace
}  // namespace zorve::pruebas
