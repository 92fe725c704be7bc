#include "ZorveApp/Teclado.h"

namespace zorve {

namespace {

char32_t minuscula(char32_t caracter) {
  return caracter >= U'A' && caracter <= U'Z' ? caracter - U'A' + U'a' : caracter;
}

std::optional<AccionDelPanel> conAtajo(char32_t caracter) {
  switch (minuscula(caracter)) {
    case U'r':
      return AccionDelPanel::refrescar;
    case U'c':
      return AccionDelPanel::copiar;
    case U'q':
      return AccionDelPanel::salir;
    case U',':
      return AccionDelPanel::ajustes;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<AccionDelPanel> accionDelPanel(Pulsacion const& pulsacion, Modificador principal) {
  if (pulsacion.tecla == Tecla::caracter) {
    return pulsacion.modificadores == principal ? conAtajo(pulsacion.caracter) : std::nullopt;
  }
  if (pulsacion.modificadores != Modificador::ninguno) return std::nullopt;
  switch (pulsacion.tecla) {
    case Tecla::arriba:
      return AccionDelPanel::subir;
    case Tecla::abajo:
      return AccionDelPanel::bajar;
    case Tecla::retorno:
      return pulsacion.repetida ? AccionDelPanel::nada : AccionDelPanel::abrir;
    default:
      return AccionDelPanel::esconder;
  }
}

std::optional<AccionDeAjustes> accionDeAjustes(Pulsacion const& pulsacion, Modificador principal) {
  if (pulsacion.tecla == Tecla::escape && pulsacion.modificadores == Modificador::ninguno) {
    return AccionDeAjustes::cerrar;
  }
  if (pulsacion.tecla != Tecla::caracter || pulsacion.modificadores != principal) return std::nullopt;
  switch (minuscula(pulsacion.caracter)) {
    case U'w':
      return AccionDeAjustes::cerrar;
    case U'q':
      return AccionDeAjustes::salir;
    default:
      return std::nullopt;
  }
}

}  // namespace zorve
