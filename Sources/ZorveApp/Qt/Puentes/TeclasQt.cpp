#include "ZorveApp/Qt/Puentes/TeclasQt.h"

#include <array>
#include <utility>

namespace zorve {

namespace {

Modificador modificadores(Qt::KeyboardModifiers de) {
  static constexpr std::array<std::pair<Qt::KeyboardModifier, Modificador>, 5> tabla{
      {{Qt::ControlModifier, Modificador::control},
       {Qt::ShiftModifier, Modificador::mayusculas},
       {Qt::AltModifier, Modificador::opcion},
       {Qt::MetaModifier, Modificador::mando},
       {Qt::GroupSwitchModifier, Modificador::otro}}};
  auto todos = Modificador::ninguno;
  for (auto const& [qt, nuestro] : tabla) {
    if (de.testFlag(qt)) todos = todos | nuestro;
  }
  return todos;
}

Tecla tecla(int codigo) {
  switch (codigo) {
    case Qt::Key_Up:
      return Tecla::arriba;
    case Qt::Key_Down:
      return Tecla::abajo;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Tecla::retorno;
    case Qt::Key_Escape:
      return Tecla::escape;
    default:
      return Tecla::caracter;
  }
}

}  // namespace

Pulsacion aPulsacion(QKeyEvent const& evento) {
  auto const codigo = evento.key();
  bool const tieneLetra = codigo > 0 && codigo < Qt::Key_Escape;
  auto const letra = tieneLetra ? QChar::toLower(static_cast<char32_t>(codigo)) : U'\0';
  return {tecla(codigo), letra, modificadores(evento.modifiers()), evento.isAutoRepeat()};
}

}  // namespace zorve
