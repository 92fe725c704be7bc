#include "ZorveApp/AppKit/Programa.h"

#include <chrono>
#include <utility>

#include "ZorveCore/SessionIndex.h"

namespace zorve {

Programa::Programa(std::string home, ReglaDePlegado regla, std::optional<std::string> version)
    : servicios_{serviciosDeTerminal(home)},
      banderas_{*servicios_.preferencias},
      idioma{*servicios_.preferencias},
      modelo{delModelo(home, regla)},
      ajustes{deAjustes(std::move(version))},
      panel{modelo,
            estado,
            idioma,
            std::move(home),
            [] { return Fecha{std::chrono::system_clock::now()}; },
            Modificador::mando} {}

ColaboradoresDelModelo Programa::delModelo(std::string const& home, ReglaDePlegado regla) {
  auto cargar = [this, donde = SessionIndex::ubicacionesPorDefecto(home)] {
    return SessionIndex::construir(archivos_, procesos_, donde);
  };
  return {.cargar = std::move(cargar),
          .catalogo = servicios_.catalogo(),
          .ejecutor = ejecutor_,
          .portapapeles = portapapeles_,
          .despachador = despachador,
          .idioma = idioma,
          .regla = regla,
          .rutaPs = servicios_.rutaPs};
}

ColaboradoresDeAjustes Programa::deAjustes(std::optional<std::string> version) {
  return {.catalogo = servicios_.catalogo(),
          .preferencias = *servicios_.preferencias,
          .inicio = inicio_,
          .idioma = idioma,
          .despachador = despachador,
          .version = std::move(version)};
}

}  // namespace zorve
