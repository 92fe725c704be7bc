#include "ZorveApp/Qt/Activacion/EjecutorConTestigo.h"

#include <utility>

#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"

namespace zorve {

EjecutorConTestigo::EjecutorConTestigo(std::vector<std::string> entorno, std::string conVentana,
                                       std::function<std::vector<std::string>()> testigo)
    : entorno_{std::move(entorno)}, conVentana_{std::move(conVentana)}, testigo_{std::move(testigo)} {}

std::expected<ResultadoDeEjecucion, FalloDelSistema> EjecutorConTestigo::correr(
    std::string const& ruta, std::span<std::string const> args) const {
  auto entorno = entorno_;
  if (ruta == conVentana_) {
    for (auto& variable : testigo_()) entorno.push_back(std::move(variable));
  }
  return EjecutorDeProcesos{std::move(entorno)}.correr(ruta, args);
}

}  // namespace zorve
