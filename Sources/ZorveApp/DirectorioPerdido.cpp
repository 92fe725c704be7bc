#include "ZorveApp/DirectorioPerdido.h"

namespace zorve::TextosDelDirectorio {

std::string_view ayuda(Idioma idioma) {
  return idioma == Idioma::es ? "El directorio ya no existe." : "The directory no longer exists.";
}

std::string alAbrir(std::string_view directorio, Idioma idioma) {
  std::string const cual{directorio};
  if (idioma == Idioma::es) return "El directorio " + cual + " ya no existe: la sesión no puede abrirse ahí.";
  return "The directory " + cual + " no longer exists: the session cannot be opened there.";
}

}  // namespace zorve::TextosDelDirectorio
