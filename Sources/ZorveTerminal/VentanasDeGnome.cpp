#include "ZorveTerminal/VentanasDeGnome.h"

#include <algorithm>
#include <thread>

#include "ZorvePlatform/Linux/SesionGraficaLinux.h"

namespace zorve::ayudante {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr char const* servicio = "com.sarnol.zorve.Windows";
constexpr char const* objeto = "/com/sarnol/zorve/Windows";
constexpr std::chrono::milliseconds plazoDeLaPregunta{1500};
constexpr std::chrono::milliseconds entreMiradas{50};
/// A request that comes before a key press that the shell still has to look at is refused: it is made again.
constexpr int miradasPorPeticion = 8;
constexpr std::size_t datosPorVentana = 4;

Metodo metodo(char const* nombre) { return {servicio, objeto, servicio, nombre}; }

}  // namespace

VentanasDeGnome::VentanasDeGnome(std::vector<pid_t> const& procesos)
    : procesos_(procesos.begin(), procesos.end()) {}

bool VentanasDeGnome::abierta() const { return hayExtensionDeGnome(bus_); }

std::vector<Ventana> VentanasDeGnome::todas() const {
  std::vector<Ventana> ventanas;
  std::vector<Argumento> const cuales{procesos_};
  auto const respuesta = bus_.llamar(metodo("List"), cuales, plazoDeLaPregunta);
  if (!respuesta) return ventanas;
  for (std::size_t i = 0; i + datosPorVentana <= respuesta->size(); i += datosPorVentana) {
    auto const* const id = std::get_if<std::int64_t>(&(*respuesta)[i]);
    auto const* const pid = std::get_if<std::int64_t>(&(*respuesta)[i + 1]);
    auto const* const titulo = std::get_if<std::string>(&(*respuesta)[i + 2]);
    auto const* const enfocada = std::get_if<bool>(&(*respuesta)[i + 3]);
    if (id == nullptr || pid == nullptr || titulo == nullptr || enfocada == nullptr) break;
    ventanas.push_back({static_cast<std::uint64_t>(*id), static_cast<pid_t>(*pid), *titulo, *enfocada});
  }
  return ventanas;
}

bool VentanasDeGnome::activar(std::uint64_t id, std::chrono::milliseconds plazo) const {
  auto const limite = Reloj::now() + plazo;
  std::vector<Argumento> const cual{static_cast<std::uint32_t>(id)};
  for (int miradas = 0; Reloj::now() < limite; ++miradas) {
    bool const toca = miradas % miradasPorPeticion == 0;
    if (toca && !bus_.llamar(metodo("Activate"), cual, plazoDeLaPregunta)) return false;
    auto const ahora = todas();
    if (std::ranges::any_of(ahora, [&](auto const& una) { return una.id == id && una.enfocada; }))
      return true;
    std::this_thread::sleep_for(entreMiradas);
  }
  return false;
}

bool hayExtensionDeGnome(Bus const& bus) {
  auto const suyo = bus.procesoDe(servicio);
  return suyo > 0 && suyo == bus.procesoDe("org.gnome.Shell");
}

SesionGrafica sesionDeAhora() {
  auto const sesion = sesionGraficaDelProceso();
  if (sesion != SesionGrafica::gnome) return sesion;
  return hayExtensionDeGnome(Bus{}) ? SesionGrafica::gnome : SesionGrafica::gnomeSinExtension;
}

}  // namespace zorve::ayudante
