#include "ZorveApp/Qt/Ventanas/MenuDeFilaQt.h"

#include <QString>
#include <utility>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Bandeja/MenuDeBarra.h"
#include "ZorveApp/Qt/Dibujo/EstiloQt.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"

namespace zorve {

namespace {

QString color(QColor const& cual) {
  return QStringLiteral("rgba(%1,%2,%3,%4)")
      .arg(cual.red())
      .arg(cual.green())
      .arg(cual.blue())
      .arg(cual.alpha());
}

/// The panel's help texts have the same fill and outline.
QString aspecto(double escala) {
  ColoresQt const colores;
  auto const puntos = [escala](double cuantos) { return QString::number(qRound(cuantos * escala)); };
  return QStringLiteral(
             "QMenu { background-color: %1; color: %2; border: 1px solid %3; padding: %4px; }"
             "QMenu::item { padding: %5px %6px; border-radius: %4px; font-size: %7px; }"
             "QMenu::item:selected { background-color: %8; color: %9; }")
      .arg(color(colores.fondoDeAyuda), color(colores.texto), color(colores.bordeSuperior), puntos(4),
           puntos(5), puntos(12), puntos(12), color(aQColor(Estilo::acento.con(0.18))),
           color(colores.textoAlto));
}

}  // namespace

void MenuDeFilaQt::abrir(std::vector<EntradaDelMenuDeFila> const& entradas, QWindow& ventana, QPoint donde,
                         double escala, Elegir alElegir) {
  if (entradas.empty()) return;
  menu_ = std::make_unique<MenuDeBarra>();
  menu_->setStyleSheet(aspecto(escala));
  for (auto const& [clase, titulo] : entradas) {
    auto* const accion = menu_->addAction(aQString(titulo));
    QObject::connect(accion, &QAction::triggered, menu_.get(), [alElegir, cual = clase] { alElegir(cual); });
  }
  menu_->winId();
  menu_->windowHandle()->setTransientParent(&ventana);
  menu_->popup(donde);
  menu_->setActiveAction(menu_->actions().first());
}

void MenuDeFilaQt::cerrar() {
  if (menu_) menu_->close();
}

}  // namespace zorve
