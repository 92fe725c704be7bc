#include "ZorveApp/MenuDeFila.h"

#include "ZorveApp/LineaDeReanudacion.h"

namespace zorve {

namespace {

using Clase = EntradaDelMenuDeFila::Clase;

std::string_view tituloDe(Clase clase, bool enEspanol) {
  switch (clase) {
    case Clase::abrir:
      return enEspanol ? "Abrir" : "Open";
    case Clase::copiarIdentificador:
      return enEspanol ? "Copiar el identificador" : "Copy identifier";
    case Clase::copiarComando:
      return enEspanol ? "Copiar el comando que la reanuda" : "Copy command that resumes it";
    case Clase::copiarDirectorio:
      return enEspanol ? "Copiar el directorio" : "Copy directory";
    default:
      return enEspanol ? "Mostrar el directorio" : "Show directory";
  }
}

}  // namespace

std::vector<EntradaDelMenuDeFila> menuDeFila(Session const& sesion, bool seMuestranDirectorios,
                                             Idioma idioma) {
  std::vector<EntradaDelMenuDeFila> entradas;
  auto const poner = [&](Clase clase, bool cabe) {
    if (cabe) entradas.push_back({clase, tituloDe(clase, idioma == Idioma::es)});
  };
  poner(Clase::abrir, true);
  poner(Clase::copiarIdentificador, sesion.sessionId.has_value());
  poner(Clase::copiarComando, lineaDeReanudacion(sesion).has_value());
  poner(Clase::copiarDirectorio, true);
  poner(Clase::mostrarDirectorio, seMuestranDirectorios);
  return entradas;
}

}  // namespace zorve
