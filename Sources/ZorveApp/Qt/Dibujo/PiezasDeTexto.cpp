#include "ZorveApp/Qt/Dibujo/PiezasDeTexto.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <vector>

namespace zorve {

namespace {

/// Letters that lean reach this far beyond their line.
constexpr double vuelo = 4;

/// The toolkit's own labels round their type to half a point.
QFont comoEnUnLetrero(QFont letra) {
  if (letra.pointSizeF() > 0) letra.setPointSizeF(std::round(letra.pointSizeF() * 2) / 2);
  return letra;
}

struct Parte {
  double desde = 0;
  double hasta = 0;
};

struct Cortado {
  QString texto;
  /// Units of the whole text before the "…", and after it.
  qsizetype antes = 0;
  qsizetype despues = 0;
  qsizetype largo = 0;

  /// Where unit `i` of the whole text is now.
  [[nodiscard]] int lugar(qsizetype i, bool esFinal) const {
    if (texto.size() == largo || i <= antes) return static_cast<int>(std::min(i, texto.size()));
    if (i >= largo - despues) return static_cast<int>(texto.size() - (largo - i));
    return static_cast<int>(antes + (esFinal ? 1 : 0));
  }
};

/// The text as it fits, and how much of both its ends that keeps.
Cortado cortado(QString const& texto, QFont const& letra, double ancho, Qt::TextElideMode elision) {
  auto corto = QFontMetricsF{letra}.elidedText(texto, elision, ancho);
  if (corto == texto) return {texto, texto.size(), 0, texto.size()};
  qsizetype antes = 0;
  while (antes < corto.size() && corto[antes] == texto[antes]) ++antes;
  auto const despues = std::max<qsizetype>(0, corto.size() - antes - 1);
  return {std::move(corto), antes, despues, texto.size()};
}

/// Where the marked glyphs are drawn; in order, apart from each other.
std::vector<Parte> partesMarcadas(QTextLine const& linea, Cortado const& de, QVariantList const& marcas) {
  std::vector<Parte> partes;
  for (qsizetype i = 0; i + 1 < marcas.size(); i += 2) {
    auto const desde = de.lugar(marcas[i].toLongLong(), false);
    auto const hasta = de.lugar(marcas[i + 1].toLongLong(), true);
    if (hasta <= desde) continue;
    for (auto const& tira : linea.glyphRuns(desde, hasta - desde)) {
      auto const marco = tira.boundingRect();
      if (marco.width() > 0) partes.push_back({marco.left(), marco.right()});
    }
  }
  std::ranges::sort(partes, {}, &Parte::desde);
  std::vector<Parte> juntas;
  for (auto const& parte : partes) {
    if (juntas.empty() || parte.desde > juntas.back().hasta) {
      juntas.push_back(parte);
    } else {
      juntas.back().hasta = std::max(juntas.back().hasta, parte.hasta);
    }
  }
  return juntas;
}

QVariantMap pieza(double desde, double hasta, bool marcada) {
  return {{QStringLiteral("x"), desde},
          {QStringLiteral("ancho"), hasta - desde},
          {QStringLiteral("marcada"), marcada}};
}

}  // namespace

QVariantMap PiezasDeTexto::de(QString const& texto, QFont const& fuente, double ancho, int elision,
                              QVariantList const& marcas) {
  auto const letra = comoEnUnLetrero(fuente);
  auto const corto = cortado(texto, letra, ancho, static_cast<Qt::TextElideMode>(elision));
  QTextLayout renglon{corto.texto, letra};
  QTextOption opcion;
  opcion.setUseDesignMetrics(true);
  opcion.setWrapMode(QTextOption::NoWrap);
  renglon.setTextOption(opcion);
  renglon.beginLayout();
  auto const linea = renglon.createLine();
  renglon.endLayout();
  QVariantList piezas;
  double hechas = -vuelo;
  auto const fin = linea.naturalTextWidth() + vuelo;
  for (auto const& [desde, hasta] : partesMarcadas(linea, corto, marcas)) {
    if (desde > hechas) piezas << pieza(hechas, desde, false);
    piezas << pieza(desde, hasta, true);
    hechas = hasta;
  }
  if (fin > hechas) piezas << pieza(hechas, fin, false);
  return {{QStringLiteral("texto"), corto.texto}, {QStringLiteral("piezas"), piezas}};
}

}  // namespace zorve
