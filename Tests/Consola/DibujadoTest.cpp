#include <cctype>

#include "Consola/EnConsola.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveTui/Paleta.h"

namespace zorve::pruebas {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Dibujado : public EnConsola {
 protected:
  /// Every cell that shows a letter, in one colour over one background each.
  template <class Comprueba>
  void porCadaLetra(Comprueba const& comprueba) {
    for (int fila = 0; fila < pantalla->filas(); ++fila) {
      for (int columna = 0; columna < pantalla->columnas(); ++columna) {
        auto const celda = pantalla->celda(fila, columna);
        if (celda.texto.size() == 1 && std::isalnum(static_cast<unsigned char>(celda.texto[0])) != 0) {
          comprueba(celda);
        }
      }
    }
  }
};

TEST_F(Dibujado, unaCasaSeVeEntera) {
  auto como = con();
  como.columnas = 60;
  como.filas = 10;
  auto& vista = abrir(como);
  EXPECT_THAT(vista.lineas(), ElementsAre("  ❯                                                    1/3",
                                          "────────────────────────────────────────────────────────────",
                                          "▌ ● Rewrite the history parser                         now",
                                          "▌   ~/src/zorve · working                        1 prompts",
                                          "  · Añadir pruebas 日本語 e\u0301                             6m",
                                          "    ~/trabajo                                    1 prompts",
                                          "  · Draw the icon                                       1d",
                                          "    ~/src/icon                                   1 prompts",
                                          "────────────────────────────────────────────────────────────",
                                          "  ↑↓ move  ↩ open  ^R refresh  ^Y copy id  esc leave"));
}

TEST_F(Dibujado, enEspanolDiceLoMismo) {
  enEspanol();
  auto& vista = abrir();
  EXPECT_THAT(vista.linea(3), HasSubstr("~/src/zorve · procesando"));
  EXPECT_THAT(vista.linea(23), HasSubstr("↑↓ mover  ↩ abrir  ^R refrescar  ^Y copiar id  esc salir"));
  EXPECT_THAT(vista.linea(2), HasSubstr("ahora"));
}

TEST_F(Dibujado, sonLasSesionesDeListEnSuOrdenConSusPalabras) {
  auto const lista = home.zorvectl({"list"}).salida;
  auto& vista = abrir();
  std::size_t desde = 0;
  for (auto const* titulo :
       {"Rewrite the history parser", "Añadir pruebas 日本語 e\u0301", "Draw the icon"}) {
    auto const fila = vista.donde(titulo);
    ASSERT_TRUE(fila) << titulo;
    auto const donde = lista.find(titulo, desde);
    ASSERT_NE(donde, std::string::npos) << titulo;
    desde = donde;
    auto const renglon = lista.substr(donde, lista.find('\n', donde) - donde);
    for (auto const linea : {fila->first, fila->first + 1}) {
      auto const renglonVisto = vista.linea(linea);
      for (auto const palabra : palabras(renglonVisto)) {
        if (palabra == "▌" || palabra == "●" || palabra == "·") continue;
        EXPECT_THAT(renglon, HasSubstr(std::string{palabra}));
      }
    }
  }
}

TEST_F(Dibujado, enVeinticuatroBitsElPuntoEsDelColorDelEstilo) {
  auto como = con({}, {"COLORTERM=truecolor"});
  como.fondo = "rgb:0000/0000/0000";
  auto& vista = abrir(como);
  ColorDeCelda const ember{.clase = ColorDeCelda::Clase::directo, .rojo = 232, .verde = 169, .azul = 76};
  EXPECT_TRUE(vista.esperarA([&] { return vista.celda(2, 2).tinta == ember; }));
  EXPECT_EQ(vista.celda(2, 2).texto, "●");
  EXPECT_EQ(vista.celda(2, 30).fondo.clase, ColorDeCelda::Clase::directo);
  EXPECT_EQ(vista.celda(4, 30).fondo.clase, ColorDeCelda::Clase::propio);
}

TEST_F(Dibujado, conDoscientosCincuentaYSeisSonNumerosDeLaTabla) {
  auto como = con();
  como.fondo = "rgb:0000/0000/0000";
  auto& vista = abrir(como);
  EXPECT_TRUE(vista.esperarA([&] { return vista.celda(2, 2).tinta.numero == 179; }));
}

TEST_F(Dibujado, conDieciseisSonLosDeLaPersona) {
  auto como = con({}, {"TERM=xterm", "COLORFGBG=15;0"});
  auto& vista = abrir(como);
  EXPECT_EQ(vista.celda(2, 2).tinta, (ColorDeCelda{.clase = ColorDeCelda::Clase::numero, .numero = 3}));
}

TEST_F(Dibujado, conNoColorNoHayNinguno) {
  auto& vista = abrir(con({}, {"NO_COLOR=1", "COLORTERM=truecolor"}));
  for (int fila = 0; fila < vista.filas(); ++fila) {
    for (int columna = 0; columna < vista.columnas(); ++columna) {
      EXPECT_EQ(vista.celda(fila, columna).tinta, ColorDeCelda{});
      EXPECT_EQ(vista.celda(fila, columna).fondo, ColorDeCelda{});
    }
  }
  EXPECT_TRUE(vista.celda(2, 4).negrita);
}

TEST_F(Dibujado, sobreBlancoTodoSeLee) {
  auto como = con({}, {"COLORTERM=truecolor"});
  como.fondo = "rgb:ffff/ffff/ffff";
  auto& vista = abrir(como);
  ASSERT_TRUE(vista.esperarA([&] { return vista.celda(2, 30).fondo.clase == ColorDeCelda::Clase::directo; }));
  auto const color = [](ColorDeCelda const& uno) {
    return uno.clase == ColorDeCelda::Clase::propio
               ? Color{1, 1, 1, 1}
               : Color{uno.rojo / 255.0, uno.verde / 255.0, uno.azul / 255.0, 1};
  };
  porCadaLetra([&](CeldaVista const& celda) {
    ASSERT_EQ(celda.tinta.clase, ColorDeCelda::Clase::directo) << celda.texto;
    EXPECT_GE(tui::contraste(color(celda.tinta), color(celda.fondo)), 4.0) << celda.texto;
  });
}

TEST_F(Dibujado, elCursorSigueALoEscrito) {
  auto& vista = abrir();
  EXPECT_EQ(vista.cursor(), (std::pair{0, 4}));
  vista.escribir("日a");
  ASSERT_TRUE(vista.esperar("❯ 日a"));
  EXPECT_TRUE(vista.esperarA([&] { return vista.cursor() == std::pair{0, 7}; }));
  EXPECT_TRUE(vista.cursorVisible());
}

class CadaTamano : public EnConsola {
 protected:
  /// The terminal's edges are ours, and nothing of another size is left.
  [[nodiscard]] bool estaEntero() const {
    auto const filas = pantalla->filas();
    if (!pantalla->linea(0).ends_with("1/3") || !pantalla->linea(filas - 1).contains("esc leave"))
      return false;
    auto const numero =
        static_cast<int>(pantalla->linea(0).size()) - static_cast<int>(std::string{"❯"}.size()) + 1;
    if (numero != pantalla->columnas() - 2) return false;
    for (int fila = filas >= 10 ? 9 : 8; fila < filas - 2; ++fila) {
      if (!pantalla->linea(fila).empty()) return false;
    }
    return pantalla->linea(filas >= 10 ? 2 : 1).contains("Rewrite the history");
  }
};

TEST_F(CadaTamano, deCuarentaPorOchoADoscientosPorSesentaSeRedibuja) {
  abrir();
  for (int columnas = 40; columnas <= 200; ++columnas) {
    pantalla->redimensionar(columnas, 8 + (columnas * 7) % 53);
    ASSERT_TRUE(pantalla->esperarA([&] { return estaEntero(); }))
        << pantalla->columnas() << "x" << pantalla->filas() << "\n"
        << testing::PrintToString(pantalla->lineas());
  }
}

TEST_F(CadaTamano, unaRachaDeCambiosAcabaEnElUltimo) {
  abrir();
  for (int i = 0; i < 100; ++i) pantalla->redimensionar(40 + i, 8 + i % 20);
  EXPECT_TRUE(pantalla->esperarA([&] { return estaEntero(); }));
}

TEST_F(CadaTamano, unaMenorLoDiceYAlCrecerVuelveElPanel) {
  abrir();
  pantalla->redimensionar(30, 5);
  EXPECT_TRUE(pantalla->esperar("Zorve needs 40×8; this is 30×5"));
  pantalla->redimensionar(10, 2);
  EXPECT_TRUE(pantalla->esperarA([&] { return pantalla->linea(0) == "Zorve"; }));
  pantalla->redimensionar(1, 1);
  EXPECT_TRUE(pantalla->esperarA([&] { return pantalla->linea(0) == "Z"; }));
  pantalla->redimensionar(80, 24);
  EXPECT_TRUE(pantalla->esperarA([&] { return estaEntero(); }));
}

}  // namespace
}  // namespace zorve::pruebas
