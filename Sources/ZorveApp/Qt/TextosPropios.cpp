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

}  // namespace zorve::TextosPropios
