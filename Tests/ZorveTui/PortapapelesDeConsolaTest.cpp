#include "ZorveTui/PortapapelesDeConsola.h"

#include <gtest/gtest.h>

#include "Dobles/DespachadorPaso.h"
#include "Dobles/EjecutorGuionado.h"

namespace zorve::tui {
namespace {

constexpr std::string_view copiaDeHola = "\x1B]52;c;aG9sYQ==\x1B\\";

class PortapapelesDeConsolaTest : public testing::Test {
 protected:
  std::string copiar(TmuxDeAqui const& tmux) {
    std::string escrito;
    PortapapelesDeConsola portapapeles{tmux, ejecutor, despachador};
    portapapeles.escribir = [&](std::string_view bytes) { escrito += bytes; };
    portapapeles.copiar("hola");
    despachador.correrTodo();
    return escrito;
  }
  dobles::EjecutorGuionado ejecutor;
  dobles::DespachadorPaso despachador;
  TmuxDeAqui dentro{.programa = "/tmux", .variable = "/t/s,12,3"};
};

TEST_F(PortapapelesDeConsolaTest, laCopiaVaEnBase64) {
  EXPECT_EQ(secuenciaDeCopia(""), "\x1B]52;c;\x1B\\");
  EXPECT_EQ(secuenciaDeCopia("a"), "\x1B]52;c;YQ==\x1B\\");
  EXPECT_EQ(secuenciaDeCopia("ñandú"), "\x1B]52;c;w7FhbmTDug==\x1B\\");
}

TEST_F(PortapapelesDeConsolaTest, fueraDeTmuxSeDiceAlTerminal) { EXPECT_EQ(copiar({}), copiaDeHola); }

TEST_F(PortapapelesDeConsolaTest, dentroDeTmuxSeDiceATmux) {
  ejecutor.contestar({"/tmux", "-S", "/t/s", "set-buffer", "-w", "--", "hola"}, ResultadoDeEjecucion{});
  EXPECT_EQ(copiar(dentro), "");
  EXPECT_EQ(ejecutor.llamadas().size(), 1U);
}

TEST_F(PortapapelesDeConsolaTest, siTmuxNoQuiereSeDiceAlTerminal) {
  ejecutor.contestar({"/tmux", "-S", "/t/s", "set-buffer", "-w", "--", "hola"},
                     ResultadoDeEjecucion{1, "no"});
  EXPECT_EQ(copiar(dentro), copiaDeHola);
}

}  // namespace
}  // namespace zorve::tui
