#include "ZorveApp/Qt/Puentes/PuenteDelPanel.h"

#include <QAccessible>
#include <utility>

#include "ZorveApp/Qt/Dibujo/Simbolo.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/Etiquetas.h"
#include "ZorveApp/Qt/Puentes/TextosPropios.h"

namespace zorve {

namespace {

Simbolo::Forma formaDe(EntradaDeLeyenda::Simbolo simbolo) {
  switch (simbolo) {
    case EntradaDeLeyenda::Simbolo::flechas:
      return Simbolo::Forma::Flechas;
    case EntradaDeLeyenda::Simbolo::retorno:
      return Simbolo::Forma::Retorno;
    default:
      return Simbolo::Forma::Ninguna;
  }
}

QVariantMap lineaDeBanda(QString const& texto, bool esError) {
  return {{QStringLiteral("texto"), texto}, {QStringLiteral("esError"), esError}};
}

/// Has a screen reader, if there is one, read `que`.
void leer(QQuickItem* que) {
  if (!que || !QAccessible::isActive()) return;
  QAccessibleEvent lectura{que, QAccessible::Focus};
  QAccessible::updateAccessibility(&lectura);
}

}  // namespace

PuenteDelPanel::PuenteDelPanel(PanelView& panel, PreferenciaDeIdioma const& idioma, QObject* padre)
    : QObject{padre}, panel_{panel}, idioma_{idioma}, filas_{panel} {
  suscripciones_ = panel_.observar([this] { aviso_.anotar(); });
  suscripciones_.push_back(idioma_.idioma().observar([this] { escribirTextos(); }));
  datos_.filas = &filas_;
  atenderVistas();
  escribirTextos();
  actualizar();
}

void PuenteDelPanel::atenderVistas() {
  datos_.trozo = [this](int posicion) {
    bool const esta = posicion >= 0 && static_cast<std::size_t>(posicion) < panel_.cantidadDeFilas();
    return esta ? enUnaLinea(panel_.trozoDelPrompt(static_cast<std::size_t>(posicion))) : QString{};
  };
  connect(&datos_, &DatosDelPanel::consultaEscrita, this, [this](QString const& texto) {
    panel_.escribirConsulta(texto.toStdString());
    actualizar();
  });
  connect(&datos_, &DatosDelPanel::filaPulsada, this, [this](int posicion) {
    if (posicion >= 0) panel_.clicEnFila(static_cast<std::size_t>(posicion));
  });
  connect(&datos_, &DatosDelPanel::ajustesPedidos, this, [this] { panel_.clicEnAjustes(); });
  connect(&datos_, &DatosDelPanel::lecturaPedida, this, leer);
}

void PuenteDelPanel::escribirTextos() {
  auto const idioma = *idioma_.idioma();
  datos_.leyenda = leyenda();
  datos_.ayudaAjustes = enUnaLinea(panel_.ayudaAjustes());
  datos_.nombreAjustes = enUnaLinea(panel_.nombreAjustes());
  datos_.nombreDelCampo = TextosPropios::campoDeBusqueda(idioma);
  datos_.nombreDeLimpiar = TextosPropios::limpiarLaBusqueda(idioma);
  datos_.nombreDeLaLista = TextosPropios::listaDeSesiones(idioma);
  Q_EMIT datos_.textosCambio();
}

void PuenteDelPanel::actualizar() {
  aviso_.olvidar();
  filas_.actualizar();
  auto nueva = nuevaBanda();
  if (nueva != datos_.banda) {
    datos_.banda = std::move(nueva);
    Q_EMIT datos_.bandaCambio();
  }
  auto const fila = panel_.filaSeleccionada();
  datos_.consulta = aQString(panel_.consulta());
  datos_.seleccion = fila ? static_cast<int>(*fila) : -1;
  datos_.marcador = enUnaLinea(panel_.marcador().value_or(""));
  datos_.vacio = panel_.vacio();
  datos_.terminal = enUnaLinea(panel_.terminal());
  Q_EMIT datos_.cambio();
}

QVariantList PuenteDelPanel::nuevaBanda() const {
  QVariantList lineas;
  for (auto const& [clase, texto] : panel_.banda()) {
    lineas << lineaDeBanda(enVariasLineas(texto), clase == LineaDeBanda::Clase::error);
  }
  if (!avisoPropio_.isEmpty()) lineas << lineaDeBanda(avisoPropio_, false);
  return lineas;
}

QVariantList PuenteDelPanel::leyenda() const {
  QVariantList entradas;
  for (auto const& [simbolo, tecla, palabra] : panel_.leyenda()) {
    entradas << QVariantMap{{QStringLiteral("simbolo"), QVariant::fromValue(formaDe(simbolo))},
                            {QStringLiteral("tecla"), enUnaLinea(tecla)},
                            {QStringLiteral("palabra"), enUnaLinea(palabra)}};
  }
  return entradas;
}

void PuenteDelPanel::escribirAvisoPropio(QString texto) {
  avisoPropio_ = std::move(texto);
  aviso_.anotar();
}

}  // namespace zorve
