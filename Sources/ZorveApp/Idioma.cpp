#include "ZorveApp/Idioma.h"

namespace zorve {

Idioma idiomaGuardado(std::string_view texto) { return desdeTextoCrudo<Idioma>(texto).value_or(Idioma::en); }

}  // namespace zorve
