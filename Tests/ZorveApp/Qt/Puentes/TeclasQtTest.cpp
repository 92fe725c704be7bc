#include "ZorveApp/Qt/Puentes/TeclasQt.h"

#include <gtest/gtest.h>

namespace zorve {
namespace {

Pulsacion de(int tecla, Qt::KeyboardModifiers con = Qt::NoModifier, bool repetida = false) {
  return aPulsacion(QKeyEvent{QEvent::KeyPress, tecla, con, {}, repetida});
}

TEST(TeclasQt, lasTeclasConSignificadoSeReconocen) {
  EXPECT_EQ(de(Qt::Key_Up).tecla, Tecla::arriba);
  EXPECT_EQ(de(Qt::Key_Down).tecla, Tecla::abajo);
  EXPECT_EQ(de(Qt::Key_Return).tecla, Tecla::retorno);
  EXPECT_EQ(de(Qt::Key_Enter).tecla, Tecla::retorno);
  EXPECT_EQ(de(Qt::Key_Escape).tecla, Tecla::escape);
}

TEST(TeclasQt, elTecladoNumericoNoEsUnModificador) {
  EXPECT_EQ(de(Qt::Key_Enter, Qt::KeypadModifier).modificadores, Modificador::ninguno);
}

TEST(TeclasQt, unaLetraLlegaEnMinuscula) {
  auto const letra = de(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(letra.tecla, Tecla::caracter);
  EXPECT_EQ(letra.caracter, U'r');
  EXPECT_EQ(letra.modificadores, Modificador::control);
}

TEST(TeclasQt, cadaModificadorCuenta) {
  auto const todos = Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier | Qt::MetaModifier;
  EXPECT_EQ(de(Qt::Key_C, todos).modificadores,
            Modificador::control | Modificador::mayusculas | Modificador::opcion | Modificador::mando);
}

TEST(TeclasQt, unaTeclaDeFuncionNoTieneCaracter) { EXPECT_EQ(de(Qt::Key_F5).caracter, U'\0'); }

TEST(TeclasQt, laRepeticionSeDice) { EXPECT_TRUE(de(Qt::Key_Return, Qt::NoModifier, true).repetida); }

}  // namespace
}  // namespace zorve
