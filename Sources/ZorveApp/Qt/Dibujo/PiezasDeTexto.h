#pragma once

#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace zorve {

/// A line of text cut where its colour changes, so that each piece can be drawn in its own from the same
/// line: letters that join stay joined, and what a font draws as one glyph is not parted.
class PiezasDeTexto final : public QObject {
  Q_OBJECT
  QML_NAMED_ELEMENT(Piezas)
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// `texto` in `fuente` and in `ancho` points, elided by `elision` (a Qt::TextElideMode). `marcas`: two
  /// numbers a mark, where it begins and ends in UTF-16 units. Gives {texto, piezas}: what is to be drawn,
  /// and {x, ancho, marcada} a piece, in points from the line's start; the pieces cover the line from left to
  /// right. A mark that is hidden by the elision marks the "…".
  Q_INVOKABLE static QVariantMap de(QString const& texto, QFont const& fuente, double ancho, int elision,
                                    QVariantList const& marcas);
};

}  // namespace zorve
