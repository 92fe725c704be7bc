#include "ZorveApp/Interfaz.h"

#include <chrono>

namespace zorve {

namespace {

ColaboradoresDelModelo delModelo(Cimientos const& sobre, PreferenciaDeIdioma const& idioma) {
  auto cargar = [&archivos = sobre.archivos, &procesos = sobre.procesos,
                 donde = SessionIndex::ubicacionesPorDefecto(sobre.home),
                 voces = sobre.servicios.fuentes.voces] {
    return SessionIndex::construir(archivos, procesos, donde, voces);
  };
  return {.cargar = std::move(cargar),
          .servicios = sobre.servicios,
          .ejecutor = sobre.ejecutor,
          .portapapeles = sobre.portapapeles,
          .despachador = sobre.despachador,
          .idioma = idioma,
          .regla = sobre.regla,
          .directorios = sobre.directorios};
}

ColaboradoresDeAjustes deAjustes(Cimientos const& sobre, PreferenciaDeIdioma& idioma) {
  return {.terminales = sobre.servicios.fuentes,
          .preferencias = sobre.preferencias,
          .inicio = sobre.inicio,
          .idioma = idioma,
          .despachador = sobre.despachador,
          .version = sobre.version};
}

}  // namespace

Interfaz::Interfaz(Cimientos const& sobre)
    : banderas{sobre.preferencias, sobre.despachador},
      idioma{sobre.preferencias, sobre.servicios.fuentes.voces},
      modelo_{delModelo(sobre, idioma)},
      modeloDeAjustes_{deAjustes(sobre, idioma)},
      panel{
          modelo_,        estado, idioma, sobre.home, [] { return Fecha{std::chrono::system_clock::now()}; },
          sobre.principal},
      ajustes{modeloDeAjustes_, idioma, sobre.principal} {}

}  // namespace zorve
