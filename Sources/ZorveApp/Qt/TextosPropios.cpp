#include "ZorveApp/Qt/TextosPropios.h"

namespace zorve::TextosPropios {

namespace {

QString elegir(Idioma idioma, char const* ingles, char const* espanol) {
  return QString::fromUtf8(idioma == Idioma::es ? espanol : ingles);
}

}  // namespace

QString campoDeBusqueda(Idioma idioma) { return elegir(idioma, "Search sessions", "Buscar sesiones"); }

QString listaDeSesiones(Idioma idioma) { return elegir(idioma, "Sessions", "Sesiones"); }

QString quienDiceLaTerminal(Idioma idioma, QString const& fuente) {
  return elegir(idioma, "The system's terminal is the one named by ",
                "La terminal del sistema es la que dice ") +
         fuente + u'.';
}

QString avisoSinBandeja(Idioma idioma) {
  return elegir(
      idioma, "This desktop has no tray for Zorve's icon. Open Zorve again to show this panel.",
      "Este escritorio no tiene bandeja para el icono de Zorve. Vuelve a abrir Zorve para mostrar este "
      "panel.");
}

}  // namespace zorve::TextosPropios
