#pragma once

#include <QObject>
#include <QSystemTrayIcon>
#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "ZorveApp/ItemDeEstado.h"
#include "ZorveApp/Qt/Bandeja/MenuDeBarra.h"
#include "ZorveApp/Qt/Bandeja/VigiaDeBandejas.h"
#include "ZorveApp/Qt/Ventanas/Colocacion.h"

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

  /// The menu's entries from now on. Where a host opens the menu on a single click it begins with one that
  /// opens the panel.
  void ponerMenu(std::array<EntradaDelMenu, 3> const& entradas);
  /// Opens the menu at the pointer.
  void abrirMenu();
  /// For a light bar a dark icon.
  void escribirBarraClara(bool clara);

  /// Where the icon is: exactly for XEmbed, else the place of the last click; nothing before one.
  [[nodiscard]] std::optional<Ancla> ancla() const;

 private:
  void alLlegarUnaBandeja();
  void intentar();
  void vestir();
  void escribirMenu();
  void alActivar(QSystemTrayIcon::ActivationReason razon);

  Acciones acciones_;
  VigiaDeBandejas vigia_;
  MenuDeBarra menu_;
  std::array<EntradaDelMenu, 3> entradas_;
  std::unique_ptr<QSystemTrayIcon> icono_;
  bool barraClara_ = false;
  std::optional<Ancla> ultimoClic_;
};

}  // namespace zorve
