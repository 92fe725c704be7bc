#include "ZorveApp/Qt/Puentes/PuenteDeAjustes.h"

#include "ZorveApp/Qt/Dibujo/Simbolo.h"
#include "ZorveApp/Qt/Puentes/Conversiones.h"
#include "ZorveApp/Qt/Puentes/Etiquetas.h"
#include "ZorveApp/Qt/Puentes/TextosPropios.h"

namespace zorve {

namespace {

/// What stands here for the system symbol of that name.
Simbolo::Forma formaDe(std::string_view simbolo) {
  if (simbolo == "gearshape") return Simbolo::Forma::Engranaje;
  if (simbolo == "terminal") return Simbolo::Forma::Terminal;
  return simbolo == "info.circle" ? Simbolo::Forma::AcercaDe : Simbolo::Forma::Ninguna;
}

QVariantMap aMapa(FilaDeSeccion const& fila) {
  return {{QStringLiteral("titulo"), enUnaLinea(fila.titulo)},
          {QStringLiteral("simbolo"), QVariant::fromValue(formaDe(fila.simbolo))},
          {QStringLiteral("elegida"), fila.elegida}};
}

QVariantMap aMapa(Opcion const& opcion) {
  return {{QStringLiteral("titulo"), enUnaLinea(opcion.titulo)},
          {QStringLiteral("nota"), enUnaLinea(opcion.nota.value_or(""))},
          {QStringLiteral("marcada"), opcion.marcada},
          {QStringLiteral("cuadro"), opcion.cuadro}};
}

QVariantMap aMapa(Grupo const& grupo) {
  QVariantList opciones;
  for (auto const& opcion : grupo.opciones) opciones << aMapa(opcion);
  return {{QStringLiteral("titulo"), enUnaLinea(grupo.titulo)}, {QStringLiteral("opciones"), opciones}};
}

}  // namespace

PuenteDeAjustes::PuenteDeAjustes(VistaAjustes& vista, PreferenciaDeIdioma const& idioma, QObject* padre)
    : QObject{padre}, vista_{vista}, idioma_{idioma} {
  suscripciones_ = vista_.observar([this] { aviso_.anotar(); });
  connect(&datos_, &DatosDeAjustes::seccionPulsada, this, &PuenteDeAjustes::clicEnSeccion);
  connect(&datos_, &DatosDeAjustes::opcionPulsada, this, &PuenteDeAjustes::clicEnOpcion);
  connect(&datos_, &DatosDeAjustes::cierrePulsado, this, [this] { vista_.acciones.cerrar(); });
  actualizar();
}

void PuenteDeAjustes::actualizar() {
  auto const que = contenido();
  auto const [nombreYVersion, paraCerrar] = vista_.acercaDe();
  datos_.secciones.clear();
  for (auto const& fila : vista_.secciones()) datos_.secciones << aMapa(fila);
  datos_.acercaDe = vista_.seccion() == SeccionDeAjustes::acercaDe;
  datos_.banda = enVariasLineas(vista_.banda().value_or(""));
  datos_.grupos.clear();
  for (auto const& grupo : que.grupos) datos_.grupos << aMapa(grupo);
  datos_.texto = enUnaLinea(que.texto);
  datos_.pie = pie();
  datos_.nombreYVersion = enUnaLinea(nombreYVersion);
  datos_.paraCerrar = enUnaLinea(paraCerrar);
  datos_.textoDeCerrar = TextosPropios::cerrar(*idioma_.idioma());
  Q_EMIT datos_.cambio();
}

ContenidoDeAjustes PuenteDeAjustes::contenido() const {
  switch (vista_.seccion()) {
    case SeccionDeAjustes::general:
      return vista_.general();
    case SeccionDeAjustes::terminal:
      return vista_.terminal();
    default:
      return {};
  }
}

QString PuenteDeAjustes::pie() const {
  auto const& fuente = vista_.dichoPor();
  if (!fuente || vista_.seccion() != SeccionDeAjustes::terminal) return {};
  return TextosPropios::quienDiceLaTerminal(*idioma_.idioma(), enUnaLinea(*fuente));
}

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
