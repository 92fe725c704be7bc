#include "ZorveApp/Qt/Dibujo/EstiloQt.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleHints>

#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"

namespace zorve {

namespace {

double puntosPorPixel() { return 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY(); }

}  // namespace

QColor fondoDelPanel() { return fondoDeVidrio(5, 1).pixelColor(0, 1); }

ColoresQt coloresConContraste() {
  ColoresQt fuertes;
  fuertes.borde = fuertes.bordeSuperior = aQColor(Color::blanco(0.7));
  fuertes.linea = aQColor(Color::blanco(0.5));
  fuertes.lineaFila = aQColor(Color::blanco(0.4));
  fuertes.filaSeleccionada = aQColor(Estilo::acento.con(0.3));
  fuertes.texto = fuertes.textoTenue = aQColor(Estilo::textoAlto);
  fuertes.textoDebil = fuertes.aroInactivo = aQColor(Estilo::texto);
  fuertes.contornoDeFila = aQColor(Estilo::acento);
  fuertes.fondoDeError = aQColor(Estilo::error.con(0.2));
  fuertes.fondoDeAviso = aQColor(Estilo::acento.con(0.2));
  fuertes.fondoDeTecla = aQColor(Color::blanco(0.2));
  fuertes.foco = aQColor(Color::blanco(1));
  return fuertes;
}

EstiloQt::EstiloQt(QObject* padre) : QObject{padre}, puntos_{puntosPorPixel()} {}

void EstiloQt::vestir(GustosDePantalla const& gustos) {
  gustos_ = gustos;
  puntos_ = puntosPorPixel();
  static_cast<ColoresQt&>(*this) = gustos.altoContraste ? coloresConContraste() : ColoresQt{};
  Q_EMIT cambio();
}

int EstiloQt::transicion() const {
  return gustos_.conMovimiento ? static_cast<int>(Medidas::transicion * 1000) : 0;
}

int EstiloQt::parpadeo() const {
  return gustos_.conMovimiento ? QGuiApplication::styleHints()->cursorFlashTime() / 2 : 0;
}

QString EstiloQt::fija() const { return QFontDatabase::systemFont(QFontDatabase::FixedFont).family(); }

}  // namespace zorve
