#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QString>

#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/Prestamo.h"

namespace zorve {

/// What the person asks of every program's windows.
struct GustosDePantalla {
  /// Strong colours, nothing translucent, square corners.
  bool altoContraste = false;
  bool conMovimiento = true;
  /// How much larger than usual texts are, and the windows with them.
  double escala = 1;
  bool operator==(GustosDePantalla const&) const = default;
};

/// The glass, opaque, a fifth of the way down.
[[nodiscard]] QColor fondoDelPanel();
/// The same right above the footer.
[[nodiscard]] QColor fondoDelPie();

/// The colours of `Estilo` by their names, and those that only this front end has.
struct ColoresQt {
  QColor borde = aQColor(Estilo::borde);
  QColor bordeSuperior = aQColor(Estilo::bordeSuperior);
  QColor linea = aQColor(Estilo::linea);
  QColor lineaFila = aQColor(Estilo::lineaFila);
  QColor filaSeleccionada = aQColor(Estilo::filaSeleccionada);
  QColor contornoDeFila = aQColor(Estilo::contornoDeFila);
  QColor textoAlto = aQColor(Estilo::textoAlto);
  QColor texto = aQColor(Estilo::texto);
  QColor textoTenue = aQColor(Estilo::textoTenue);
  QColor textoDebil = aQColor(Estilo::textoDebil);
  QColor acento = aQColor(Estilo::acento);
  QColor ember = aQColor(Estilo::ember);
  QColor error = aQColor(Estilo::error);
  QColor fondoDeError = aQColor(Estilo::fondoDeError);
  QColor fondoDeAviso = aQColor(Estilo::fondoDeAviso);
  QColor contornoDeError = aQColor(Estilo::error.con(0.14));
  QColor contornoDeAviso = aQColor(Color::blanco(0.1));
  QColor fondoDeTecla = aQColor(Estilo::fondoDeTecla);
  QColor fondoDeOpcion = aQColor(Estilo::fondoDeOpcion);
  QColor fondoDeBarraLateral = aQColor(Estilo::fondoDeBarraLateral);
  /// The glass behind the panel's notices, and above its footer.
  QColor fondo = fondoDelPanel();
  QColor fondoBajo = fondoDelPie();
  QColor fondoDeAyuda = QColor::fromRgbF(0.12F, 0.16F, 0.19F);
  QColor haloDeEstado = aQColor(Estilo::haloDeEstado);
  QColor aroInactivo = aQColor(Estilo::aroInactivo);
  QColor foco = aQColor(Estilo::acento.con(0.8));
  QColor textoEscogido = aQColor(Estilo::acento.con(0.3));
  QColor visto = QColor::fromRgbF(0.05F, 0.09F, 0.1F);
  /// Faint texts on a row that is selected or under the pointer.
  QColor textoEncendido = aQColor(Estilo::texto);
  QColor filaApagada = aQColor(Color::blanco(0));
  QColor filaAlPasar = aQColor(Color::blanco(0.03));
  QColor filaAlPulsar = aQColor(Color::blanco(0.06));
  QColor opcionAlPasar = aQColor(Color::blanco(0.065));
  QColor opcionAlPulsar = aQColor(Color::blanco(0.09));
  QColor botonAlPasar = aQColor(Color::blanco(0.06));
  QColor botonAlPulsar = aQColor(Color::blanco(0.1));
  /// How thick the outline of what is selected is, in points.
  double trazoDeSeleccion = 1;
};

/// Under high contrast no text is fainter than the plain one, and lines and outlines are seen.
[[nodiscard]] ColoresQt coloresConContraste();

/// QML's `Estilo`: colours, type sizes and the person's wishes. Type sizes are in font points of the screen,
/// so that the interface's points come out as pixels at scale 1. Main thread only.
class EstiloQt final : public QObject, private ColoresQt {
  Q_OBJECT
  QML_NAMED_ELEMENT(Estilo)
  QML_SINGLETON
  Q_PROPERTY(QColor borde MEMBER borde NOTIFY cambio)
  Q_PROPERTY(QColor bordeSuperior MEMBER bordeSuperior NOTIFY cambio)
  Q_PROPERTY(QColor linea MEMBER linea NOTIFY cambio)
  Q_PROPERTY(QColor lineaFila MEMBER lineaFila NOTIFY cambio)
  Q_PROPERTY(QColor filaSeleccionada MEMBER filaSeleccionada NOTIFY cambio)
  Q_PROPERTY(QColor contornoDeFila MEMBER contornoDeFila NOTIFY cambio)
  Q_PROPERTY(QColor textoAlto MEMBER textoAlto NOTIFY cambio)
  Q_PROPERTY(QColor texto MEMBER texto NOTIFY cambio)
  Q_PROPERTY(QColor textoTenue MEMBER textoTenue NOTIFY cambio)
  Q_PROPERTY(QColor textoDebil MEMBER textoDebil NOTIFY cambio)
  Q_PROPERTY(QColor acento MEMBER acento NOTIFY cambio)
  Q_PROPERTY(QColor ember MEMBER ember NOTIFY cambio)
  Q_PROPERTY(QColor error MEMBER error NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeError MEMBER fondoDeError NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeAviso MEMBER fondoDeAviso NOTIFY cambio)
  Q_PROPERTY(QColor contornoDeError MEMBER contornoDeError NOTIFY cambio)
  Q_PROPERTY(QColor contornoDeAviso MEMBER contornoDeAviso NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeTecla MEMBER fondoDeTecla NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeOpcion MEMBER fondoDeOpcion NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeBarraLateral MEMBER fondoDeBarraLateral NOTIFY cambio)
  Q_PROPERTY(QColor fondo MEMBER fondo NOTIFY cambio)
  Q_PROPERTY(QColor fondoBajo MEMBER fondoBajo NOTIFY cambio)
  Q_PROPERTY(QColor textoEncendido MEMBER textoEncendido NOTIFY cambio)
  Q_PROPERTY(QColor filaApagada MEMBER filaApagada NOTIFY cambio)
  Q_PROPERTY(double trazoDeSeleccion MEMBER trazoDeSeleccion NOTIFY cambio)
  Q_PROPERTY(QFont cifras READ cifras NOTIFY cambio)
  Q_PROPERTY(int pesoMedio READ pesoMedio NOTIFY cambio)
  Q_PROPERTY(QColor fondoDeAyuda MEMBER fondoDeAyuda NOTIFY cambio)
  Q_PROPERTY(QColor haloDeEstado MEMBER haloDeEstado NOTIFY cambio)
  Q_PROPERTY(QColor aroInactivo MEMBER aroInactivo NOTIFY cambio)
  Q_PROPERTY(QColor foco MEMBER foco NOTIFY cambio)
  Q_PROPERTY(QColor textoEscogido MEMBER textoEscogido NOTIFY cambio)
  Q_PROPERTY(QColor visto MEMBER visto NOTIFY cambio)
  Q_PROPERTY(QColor filaAlPasar MEMBER filaAlPasar NOTIFY cambio)
  Q_PROPERTY(QColor filaAlPulsar MEMBER filaAlPulsar NOTIFY cambio)
  Q_PROPERTY(QColor opcionAlPasar MEMBER opcionAlPasar NOTIFY cambio)
  Q_PROPERTY(QColor opcionAlPulsar MEMBER opcionAlPulsar NOTIFY cambio)
  Q_PROPERTY(QColor botonAlPasar MEMBER botonAlPasar NOTIFY cambio)
  Q_PROPERTY(QColor botonAlPulsar MEMBER botonAlPulsar NOTIFY cambio)
  Q_PROPERTY(double letraDeBusqueda READ letraDeBusqueda NOTIFY cambio)
  Q_PROPERTY(double letraDeBanda READ letraDeBanda NOTIFY cambio)
  Q_PROPERTY(double letraDeTitulo READ letraDeTitulo NOTIFY cambio)
  Q_PROPERTY(double letraDeRuta READ letraDeRuta NOTIFY cambio)
  Q_PROPERTY(double letraDerecha READ letraDerecha NOTIFY cambio)
  Q_PROPERTY(double letraDelPie READ letraDelPie NOTIFY cambio)
  Q_PROPERTY(double letraDeRotulo READ letraDeRotulo NOTIFY cambio)
  Q_PROPERTY(double letraDeOpcion READ letraDeOpcion NOTIFY cambio)
  Q_PROPERTY(double letraDeNota READ letraDeNota NOTIFY cambio)
  Q_PROPERTY(int transicion READ transicion NOTIFY cambio)
  Q_PROPERTY(int parpadeo READ parpadeo NOTIFY cambio)
  Q_PROPERTY(double escala READ escala NOTIFY cambio)
  Q_PROPERTY(QString fija READ fija NOTIFY cambio)

 public:
  explicit EstiloQt(QObject* padre);
  static EstiloQt* create(QQmlEngine* motor, QJSEngine* /*otro*/) { return prestado<EstiloQt>(*motor); }

  void vestir(GustosDePantalla const& gustos);

  [[nodiscard]] double letraDeBusqueda() const { return puntos_ * Medidas::letraDeBusqueda; }
  [[nodiscard]] double letraDeBanda() const { return puntos_ * Medidas::letraDeBanda; }
  [[nodiscard]] double letraDeTitulo() const { return puntos_ * Medidas::letraDeTitulo; }
  [[nodiscard]] double letraDeRuta() const { return puntos_ * Medidas::letraDeRuta; }
  [[nodiscard]] double letraDerecha() const { return puntos_ * Medidas::letraDerecha; }
  [[nodiscard]] double letraDelPie() const { return puntos_ * Medidas::letraDelPie; }
  [[nodiscard]] double letraDeRotulo() const { return puntos_ * Medidas::letraDeRotulo; }
  [[nodiscard]] double letraDeOpcion() const { return puntos_ * Medidas::letraDeOpcion; }
  [[nodiscard]] double letraDeNota() const { return puntos_ * Medidas::letraDeNota; }
  /// In milliseconds; 0 where the person asks for less motion.
  [[nodiscard]] int transicion() const;
  /// How long a caret is lit, in milliseconds; 0 for always.
  [[nodiscard]] int parpadeo() const;
  [[nodiscard]] double escala() const { return gustos_.escala; }
  /// The type of a row's right-hand side: figures of one width, where the toolkit can ask for them.
  [[nodiscard]] QFont cifras() const;
  /// The weight of titles, a QFont::Weight: the next heavier one where the family has no medium.
  [[nodiscard]] int pesoMedio() const { return pesoMedio_; }
  /// The fixed-width family.
  [[nodiscard]] QString fija() const;

 Q_SIGNALS:
  void cambio();

 private:
  GustosDePantalla gustos_;
  /// Font points in one pixel of a screen at scale 1.
  double puntos_ = 1;
  int pesoMedio_;
};

}  // namespace zorve
