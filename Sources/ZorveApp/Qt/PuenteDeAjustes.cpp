#include "ZorveApp/Qt/PuenteDeAjustes.h"

#include <utility>

#include "ZorveApp/Qt/Conversiones.h"
#include "ZorveApp/Qt/Etiquetas.h"
#include "ZorveApp/Qt/TextosPropios.h"
#include "ZorveApp/TextosDeEscritorio.h"

namespace zorve {

namespace {

QString etiqueta(std::string_view texto) { return enUnaLinea(textoDeEscritorio(texto)); }

QVariantMap aMapa(Opcion const& opcion) {
  return {{QStringLiteral("titulo"), enUnaLinea(opcion.titulo)},
          {QStringLiteral("nota"), enUnaLinea(opcion.nota.value_or(""))},
          {QStringLiteral("marcada"), opcion.marcada},
          {QStringLiteral("cuadro"), opcion.cuadro}};
}

QVariantMap aMapa(Grupo const& grupo) {
  QVariantList opciones;
  for (auto const& opcion : grupo.opciones) opciones << aMapa(opcion);
  return {{QStringLiteral("titulo"), etiqueta(grupo.titulo)}, {QStringLiteral("opciones"), opciones}};
}

}  // namespace

PuenteDeAjustes::PuenteDeAjustes(VistaAjustes& vista, ModeloDeAjustes& modelo,
                                 PreferenciaDeIdioma const& idioma, QObject* padre)
    : QObject{padre}, vista_{vista}, modelo_{modelo}, idioma_{idioma} {
  porAvisar_.setSingleShot(true);
  connect(&porAvisar_, &QTimer::timeout, this, &PuenteDeAjustes::cambio);
  suscripciones_ = modelo_.observar([this] { anotarCambio(); });
  suscripciones_.push_back(idioma.idioma().observar([this] { anotarCambio(); }));
}

void PuenteDeAjustes::anotarCambio() {
  if (!porAvisar_.isActive()) porAvisar_.start();
}

QVariantList PuenteDeAjustes::secciones() const {
  QVariantList todas;
  for (auto const& fila : vista_.secciones()) {
    todas << QVariantMap{{QStringLiteral("titulo"), etiqueta(fila.titulo)},
                         {QStringLiteral("simbolo"), aQString(textoCrudo(fila.seccion))},
                         {QStringLiteral("elegida"), fila.elegida}};
  }
  return todas;
}

QString PuenteDeAjustes::seccion() const { return aQString(textoCrudo(*modelo_.seccion())); }
QString PuenteDeAjustes::banda() const {
  return enVariasLineas(textoDeEscritorio(vista_.banda().value_or("")));
}

ContenidoDeAjustes PuenteDeAjustes::contenido() const {
  switch (*modelo_.seccion()) {
    case SeccionDeAjustes::general:
      return vista_.general();
    case SeccionDeAjustes::terminal:
      return vista_.terminal();
    default:
      return {};
  }
}

QVariantList PuenteDeAjustes::grupos() const {
  QVariantList todos;
  for (auto const& grupo : contenido().grupos) todos << aMapa(grupo);
  return todos;
}

QString PuenteDeAjustes::texto() const { return etiqueta(contenido().texto); }
QString PuenteDeAjustes::pie() const {
  auto const& fuente = *modelo_.dichoPor();
  if (!fuente || *modelo_.seccion() != SeccionDeAjustes::terminal) return {};
  return TextosPropios::quienDiceLaTerminal(*idioma_.idioma(), enUnaLinea(*fuente));
}

QString PuenteDeAjustes::nombreYVersion() const { return etiqueta(vista_.acercaDe().nombreYVersion); }
QString PuenteDeAjustes::paraCerrar() const { return etiqueta(vista_.acercaDe().paraCerrar); }

void PuenteDeAjustes::clicEnSeccion(int cual) {
  auto const secciones = vista_.secciones();
  auto const posicion = static_cast<std::size_t>(cual);
  if (cual >= 0 && posicion < secciones.size()) vista_.clicEnSeccion(secciones[posicion].seccion);
}

void PuenteDeAjustes::clicEnOpcion(int grupo, int opcion) {
  auto const grupos = contenido().grupos;
  auto const g = static_cast<std::size_t>(grupo);
  auto const o = static_cast<std::size_t>(opcion);
  if (grupo < 0 || opcion < 0 || g >= grupos.size() || o >= grupos[g].opciones.size()) return;
  grupos[g].opciones[o].accion();
}

}  // namespace zorve
