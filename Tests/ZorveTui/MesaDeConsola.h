#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ZorveApp/Mesa.h"
#include "ZorveApp/PanelView.h"
#include "ZorveTui/Dibujo.h"

namespace zorve::tui {

/// A panel over doubles, drawn on screens of any size.
class MesaDeConsola : public Mesa {
 protected:
  using duracion = std::chrono::duration<double>;
  static constexpr Fecha ahora{duracion{1'700'000'000}};

  static Session hace(double segundos, std::string const& id, std::string const& titulo) {
    auto sesion = sesionDe(id, titulo, "/home/ana/src/" + id);
    sesion.ultimaActividad = ahora - duracion{segundos};
    sesion.conteoPrompts = 12;
    return sesion;
  }
  void muchas(std::size_t cuantas) {
    std::vector<Session> sesiones;
    for (std::size_t i = 0; i < cuantas; ++i) {
      sesiones.push_back(hace(60, "s" + std::to_string(i), "Title " + std::to_string(i)));
    }
    cargar(std::move(sesiones));
  }
  [[nodiscard]] Cuadro cuadro(Tamano tamano = {60, 14}) {
    vista.idioma = *idioma.idioma();
    return dibujar(panel, vista, tamano);
  }
  [[nodiscard]] std::vector<std::string> lineas(Tamano tamano = {60, 14}) {
    auto const hecho = cuadro(tamano);
    std::vector<std::string> todas;
    for (std::size_t fila = 0; fila < tamano.filas; ++fila) todas.push_back(hecho.lienzo.linea(fila));
    return todas;
  }

  EstadoDelPanel estado;
  PanelView panel{*modelo, estado, idioma, "/home/ana", [] { return ahora; }, Modificador::control};
  Vista vista;
};

}  // namespace zorve::tui
