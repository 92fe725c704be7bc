#include "ZorveApp/Qt/EstiloQt.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <array>
#include <utility>

#include "ZorveApp/Estilo.h"
#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/MarcaQt.h"
#include "ZorveApp/Qt/Simbolo.h"
#include "ZorveApp/Qt/Vidrio.h"

namespace zorve {

namespace {

using Nombrado = std::pair<char const*, Color>;
using Medida = std::pair<char const*, double>;

constexpr std::array colores{Nombrado{"borde", Estilo::borde},
                             Nombrado{"bordeSuperior", Estilo::bordeSuperior},
                             Nombrado{"linea", Estilo::linea},
                             Nombrado{"lineaFila", Estilo::lineaFila},
                             Nombrado{"filaSeleccionada", Estilo::filaSeleccionada},
                             Nombrado{"textoAlto", Estilo::textoAlto},
                             Nombrado{"texto", Estilo::texto},
                             Nombrado{"textoTenue", Estilo::textoTenue},
                             Nombrado{"textoDebil", Estilo::textoDebil},
                             Nombrado{"acento", Estilo::acento},
                             Nombrado{"ember", Estilo::ember},
                             Nombrado{"error", Estilo::error},
                             Nombrado{"contornoDeFila", Estilo::contornoDeFila},
                             Nombrado{"fondoDeError", Estilo::fondoDeError},
                             Nombrado{"fondoDeAviso", Estilo::fondoDeAviso},
                             Nombrado{"fondoDeTecla", Estilo::fondoDeTecla},
                             Nombrado{"fondoDeOpcion", Estilo::fondoDeOpcion},
                             Nombrado{"fondoDeBarraLateral", Estilo::fondoDeBarraLateral},
                             Nombrado{"haloDeEstado", Estilo::haloDeEstado},
                             Nombrado{"aroInactivo", Estilo::aroInactivo},
                             Nombrado{"foco", Estilo::acento.con(0.8)}};

constexpr std::array medidas{Medida{"ancho", Medidas::panel.ancho},
                             Medida{"alto", Medidas::panel.alto},
                             Medida{"radioDelPanel", Medidas::radioDelPanel},
                             Medida{"altoDeBusqueda", Medidas::altoDeBusqueda},
                             Medida{"xDeLupa", Medidas::xDeLupa},
                             Medida{"xDeBusqueda", Medidas::xDeBusqueda},
                             Medida{"margenDeBanda", Medidas::margenDeBanda},
                             Medida{"radioDeBanda", Medidas::radioDeBanda},
                             Medida{"altoDeFila", Medidas::altoDeFila},
                             Medida{"xDeEstado", Medidas::xDeEstado},
                             Medida{"xDeTitulo", Medidas::xDeTitulo},
                             Medida{"margenDerecho", Medidas::margenDerecho},
                             Medida{"sangriaDeSeleccion", Medidas::sangriaDeSeleccion},
                             Medida{"radioDeSeleccion", Medidas::radioDeSeleccion},
                             Medida{"altoDelPie", Medidas::altoDelPie},
                             Medida{"radioDeTecla", Medidas::radioDeTecla},
                             Medida{"anchoDeBarraLateral", Medidas::anchoDeBarraLateral},
                             Medida{"altoDeSeccion", Medidas::altoDeSeccion},
                             Medida{"radioDeOpcion", Medidas::radioDeOpcion},
                             Medida{"altoDeOpcion", Medidas::altoDeOpcion},
                             Medida{"altoDeOpcionConNota", Medidas::altoDeOpcionConNota},
                             Medida{"ladoDeMarca", Medidas::ladoDeMarca}};

constexpr std::array letras{
    Medida{"letraDeBusqueda", Medidas::letraDeBusqueda}, Medida{"letraDeBanda", Medidas::letraDeBanda},
    Medida{"letraDeTitulo", Medidas::letraDeTitulo},     Medida{"letraDeRuta", Medidas::letraDeRuta},
    Medida{"letraDerecha", Medidas::letraDerecha},       Medida{"letraDelPie", Medidas::letraDelPie},
    Medida{"letraDeRotulo", Medidas::letraDeRotulo},     Medida{"letraDeOpcion", Medidas::letraDeOpcion},
    Medida{"letraDeNota", Medidas::letraDeNota}};

/// What differs under high contrast: no text fainter than the plain one, lines and outlines that are seen.
constexpr std::array coloresConContraste{Nombrado{"borde", Color::blanco(0.7)},
                                         Nombrado{"bordeSuperior", Color::blanco(0.7)},
                                         Nombrado{"linea", Color::blanco(0.5)},
                                         Nombrado{"lineaFila", Color::blanco(0.4)},
                                         Nombrado{"filaSeleccionada", Estilo::acento.con(0.3)},
                                         Nombrado{"texto", Estilo::textoAlto},
                                         Nombrado{"textoTenue", Estilo::textoAlto},
                                         Nombrado{"textoDebil", Estilo::texto},
                                         Nombrado{"contornoDeFila", Estilo::acento},
                                         Nombrado{"fondoDeError", Estilo::error.con(0.2)},
                                         Nombrado{"fondoDeAviso", Estilo::acento.con(0.2)},
                                         Nombrado{"fondoDeTecla", Color::blanco(0.2)},
                                         Nombrado{"aroInactivo", Estilo::texto},
                                         Nombrado{"foco", Color::blanco(1)}};

/// Font points in one pixel of a screen at scale 1.
double puntosPorPixel() { return 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY(); }

QString clave(char const* nombre) { return QString::fromLatin1(nombre); }

}  // namespace

QVariantMap estiloParaQml(GustosDePantalla const& gustos) {
  QVariantMap todo;
  for (auto const& [nombre, color] : colores) todo.insert(clave(nombre), aQColor(color));
  if (gustos.altoContraste) {
    for (auto const& [nombre, color] : coloresConContraste) todo.insert(clave(nombre), aQColor(color));
  }
  for (auto const& [nombre, medida] : medidas) todo.insert(clave(nombre), medida);
  auto const puntos = puntosPorPixel();
  for (auto const& [nombre, medida] : letras) todo.insert(clave(nombre), medida * puntos);
  todo.insert(clave("transicion"), gustos.conMovimiento ? static_cast<int>(Medidas::transicion * 1000) : 0);
  todo.insert(clave("escala"), gustos.escala);
  todo.insert(clave("fija"), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
  return todo;
}

void registrarDibujos() {
  constexpr auto modulo = "Zorve.Dibujo";
  qmlRegisterType<Simbolo>(modulo, 1, 0, "Simbolo");
  qmlRegisterType<Vidrio>(modulo, 1, 0, "Vidrio");
  qmlRegisterType<MarcaQt>(modulo, 1, 0, "MarcaDibujada");
}

}  // namespace zorve
