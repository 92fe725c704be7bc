#include "ZorveApp/Qt/Puentes/TextosPropios.h"

namespace zorve::TextosPropios {

namespace {

QString elegir(Idioma idioma, char const* ingles, char const* espanol) {
  return QString::fromUtf8(idioma == Idioma::es ? espanol : ingles);
}

}  // namespace

QString campoDeBusqueda(Idioma idioma) { return elegir(idioma, "Search sessions", "Buscar sesiones"); }

QString limpiarLaBusqueda(Idioma idioma) { return elegir(idioma, "Clear search", "Borrar la búsqueda"); }

QString listaDeSesiones(Idioma idioma) { return elegir(idioma, "Sessions", "Sesiones"); }

QString quienDiceLaTerminal(Idioma idioma, QString const& fuente) {
  return elegir(idioma, "The system's terminal is the one named by ",
                "La terminal del sistema es la que dice ") +
         fuente + u'.';
}

QString cerrar(Idioma idioma) { return elegir(idioma, "Close", "Cerrar"); }

QString avisoSinBandeja(Idioma idioma) {
  return elegir(
      idioma, "This desktop has no tray for Zorve's icon. Open Zorve again to show this panel.",
      "Este escritorio no tiene bandeja para el icono de Zorve. Vuelve a abrir Zorve para mostrar este "
      "panel.");
}

QString avisoSinBandejaEnGnome(Idioma idioma) {
  return elegir(
      idioma,
      "GNOME has no tray for Zorve's icon by itself. Install its extension AppIndicator and "
      "KStatusNotifierItem "
      "Support, or give the command zorve a shortcut in GNOME's settings, section Keyboard.",
      "GNOME no tiene por sí mismo una bandeja para el icono de Zorve. Instala su extensión AppIndicator and "
      "KStatusNotifierItem Support, o dale al comando zorve un atajo en los ajustes de GNOME, sección "
      "Teclado.");
}

}  // namespace zorve::TextosPropios
