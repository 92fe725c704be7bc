#include "ZorveTui/Descifrador.h"

#include <gtest/gtest.h>

#include <string_view>

namespace zorve::tui {
namespace {

using Golpes = std::vector<Golpe>;
using Sucesos = std::vector<Suceso>;

Golpes bytes(std::string_view texto) {
  Golpes golpes;
  for (char const letra : texto) golpes.emplace_back(static_cast<unsigned char>(letra));
  return golpes;
}

Sucesos de(std::string_view texto) { return Descifrador{}.descifrar(bytes(texto)); }

TEST(Descifrador, lasLetrasSonTexto) { EXPECT_EQ(de("añ日"), (Sucesos{Escrito{"añ日"}})); }

TEST(Descifrador, lasTeclasDeControlSonOrdenes) {
  EXPECT_EQ(de("\x10\x0E\r\x12\x19\x1A\x03"),
            (Sucesos{Orden::subir, Orden::bajar, Orden::abrir, Orden::refrescar, Orden::copiar,
                     Orden::suspender, Orden::dejar}));
  EXPECT_EQ(de("\x7F\x15\x17\x01\x05"), (Sucesos{Orden::borrarAtras, Orden::borrarTodo, Orden::borrarPalabra,
                                                 Orden::inicio, Orden::fin}));
}

TEST(Descifrador, elTextoYLasOrdenesVanEnSuOrden) {
  EXPECT_EQ(de("ab\x0E"), (Sucesos{Escrito{"ab"}, Orden::bajar}));
}

TEST(Descifrador, unEscapeSoloDeja) { EXPECT_EQ(de("\x1B"), (Sucesos{Orden::dejar})); }

TEST(Descifrador, loQueNadieConoceSeTiraEntero) {
  EXPECT_EQ(de("\x1B[27;5;9~x"), (Sucesos{Escrito{"x"}}));
  EXPECT_EQ(de("\x1BOPx"), (Sucesos{Escrito{"x"}}));
  EXPECT_EQ(de("\x1B"
               "fx"),
            (Sucesos{Escrito{"x"}}));
  EXPECT_EQ(de("\x1BP1$r0m\x1B\\x"), (Sucesos{Escrito{"x"}}));
}

TEST(Descifrador, loPegadoEsTextoConTodo) {
  Golpes golpes{TeclaDeTerminal::empiezaPegado};
  for (auto const& golpe : bytes("uno\rdos\x03")) golpes.push_back(golpe);
  golpes.emplace_back(TeclaDeTerminal::terminaPegado);
  EXPECT_EQ(Descifrador{}.descifrar(golpes), (Sucesos{Escrito{"uno\rdos\x03"}}));
}

TEST(Descifrador, loPegadoEnVariasRachasEsUnTexto) {
  Descifrador descifrador;
  auto primera = bytes("uno");
  primera.insert(primera.begin(), TeclaDeTerminal::empiezaPegado);
  EXPECT_EQ(descifrador.descifrar(primera), Sucesos{});
  auto segunda = bytes(" dos");
  segunda.emplace_back(TeclaDeTerminal::terminaPegado);
  EXPECT_EQ(descifrador.descifrar(segunda), (Sucesos{Escrito{"uno dos"}}));
}

TEST(Descifrador, unCaracterPartidoEntreRachasLlegaEntero) {
  Descifrador descifrador;
  EXPECT_EQ(descifrador.descifrar(bytes("\xE6\x97")), Sucesos{});
  EXPECT_EQ(descifrador.descifrar(bytes("\xA5")), (Sucesos{Escrito{"日"}}));
}

TEST(Descifrador, lasRespuestasDelTerminalNoSonTexto) {
  EXPECT_EQ(de("\x1B]11;rgb:ffff/ffff/ffff\x1B\\\x1B[?2026;2$y\x1B[?62;22c"),
            (Sucesos{RespuestaDeFondo{Color{1, 1, 1, 1}}, TieneSincronia{}, FinDeRespuestas{}}));
  EXPECT_EQ(de("\x1B]11;rgb:0/0/0\x07\x1B[?2026;0$y"), (Sucesos{RespuestaDeFondo{Color{0, 0, 0, 1}}}));
}

TEST(Descifrador, unaRespuestaPartidaEntreRachasSeEntiende) {
  Descifrador descifrador;
  EXPECT_EQ(descifrador.descifrar(bytes("\x1B]11;rgb:ff")), Sucesos{});
  EXPECT_EQ(descifrador.descifrar(bytes("/ff/ff\x1B")), Sucesos{});
  EXPECT_EQ(descifrador.descifrar(bytes("\\a")),
            (Sucesos{RespuestaDeFondo{Color{1, 1, 1, 1}}, Escrito{"a"}}));
}

TEST(Descifrador, unaCadenaSinFinNoSeTragaElTeclado) {
  EXPECT_EQ(de("\x1B]" + std::string(300, 'x') + "ay").back(),
            (Suceso{Escrito{std::string(44, 'x') + "ay"}}));
}

}  // namespace
}  // namespace zorve::tui
