#include <array>

#include "Consola/EnConsola.h"

namespace zorve::pruebas {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::string_view abajo = "\x1BOB";
constexpr std::string_view arriba = "\x1BOA";

class TeclasDeConsola : public EnConsola {
 protected:
  [[nodiscard]] bool elegida(std::string_view titulo) {
    return pantalla->esperarA([&] {
      auto const donde = pantalla->donde(titulo);
      return donde && pantalla->linea(donde->first).starts_with("▌");
    });
  }
  void muchas(int cuantas) {
    std::string historia;
    for (int i = 0; i < cuantas; ++i) {
      auto const numero = std::to_string(1000 + i);
      auto const cual = "0000" + numero + "-aaaa-4bbb-8ccc-000000000001";
      constexpr std::array cola{
          " of the parser, reviewed and merged", ": why do two of the builds differ at all",
          " draws the icons anew for light and for dark bars", ", or a plan for next week"};
      home.transcripcion(cual,
                         aiTitle("Session number " + numero + cola.at(static_cast<std::size_t>(i) % 4)));
      historia += prompt(cual, "x", enElHome("src/p" + numero), haceMilisegundos(1'000'000 + 1000 * i));
    }
    escribirEnLaHistoria(historia);
  }
};

TEST_F(TeclasDeConsola, lasFlechasMueven) {
  auto& vista = abrir();
  vista.escribir(abajo);
  EXPECT_TRUE(elegida("Añadir"));
  vista.escribir(arriba);
  EXPECT_TRUE(elegida("Rewrite"));
  vista.escribir("\x0E\x0E");
  EXPECT_TRUE(elegida("Draw"));
  vista.escribir("\x10");
  EXPECT_TRUE(elegida("Añadir"));
}

TEST_F(TeclasDeConsola, lasFlechasDelModoNormalTambienMueven) {
  auto& vista = abrir();
  vista.escribir("\x1B[B");
  EXPECT_TRUE(elegida("Añadir"));
}

TEST_F(TeclasDeConsola, controlFinYControlInicioVanALosExtremos) {
  auto& vista = abrir();
  vista.escribir("\x1B[1;5F");
  EXPECT_TRUE(elegida("Draw"));
  vista.escribir("\x1B[1;5H");
  EXPECT_TRUE(elegida("Rewrite"));
}

TEST_F(TeclasDeConsola, lasPaginasVanDePantallaEnPantalla) {
  muchas(60);
  pantalla = std::make_unique<PantallaVirtual>(con());
  ASSERT_TRUE(pantalla->esperar("1/63"));
  pantalla->escribir("\x1B[6~");
  EXPECT_TRUE(pantalla->esperar("11/63"));
  pantalla->escribir("\x1B[6~");
  EXPECT_TRUE(pantalla->esperar("21/63"));
  pantalla->escribir("\x1B[5~");
  EXPECT_TRUE(pantalla->esperar("11/63"));
}

TEST_F(TeclasDeConsola, loEscritoFiltraYBorrarloDevuelve) {
  auto& vista = abrir();
  vista.escribir("icon");
  EXPECT_TRUE(vista.esperar("1/1"));
  EXPECT_FALSE(vista.donde("Rewrite"));
  vista.escribir("\x7F\x7F\x7F\x7F");
  EXPECT_TRUE(vista.esperar("/3"));
  vista.escribir("zzz");
  EXPECT_TRUE(vista.esperar("no matches"));
  vista.escribir("\x15");
  EXPECT_TRUE(vista.esperar("Rewrite"));
}

TEST_F(TeclasDeConsola, conFilterEmpiezaBuscando) {
  pantalla = std::make_unique<PantallaVirtual>(con({"--filter", "icon"}));
  EXPECT_TRUE(pantalla->esperar("1/1"));
  EXPECT_THAT(pantalla->linea(0), HasSubstr("❯ icon"));
}

TEST_F(TeclasDeConsola, loPegadoVaALaBusquedaSinAbrirNada) {
  auto& vista = abrir();
  vista.escribir("\x1B[200~draw\rthe\x1B[201~");
  EXPECT_TRUE(vista.esperar("❯ draw the"));
  EXPECT_TRUE(vista.esperar("1/1"));
}

TEST_F(TeclasDeConsola, controlRRefrescaLoQueCambio) {
  auto& vista = abrir();
  home.transcripcion(id(4), aiTitle("Recién llegada"));
  escribirEnLaHistoria(prompt(id(4), "x", enElHome("src/zorve"), haceMilisegundos(1'000)));
  vista.escribir("\x12");
  EXPECT_TRUE(vista.esperar("Recién llegada"));
}

TEST_F(TeclasDeConsola, laRuedaCorreLaListaYLaSeleccionSeQueda) {
  muchas(60);
  pantalla = std::make_unique<PantallaVirtual>(con());
  ASSERT_TRUE(pantalla->esperar("1/63"));
  ASSERT_TRUE(pantalla->donde("Rewrite"));
  pantalla->escribir("\x1B[<65;10;10M");
  EXPECT_TRUE(pantalla->esperarA([&] { return !pantalla->donde("Rewrite"); }));
  EXPECT_TRUE(pantalla->donde("1/63"));
  pantalla->escribir("\x1B[<64;10;10M");
  EXPECT_TRUE(pantalla->esperar("Rewrite"));
}

TEST_F(TeclasDeConsola, unClicAbreLaFila) {
  conClaude("echo abierta $2");
  auto& vista = abrir(con({"--here"}));
  auto const fila = vista.donde("Draw the icon")->first + 1;
  vista.escribir("\x1B[<0;10;" + std::to_string(fila) + "M\x1B[<0;10;" + std::to_string(fila) + "m");
  EXPECT_TRUE(vista.esperar("abierta " + id(3)));
  EXPECT_EQ(vista.terminar(), 0);
}

TEST_F(TeclasDeConsola, controlYCopiaPorElTerminalYDiceQueNadieResponde) {
  auto& vista = abrir();
  (void)vista.sacarBytes();
  vista.escribir("\x19");
  EXPECT_TRUE(vista.esperar("▎ Copied: " + id(1)));
  EXPECT_TRUE(vista.esperar("OSC 52"));
  EXPECT_THAT(vista.sacarBytes(), HasSubstr("\x1B]52;c;MTAwMDAwMDEt"));
}

TEST_F(TeclasDeConsola, dondeElTerminalTomaCopiasNoSeDuda) {
  auto& vista = abrir(con({}, {"TERM=xterm-kitty"}));
  vista.escribir("\x19");
  EXPECT_TRUE(vista.esperar("▎ Copied: " + id(1)));
  EXPECT_FALSE(vista.donde("OSC 52"));
}

TEST_F(TeclasDeConsola, escapeControlCYControlQDejan) {
  for (auto const* tecla : {"\x1B", "\x03", "\x11"}) {
    auto& vista = abrir();
    vista.escribir(tecla);
    EXPECT_EQ(vista.terminar(), 0);
    EXPECT_TRUE(vista.comoUnaShellLaQuiere());
  }
}

TEST_F(TeclasDeConsola, unaTeclaMandaMenosDeCuatroKilobytes) {
  muchas(200);
  auto como = con({}, {"COLORTERM=truecolor"});
  como.columnas = 200;
  como.filas = 60;
  como.fondo = "rgb:0000/0000/0000";
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/203"));
  ASSERT_TRUE(
      pantalla->esperarA([&] { return pantalla->celda(2, 30).fondo.clase == ColorDeCelda::Clase::directo; }));
  std::size_t mayor = 0;
  for (auto const tecla :
       {"\x0E", "\x0E", "\x10", "\x1B[6~", "\x0E", "\x1B[5~", "\x1B[1;5F", "n", "u", "m", "\x7F", "1"}) {
    (void)pantalla->sacarBytes();
    pantalla->escribir(tecla);
    ASSERT_TRUE(pantalla->esperarCuadro());
    mayor = std::max(mayor, pantalla->sacarBytes().size());
  }
  RecordProperty("bytes", static_cast<int>(mayor));
  EXPECT_LT(mayor, 4096U);
  EXPECT_GT(mayor, 1000U);
}

TEST_F(TeclasDeConsola, controlZLaSuspendeYAlVolverSeDibuja) {
  auto como = con();
  como.palabras = {
      "/bin/bash",
      "--norc",
      "--noprofile",
      "-i",
      "-c",
      std::string{"set -m; "} + ZORVECTL + " panel; echo detenida $?; fg >/dev/null; echo fin $?"};
  pantalla = std::make_unique<PantallaVirtual>(como);
  ASSERT_TRUE(pantalla->esperar("1/3"));
  EXPECT_TRUE(pantalla->enPantallaAparte());
  pantalla->escribir("\x1A");
  ASSERT_TRUE(pantalla->esperarA([&] { return pantalla->enPantallaAparte() && pantalla->donde("1/3"); }));
  pantalla->escribir("\x0E");
  EXPECT_TRUE(pantalla->esperar("2/3"));
  pantalla->escribir("\x03");
  EXPECT_TRUE(pantalla->esperar("fin 0"));
  EXPECT_TRUE(pantalla->donde("detenida 148"));
}

}  // namespace
}  // namespace zorve::pruebas
