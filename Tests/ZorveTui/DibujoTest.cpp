#include "ZorveTui/Dibujo.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "MesaDeConsola.h"
#include "ZorveTui/Ancho.h"
#include "ZorveTui/DibujoDeBanda.h"

namespace zorve::tui {
namespace {

using testing::Contains;
using testing::HasSubstr;

class DibujoTest : public MesaDeConsola {};

TEST_F(DibujoTest, unaSesionTomaDosLineas) {
  auto viva = hace(360, "a", "Parser fails");
  viva.liveState = LiveState::idle;
  cargar({viva, hace(7300, "b", "Otra")});
  auto const vistas = lineas({60, 12});
  EXPECT_EQ(vistas[2], "▌ ○ Parser fails                                        6m");
  EXPECT_EQ(vistas[3], "▌   ~/src/a · active                            12 prompts");
  EXPECT_EQ(vistas[4], "  · Otra                                                2h");
  EXPECT_EQ(vistas[5], "    ~/src/b                                     12 prompts");
}

TEST_F(DibujoTest, laQueTrabajaLlevaElPuntoLleno) {
  auto viva = hace(1, "a", "una");
  viva.liveState = LiveState::busy;
  cargar({viva});
  auto const hecho = cuadro();
  EXPECT_EQ(hecho.lienzo.celda(2, 2).texto, "●");
  EXPECT_EQ(hecho.lienzo.celda(2, 2).trazo.tinta, Tinta::ember);
}

TEST_F(DibujoTest, soloLaElegidaTieneOtroFondo) {
  muchas(3);
  panel.mover(1);
  auto const hecho = cuadro();
  for (std::size_t fila = 2; fila < 8; ++fila) {
    EXPECT_EQ(hecho.lienzo.celda(fila, 20).trazo.seleccion, fila == 4 || fila == 5) << fila;
  }
}

TEST_F(DibujoTest, mientrasSeCargaDiceQueBusca) {
  panel.aparecer();
  EXPECT_THAT(lineas(), Contains(HasSubstr("looking for sessions…")));
  enEspanol();
  EXPECT_THAT(lineas(), Contains(HasSubstr("buscando sesiones…")));
}

TEST_F(DibujoTest, sinSesionesYSinCoincidenciasLoDice) {
  cargar({});
  EXPECT_THAT(lineas(), Contains(HasSubstr("no sessions")));
  muchas(2);
  panel.escribirConsulta("nada de eso");
  EXPECT_THAT(lineas(), Contains(HasSubstr("no matches")));
}

TEST_F(DibujoTest, elCursorEstaEnLaBusqueda) {
  muchas(1);
  vista.busqueda.poner("日本ab");
  vista.busqueda.izquierda();
  auto const hecho = cuadro();
  EXPECT_EQ(hecho.cursor, (Posicion{0, 9}));
  EXPECT_THAT(lineas()[0], HasSubstr("❯ 日本ab"));
}

TEST_F(DibujoTest, unaBusquedaLargaEnsenaElFinal) {
  muchas(1);
  vista.busqueda.poner(std::string(200, 'x') + "fin");
  auto const hecho = cuadro({40, 8});
  EXPECT_THAT(hecho.lienzo.linea(0), HasSubstr("xfin"));
  ASSERT_TRUE(hecho.cursor);
  EXPECT_LT(hecho.cursor->columna, 40U);
}

TEST_F(DibujoTest, losControlesYLaDireccionSeVen) {
  cargar({hace(1, "a", "mal\x1B[31m\u202Eo")});
  EXPECT_THAT(lineas()[2], HasSubstr("mal␛[31m<U+202E>o"));
}

TEST_F(DibujoTest, laBandaParteLosTextosEntrePalabras) {
  enDisco({}, {{IndexSource::history, "uno dos tres cuatro cinco seis siete ocho nueve diez once doce"}});
  modelo->refrescar();
  despachador.correrTodo();
  auto const vistas = lineas({40, 14});
  EXPECT_EQ(vistas[2], "  ▎ history: uno dos tres cuatro cinco");
  EXPECT_EQ(vistas[3], "  ▎ seis siete ocho nueve diez once");
}

TEST_F(DibujoTest, unaBandaLargaDejaSitioALaLista) {
  std::vector<IndexError> errores(30, {IndexSource::history, "una línea que no se pudo leer"});
  enDisco({hace(1, "a", "una"), hace(1, "b", "otra")}, errores);
  modelo->refrescar();
  despachador.correrTodo();
  auto const vistas = lineas({60, 16});
  EXPECT_THAT(vistas, Contains(HasSubstr("▌ · una")));
  EXPECT_THAT(vistas, Contains(HasSubstr("▎ history: una línea que no se pudo leer …")));
}

TEST_F(DibujoTest, elPieDiceLasTeclasYLaTerminal) {
  muchas(1);
  EXPECT_THAT(lineas({90, 14}).back(), HasSubstr("↑↓ move  ↩ open  "));
  EXPECT_THAT(lineas({90, 14}).back(), HasSubstr("^Y copy id  esc leave"));
  EXPECT_THAT(lineas({90, 14}).back(), HasSubstr("Uno (the only one)"));
  vista.destino = "in this terminal";
  EXPECT_THAT(lineas({90, 14}).back(), HasSubstr("in this terminal"));
}

TEST_F(DibujoTest, unPieEstrechoSeQuedaConLasTeclasQueMenosSeSaben) {
  muchas(1);
  auto const pie = lineas({40, 8}).back();
  EXPECT_THAT(pie, HasSubstr("esc leave"));
  EXPECT_THAT(pie, HasSubstr("open"));
  EXPECT_THAT(pie, testing::Not(HasSubstr("move")));
}

TEST_F(DibujoTest, dondeNoCabeDiceCuantoHaceFalta) {
  muchas(1);
  EXPECT_EQ(lineas({39, 8})[0], "Zorve needs 40×8; this is 39×8");
  EXPECT_EQ(lineas({40, 7})[0], "Zorve needs 40×8; this is 40×7");
  EXPECT_EQ(lineas({5, 1})[0], "Zorve");
  enEspanol();
  EXPECT_EQ(lineas({39, 8})[0], "Zorve necesita 40×8; hay 39×8");
}

TEST_F(DibujoTest, cadaTamanoSeLlenaSinSalirseYTieneLosDosExtremos) {
  muchas(300);
  for (std::size_t columnas = 40; columnas <= 200; columnas += 7) {
    for (std::size_t filas = 8; filas <= 60; filas += 3) {
      auto const hecho = cuadro({columnas, filas});
      for (std::size_t fila = 0; fila < filas; ++fila) {
        EXPECT_LE(anchoDe(hecho.lienzo.linea(fila)), columnas);
      }
      EXPECT_THAT(hecho.lienzo.linea(0), HasSubstr("❯")) << columnas << "x" << filas;
      EXPECT_THAT(hecho.lienzo.linea(filas - 1), HasSubstr("esc leave")) << columnas << "x" << filas;
    }
  }
}

TEST_F(DibujoTest, cadaLineaSabeQueFilaEnsena) {
  muchas(3);
  auto const hecho = cuadro({60, 14});
  EXPECT_EQ(hecho.filaEnLinea[1], std::nullopt);
  EXPECT_EQ(hecho.filaEnLinea[2], 0U);
  EXPECT_EQ(hecho.filaEnLinea[3], 0U);
  EXPECT_EQ(hecho.filaEnLinea[6], 2U);
  EXPECT_EQ(hecho.filaEnLinea[8], std::nullopt);
}

TEST_F(DibujoTest, unaListaLargaTieneUnaBarraQueDiceDonde) {
  muchas(40);
  auto const barra = [&] {
    auto const hecho = cuadro({60, 24});
    std::vector<std::size_t> en;
    for (std::size_t fila = 0; fila < 24; ++fila) {
      if (hecho.lienzo.celda(fila, 59).texto == "▕") en.push_back(fila);
    }
    return en;
  };
  EXPECT_EQ(barra().front(), 2U);
  vista.primera = 30;
  EXPECT_EQ(barra().back(), 21U);
}

TEST(EnLineas, unaPalabraQueNoCabeSeParte) {
  EXPECT_EQ(enLineas("a bcdefgh", 4), (std::vector<std::string>{"a", "bcde", "fgh"}));
  EXPECT_EQ(enLineas("日本語 x", 4), (std::vector<std::string>{"日本", "語 x"}));
}

}  // namespace
}  // namespace zorve::tui
