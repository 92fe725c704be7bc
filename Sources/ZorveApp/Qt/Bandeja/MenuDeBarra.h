#pragma once

#include <QMenu>

namespace zorve {

/// A menu whose shortcuts work while it is open, and whose first and last entry are a key away too.
class MenuDeBarra final : public QMenu {
  Q_OBJECT

 public:
  using QMenu::QMenu;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  /// The entry with this shortcut, or null.
  [[nodiscard]] QAction* conAtajo(QKeyCombination tecla) const;
};

}  // namespace zorve
