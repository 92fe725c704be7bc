#include "ZorveApp/FraseDeTecleo.h"

namespace zorve {

std::string noSeTeclea(std::string_view directorio, Idioma idioma) {
  std::string const cual{directorio};
  if (idioma == Idioma::es) {
    return "La sesión de " + cual +
           " no puede abrirse en esta terminal: se teclearían caracteres de control en su shell. Cambia el "
           "nombre del directorio, o ejecuta allí `claude -r`.";
  }
  return "The session in " + cual +
         " cannot be opened in this terminal: control characters would be typed into its shell. Rename the "
         "directory, or run `claude -r` there yourself.";
}

}  // namespace zorve
