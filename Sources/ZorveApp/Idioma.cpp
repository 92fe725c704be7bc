#include "ZorveApp/Idioma.h"

#include <string>

namespace zorve {

Idioma idiomaGuardado(std::string_view texto) { return desdeTextoCrudo<Idioma>(texto).value_or(Idioma::en); }

std::string_view nombrePropio(Idioma idioma) { return idioma == Idioma::es ? "Español" : "English"; }

PreferenciaDeIdioma::PreferenciaDeIdioma(Preferencias& preferencias, VocesDelSistema const& voces)
    : preferencias_{preferencias},
      voces_{voces},
      idioma_{idiomaGuardado(textoGuardado(preferencias, std::string{clave}).value_or(""))} {}

std::function<std::expected<void, IndexError>()> PreferenciaDeIdioma::elegir(Idioma nuevo) {
  bool const esOtro = idioma_.escribir(nuevo);
  return [&preferencias = preferencias_, nuevo, esOtro]() -> std::expected<void, IndexError> {
    std::string const donde{clave};
    auto const guardado = leerTexto(preferencias, donde);
    if (!guardado) return std::unexpected{guardado.error()};
    if (!esOtro && idiomaGuardado(guardado->value_or("")) == nuevo) return {};
    return preferencias.escribir(donde, std::string{textoCrudo(nuevo)});
  };
}

}  // namespace zorve
