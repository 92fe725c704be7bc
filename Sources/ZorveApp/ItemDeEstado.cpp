#include "ZorveApp/ItemDeEstado.h"

namespace zorve {

std::array<EntradaDelMenu, 3> menuDelItem(Textos const& textos) {
  using enum EntradaDelMenu::Clase;
  return {{{ajustes, textos.menuAjustes, ","}, {separador, {}, {}}, {salir, textos.menuSalirDeZorve, "q"}}};
}

ItemDeEstado::ItemDeEstado(CaraDelItem& cara, EstadoDelPanel& estado, PreferenciaDeIdioma const& idioma,
                           Despachador& despachador, PrimerArranque primerArranque)
    : cara_{cara}, idioma_{idioma}, despachador_{despachador}, primerArranque_{primerArranque} {
  estado.abrirLaVentanaDeAjustes = [vida = std::weak_ptr{vida_}] {
    if (auto const item = vida.lock()) (*item)->abrirAjustes();
  };
}

void ItemDeEstado::mostrarElPanelSiEsLaPrimeraVez() {
  if (!primerArranque_.debeMostrarElPanel()) return;
  despachador_.enPrincipalTras(esperaDelPrimerArranque, [vida = std::weak_ptr{vida_}] {
    if (auto const item = vida.lock()) (*item)->cara_.mostrarPanel();
  });
}

void ItemDeEstado::clic(std::optional<ClicEnLaBarra> evento) {
  if (evento && (evento->derecho || evento->conControl)) {
    cara_.mostrarMenu(menuDelItem(textosDe(idioma_)));
  } else if (cara_.panelVisible()) {
    cara_.cerrarPanel();
  } else {
    cara_.mostrarPanel();
  }
}

bool ItemDeEstado::reabrir() {
  cara_.mostrarPanel();
  return true;
}

void ItemDeEstado::abrirAjustes() {
  cara_.cerrarPanel();
  cara_.mostrarAjustes();
}

void ItemDeEstado::salir() { cara_.salir(); }

void ItemDeEstado::elegir(EntradaDelMenu::Clase entrada) {
  if (entrada == EntradaDelMenu::Clase::ajustes) abrirAjustes();
  if (entrada == EntradaDelMenu::Clase::salir) salir();
}

}  // namespace zorve
