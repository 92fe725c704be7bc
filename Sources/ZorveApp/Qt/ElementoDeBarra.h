#pragma once

#include <QMenu>
#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "ZorveApp/ItemDeEstado.h"
#include "ZorveApp/Qt/Colocacion.h"

namespace zorve {

/// The tray icon with its menu: a StatusNotifierItem where a host for them runs, else an XEmbed icon. Where
/// there is no host yet it appears when one comes up. Main thread only.
class ElementoDeBarra final : public QObject {
  Q_OBJECT

 public:
  struct Acciones {
    std::function<void(ClicEnLaBarra)> clic;
    std::function<void(EntradaDelMenu::Clase)> elegir;
    std::function<void()> abrir;
  };

  explicit ElementoDeBarra(Acciones acciones, QObject* padre = nullptr);

  /// Puts the icon up, or waits for a host. Once, after `ponerMenu`.
  void aparecer();
  [[nodiscard]] bool puesto() const { return icono_ != nullptr; }

  /// The menu's entries from now on. Where a host opens menus on every click it begins with one that opens
  /// the panel.
  void ponerMenu(std::array<EntradaDelMenu, 3> const& entradas);
  /// Opens the menu at the pointer.
  void abrirMenu();
  /// For a light bar a dark icon.
  void escribirBarraClara(bool clara);

  /// Where the icon is: exactly for XEmbed, else the place of the last click; nothing before one.
  [[nodiscard]] std::optional<Ancla> ancla() const;

 private:
  void intentar();
  void vestir();
  void alActivar(QSystemTrayIcon::ActivationReason razon);

  Acciones acciones_;
  QMenu menu_;
  std::unique_ptr<QSystemTrayIcon> icono_;
  QTimer reintento_;
  bool barraClara_ = false;
  std::optional<Ancla> ultimoClic_;
};

}  // namespace zorve
