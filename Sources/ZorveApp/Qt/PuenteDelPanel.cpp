#include "ZorveApp/Qt/PuenteDelPanel.h"

#include <QAccessible>
#include <utility>

#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/Etiquetas.h"
#include "ZorveApp/TextosDeEscritorio.h"

namespace zorve {

namespace {

QString etiqueta(std::string_view texto) { return enUnaLinea(textoDeEscritorio(texto)); }

QString nombreDe(EntradaDeLeyenda::Simbolo simbolo) {
  switch (simbolo) {
    case EntradaDeLeyenda::Simbolo::flechas:
      return QStringLiteral("flechas");
    case EntradaDeLeyenda::Simbolo::retorno:
      return QStringLiteral("retorno");
    default:
      return {};
  }
}

QVariantMap lineaDeBanda(QString const& texto, bool esError) {
  return {{QStringLiteral("texto"), texto}, {QStringLiteral("esError"), esError}};
}

}  // namespace

PuenteDelPanel::PuenteDelPanel(ModeloDeVista& modelo, PanelView& panel, PreferenciaDeIdioma const& idioma,
                               QObject* padre)
    : QObject{padre}, modelo_{modelo}, panel_{panel}, idioma_{idioma}, filas_{panel} {
  porAvisar_.setSingleShot(true);
  connect(&porAvisar_, &QTimer::timeout, this, &PuenteDelPanel::actualizar);
  suscripciones_ = modelo_.observar([this] { anotarCambio(); });
  suscripciones_.push_back(idioma.idioma().observar([this] {
    anotarCambio();
    Q_EMIT textosCambio();
  }));
  actualizar();
}

void PuenteDelPanel::anotarCambio() {
  if (!porAvisar_.isActive()) porAvisar_.start();
}

void PuenteDelPanel::actualizar() {
  porAvisar_.stop();
  filas_.actualizar();
  auto nueva = nuevaBanda();
  if (nueva != banda_) {
    banda_ = std::move(nueva);
    Q_EMIT bandaCambio();
  }
  Q_EMIT cambio();
}

QVariantList PuenteDelPanel::nuevaBanda() const {
  QVariantList lineas;
  for (auto const& [clase, texto] : panel_.banda()) {
    lineas << lineaDeBanda(enVariasLineas(textoDeEscritorio(texto)), clase == LineaDeBanda::Clase::error);
  }
  if (!avisoPropio_.isEmpty()) lineas << lineaDeBanda(avisoPropio_, false);
  return lineas;
}

QString PuenteDelPanel::consulta() const { return aQString(*modelo_.consulta()); }

int PuenteDelPanel::seleccion() const {
  auto const fila = panel_.filaSeleccionada();
  return fila ? static_cast<int>(*fila) : -1;
}

QString PuenteDelPanel::marcador() const {
  auto const texto = panel_.marcador();
  return texto ? etiqueta(*texto) : QString{};
}

QString PuenteDelPanel::terminal() const { return enUnaLinea(panel_.terminal()); }

QVariantList PuenteDelPanel::leyenda() const {
  QVariantList entradas;
  for (auto const& [simbolo, tecla, palabra] : panel_.leyenda()) {
    entradas << QVariantMap{{QStringLiteral("simbolo"), nombreDe(simbolo)},
                            {QStringLiteral("tecla"), etiqueta(tecla)},
                            {QStringLiteral("palabra"), etiqueta(palabra)}};
  }
  return entradas;
}

QString PuenteDelPanel::ayudaAjustes() const { return etiqueta(panel_.ayudaAjustes()); }
QString PuenteDelPanel::nombreAjustes() const { return etiqueta(panel_.nombreAjustes()); }

void PuenteDelPanel::escribirConsulta(QString const& texto) {
  modelo_.escribirConsulta(texto.toStdString());
  actualizar();
}

void PuenteDelPanel::clicEnFila(int posicion) {
  if (posicion >= 0) panel_.clicEnFila(static_cast<std::size_t>(posicion));
}

void PuenteDelPanel::clicEnAjustes() { panel_.clicEnAjustes(); }

void PuenteDelPanel::leer(QQuickItem* que) const {
  if (!que || !QAccessible::isActive()) return;
  QAccessibleEvent lectura{que, QAccessible::Focus};
  QAccessible::updateAccessibility(&lectura);
}

void PuenteDelPanel::escribirAvisoPropio(QString texto) {
  avisoPropio_ = std::move(texto);
  anotarCambio();
}

}  // namespace zorve
