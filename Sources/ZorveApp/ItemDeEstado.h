#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "ZorveApp/Despachador.h"
#include "ZorveApp/EstadoDelPanel.h"
#include "ZorveApp/Textos.h"
#include "ZorveCore/PrimerArranque.h"

namespace zorve {

/// A mouse button that came up over the status item.
struct ClicEnLaBarra {
  bool derecho = false;
  bool conControl = false;
};

struct EntradaDelMenu {
  enum class Clase : std::uint8_t { ajustes, separador, salir };
  Clase clase = Clase::separador;
  std::string_view titulo;
  /// The key that, with the system's shortcut modifier, chooses the entry.
  std::string_view tecla;
  bool operator==(EntradaDelMenu const&) const = default;
};

/// The context menu's entries in the language of `textos`.
[[nodiscard]] std::array<EntradaDelMenu, 3> menuDelItem(Textos const& textos);

/// What the status item has done by whoever draws it.
class CaraDelItem {
 public:
  CaraDelItem() = default;
  CaraDelItem(CaraDelItem const&) = delete;
  CaraDelItem& operator=(CaraDelItem const&) = delete;
  virtual ~CaraDelItem() = default;

  [[nodiscard]] virtual bool panelVisible() const = 0;
  /// Brings up the panel under the item with the keyboard in its search field. Does nothing without an item.
  virtual void mostrarPanel() = 0;
  virtual void cerrarPanel() = 0;
  virtual void mostrarMenu(std::array<EntradaDelMenu, 3> const& entradas) = 0;
  virtual void mostrarAjustes() = 0;
  virtual void salir() = 0;
};

/// The status item's rules: which click does what, the menu, the first showing. Main thread only.
class ItemDeEstado {
 public:
  /// The item is given this long to appear before the panel shows by itself.
  static constexpr std::chrono::milliseconds esperaDelPrimerArranque{350};

  /// Installs `estado.abrirLaVentanaDeAjustes`. Everything referenced outlives this object; `estado` may
  /// outlive it.
  ItemDeEstado(CaraDelItem& cara, EstadoDelPanel& estado, PreferenciaDeIdioma const& idioma,
               Despachador& despachador, PrimerArranque primerArranque);
  ItemDeEstado(ItemDeEstado const&) = delete;
  ItemDeEstado& operator=(ItemDeEstado const&) = delete;
  ~ItemDeEstado() = default;

  /// Once, when the item stands.
  void mostrarElPanelSiEsLaPrimeraVez();
  /// Right, or with Control: the menu. Else, or without an event: the panel comes or goes.
  void clic(std::optional<ClicEnLaBarra> evento);
  /// The program was opened again while it runs. Gives true: handled.
  bool reabrir();
  /// Closes the panel, then shows the settings.
  void abrirAjustes();
  void salir();
  void elegir(EntradaDelMenu::Clase entrada);

 private:
  CaraDelItem& cara_;
  PreferenciaDeIdioma const& idioma_;
  Despachador& despachador_;
  PrimerArranque primerArranque_;
  std::shared_ptr<ItemDeEstado*> vida_ = std::make_shared<ItemDeEstado*>(this);
};

}  // namespace zorve
