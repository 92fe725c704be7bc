#include "ZorveApp/Qt/Bandeja/MenuDeBarra.h"

#include <QKeyEvent>
#include <algorithm>

namespace zorve {

QAction* MenuDeBarra::conAtajo(QKeyCombination tecla) const {
  auto const todas = actions();
  auto const cual = std::ranges::find_if(
      todas, [&](QAction const* una) { return una->isEnabled() && una->shortcut() == QKeySequence{tecla}; });
  return cual == todas.end() ? nullptr : *cual;
}

void MenuDeBarra::keyPressEvent(QKeyEvent* evento) {
  if (auto* const accion = conAtajo(evento->keyCombination())) {
    close();
    accion->trigger();
  } else if (evento->key() == Qt::Key_Home && !isEmpty()) {
    setActiveAction(actions().first());
  } else if (evento->key() == Qt::Key_End && !isEmpty()) {
    setActiveAction(actions().last());
  } else {
    QMenu::keyPressEvent(evento);
  }
}

}  // namespace zorve
