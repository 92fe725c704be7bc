#include "ZorveApp/Qt/Dibujo/EstiloQt.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleHints>

#include <algorithm>

#include "ZorveApp/Qt/Dibujo/FondoDeVidrio.h"

namespace zorve {

namespace {

double puntosPorPixel() { return 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY(); }

int pesoMedioDe(QString const& familia) {
  auto const estilos = QFontDatabase::styles(familia);
  bool const tiene = std::ranges::any_of(
      estilos, [&](QString const& uno) { return QFontDatabase::weight(familia, uno) == QFont::Medium; });
  return tiene ? QFont::Medium : QFont::DemiBold;
}

}  // namespace

QColor fondoDelPie() { return fondoDeVidrio(5, 1).pixelColor(0, 4); }

QColor fondoDelPanel() { return fondoDeVidrio(5, 1).pixelColor(0, 1); }

ColoresQt coloresConContraste() {
  ColoresQt fuertes;
  fuertes.borde = fuertes.bordeSuperior = aQColor(Color::blanco(0.7));
  fuertes.linea = aQColor(Color::blanco(0.5));
  fuertes.lineaFila = aQColor(Color::blanco(0.4));
  // What is selected is told by its outline: a fill would take from the contrast of what is written on it.
  fuertes.filaSeleccionada = aQColor(Estilo::acento.con(0.03));
  fuertes.trazoDeSeleccion = 2;
  fuertes.filaAlPulsar = fuertes.filaAlPasar;
  fuertes.texto = fuertes.textoTenue = fuertes.textoEncendido = aQColor(Estilo::textoAlto);
  fuertes.textoDebil = fuertes.aroInactivo = aQColor(Estilo::texto);
  fuertes.contornoDeFila = aQColor(Estilo::acento);
  fuertes.contornoDeError = aQColor(Estilo::error);
  fuertes.contornoDeAviso = aQColor(Color::blanco(0.7));
  fuertes.fondoDeTecla = aQColor(Color::blanco(0.2));
  fuertes.foco = aQColor(Color::blanco(1));
  return fuertes;
}

EstiloQt::EstiloQt(QObject* padre)
    : QObject{padre}, puntos_{puntosPorPixel()}, pesoMedio_{pesoMedioDe(QGuiApplication::font().family())} {}

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

QFont EstiloQt::cifras() const {
  auto letra = QGuiApplication::font();
  letra.setPointSizeF(letraDerecha());
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
  letra.setFeature("tnum", 1);
#endif
  return letra;
}

QString EstiloQt::fija() const { return QFontDatabase::systemFont(QFontDatabase::FixedFont).family(); }

}  // namespace zorve
