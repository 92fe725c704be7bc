#include "ZorveTerminal/BusquedaPorMarca.h"

#include <algorithm>
#include <thread>

#include "ZorveTerminal/EleccionDeVentana.h"
#include "ZorveTerminal/FrasesDeEnfoque.h"
#include "ZorveTerminal/MarcaDeTitulo.h"

namespace zorve::ayudante {

namespace {

using namespace std::chrono_literals;
using Reloj = std::chrono::steady_clock;
using Marcada = std::expected<std::uint64_t, std::string>;

constexpr auto plazoDeLaBusqueda = 4000ms;
constexpr auto plazoALaVista = 600ms;
/// Where nothing more can be tried, a busy desktop may still show it.
constexpr std::chrono::milliseconds plazoDeLosLentos{1500};
constexpr auto plazoPorPestana = 300ms;
constexpr auto plazoPorVentana = 700ms;
constexpr auto entreMiradas = 15ms;
constexpr int miradasPorEscritura = 6;

/// A search at work: the mark is on the session's terminal for as long as it lives.
class Busqueda {
 public:
  Busqueda(FichaDeTerminal const& ficha, SesionEnTty const& sesion, Ventanas const& ventanas,
           MarcaDeTitulo const& marca)
      : ficha_{ficha}, sesion_{sesion}, ventanas_{ventanas}, marca_{marca} {}

  /// The window of a process of the session's whose title holds the mark within `plazo`.
  [[nodiscard]] Marcada laMarcada(std::chrono::milliseconds plazo) const {
    auto const hasta = Reloj::now() + plazo;
    for (int miradas = 1;; ++miradas) {
      auto const todas = ventanas_.todas();
      auto const hallada = std::ranges::find_if(todas, [&](auto const& una) {
        return una.titulo.contains(marca_.texto()) && sesion_.desciendeDe(una.pid);
      });
      if (hallada != todas.end()) return hallada->id;
      if (Reloj::now() >= hasta) return std::unexpected{fraseVarias(ficha_, sesion_.tty)};
      if (miradas % miradasPorEscritura == 0) marca_.repetir();
      std::this_thread::sleep_for(entreMiradas);
    }
  }

  [[nodiscard]] Marcada porPestanas(Pestanas& pestanas) const {
    while (Reloj::now() < limite_) {
      auto const mostrada = pestanas.siguiente();
      if (mostrada == Mostrada::calla) return std::unexpected{fraseNoContesta(ficha_, sesion_.tty)};
      if (mostrada == Mostrada::noSabe) break;
      if (auto hallada = laMarcada(plazoPorPestana)) return hallada;
    }
    pestanas.volver();
    auto const resto = std::chrono::duration_cast<std::chrono::milliseconds>(limite_ - Reloj::now());
    return laMarcada(std::min(resto, plazoDeLosLentos));
  }

  [[nodiscard]] Marcada porVentanas(Pestanas& pestanas) const {
    auto const todas = ventanas_.todas();
    for (auto const& una : delMasCercano(todas, sesion_.ascendencia)) {
      if (Reloj::now() >= limite_ || !ventanas_.activar(una.id, plazoPorVentana)) continue;
      if (pestanas.mostrar() == Mostrada::calla) break;
      if (auto hallada = laMarcada(plazoPorPestana)) return hallada;
    }
    auto const antes = std::ranges::find(todas, true, &Ventana::enfocada);
    if (antes != todas.end()) (void)ventanas_.activar(antes->id, plazoPorVentana);
    return std::unexpected{fraseVarias(ficha_, sesion_.tty)};
  }

 private:
  FichaDeTerminal const& ficha_;
  SesionEnTty const& sesion_;
  Ventanas const& ventanas_;
  MarcaDeTitulo const& marca_;
  Reloj::time_point limite_ = Reloj::now() + plazoDeLaBusqueda;
};

}  // namespace

std::expected<std::uint64_t, std::string> buscarPorMarca(FichaDeTerminal const& ficha,
                                                         SesionEnTty const& sesion, Ventanas const& ventanas,
                                                         Pestanas* pestanas, Intento intento) {
  auto const marca = MarcaDeTitulo::poner(sesion.tty, sesion.lider);
  if (!marca) return std::unexpected{marca.error()};
  Busqueda const busqueda{ficha, sesion, ventanas, *marca};
  auto hallada = busqueda.laMarcada(plazoALaVista);
  if (hallada) return hallada;
  if (pestanas != nullptr && intento == Intento::porPestanas) return busqueda.porPestanas(*pestanas);
  if (pestanas != nullptr && intento == Intento::porVentanas) return busqueda.porVentanas(*pestanas);
  return busqueda.laMarcada(plazoDeLosLentos);
}

}  // namespace zorve::ayudante
