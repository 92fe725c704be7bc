#include "ZorveApp/Idioma.h"

#include <string>

namespace zorve {

Idioma idiomaGuardado(std::string_view texto) { return desdeTextoCrudo<Idioma>(texto).value_or(Idioma::en); }

std::string_view nombrePropio(Idioma idioma) { return idioma == Idioma::es ? "Español" : "English"; }

PreferenciaDeIdioma::PreferenciaDeIdioma(Preferencias& preferencias, VocesDelSistema const& voces)
    : preferencias_{preferencias},
      voces_{voces},
      idioma_{idiomaGuardado(textoGuardado(preferencias, std::string{clave}).value_or(""))} {}

std::expected<void, IndexError> PreferenciaDeIdioma::elegir(Idioma nuevo) {
  if (nuevo == *idioma_) return {};
  auto guardado = preferencias_.escribir(std::string{clave}, std::string{textoCrudo(nuevo)});
  idioma_.escribir(nuevo);
  return guardado;
}

}  // namespace zorve
