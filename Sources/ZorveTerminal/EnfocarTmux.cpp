#include "ZorveTerminal/EnfocarTmux.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <optional>
#include <thread>
#include <variant>
#include <vector>

#include "ZorveCore/Terminales/Anfitriona.h"
#include "ZorveCore/Terminales/AnfitrionaTmux.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorvePlatform/Linux/EntornoLinux.h"
#include "ZorvePlatform/Posix/Home.h"
#include "ZorveTerminal/Abrir.h"
#include "ZorveTerminal/Enfocar.h"
#include "ZorveTerminal/Entorno.h"
#include "ZorveTerminal/SesionEnTty.h"
#include "ZorveTerminal/Tmux.h"
#include "ZorveTerminal/VentanasDeGnome.h"

namespace zorve::ayudante {

namespace {

using Hecho = std::expected<void, std::string>;

/// How many servers may stand one inside another.
constexpr int nivelesComoMucho = 4;

constexpr int vecesQueSeEspera = 30;
constexpr std::chrono::milliseconds entreVistazos{50};

/// Whoever shows a client: a terminal, or a pane of another server.
struct OtroTmux {};
using Anfitriona = std::variant<std::monostate, FichaDeTerminal const*, OtroTmux>;

bool puedeEnfocarse(FichaDeTerminal const& ficha) { return seEnfocaEn(ficha, sesionDeAhora()); }

/// A server is the parent of whatever leads one of its panes. Farther up it says nothing: a terminal that was
/// started from a pane is no pane.
Anfitriona anfitrionaDe(std::string const& tty) {
  auto const lider = liderDelTty(tty);
  if (!lider) return {};
  if (nombreDelProceso(lider->padre) == procesoDelServidorDeTmux) return OtroTmux{};
  for (auto const pid : ascendencia(*lider)) {
    auto const nombre = nombreDelProceso(pid);
    if (nombre == procesoDelServidorDeTmux) return {};
    auto const ficha = std::ranges::find_if(
        fichasDeLinux(), [&](FichaDeTerminal const& una) { return esProcesoDe(una, nombre); });
    if (ficha != fichasDeLinux().end()) {
      return puedeEnfocarse(*ficha) ? Anfitriona{&*ficha} : Anfitriona{};
    }
  }
  return {};
}

/// A moment for the new window's client: keys before it would be lost.
void esperarAlClienteDe(std::string const& sesion, ServidorDeTmux const& servidor) {
  for (int i = 0; i < vecesQueSeEspera; ++i) {
    auto const clientes = servidor.clientes();
    if (!clientes || std::ranges::count(*clientes, sesion, &ClienteDeTmux::sesion) > 0) return;
    std::this_thread::sleep_for(entreVistazos);
  }
}

std::string visible(std::string const& tty) { return textoVisible(ttyCorto(tty)); }

/// Where tmux has its socket unless it was told otherwise.
std::string enchufeDeCostumbre(std::span<std::string const> entorno) {
  auto const carpeta = valorEn(entorno, "TMUX_TMPDIR");
  return (carpeta.empty() ? "/tmp" : carpeta) + "/tmux-" + std::to_string(::getuid()) + "/default";
}

std::unexpected<std::string> noEsta(std::string const& tty) {
  return std::unexpected{sesionNoHallada("tmux", visible(tty))};
}

std::unexpected<std::string> sinVentanaAqui(ServidorDeTmux const& servidor, std::string const& tty,
                                            ClienteDeTmux const& cliente, PaneDeTmux const& pane) {
  return std::unexpected{"The tmux session on " + visible(tty) + " is shown on " + visible(cliente.tty) +
                         ", in no window that Zorve can bring to the front here. To see it in a terminal of "
                         "yours, run there: " +
                         textoVisible(servidor.ordenParaUnirse(pane))};
}

/// One pane to bring to the front, and everything that it takes.
class Enfoque {
 public:
  Enfoque(FichaDeTerminal const* elegida, std::span<std::string const> entorno)
      : elegida_{elegida},
        entorno_{entorno},
        programa_{ejecutableEn(EntornoLinux::delProceso(homeDelUsuario().value_or("/")), "tmux")} {}

  [[nodiscard]] Hecho pane(std::string const& tty, int nivel, std::optional<pid_t> deQuien = {}) const;

 private:
  /// No server shows it: a terminal that none of ours hosts was started from a pane. The chosen one tries.
  [[nodiscard]] Hecho fueraDeTmux(std::string const& tty, Proceso const& lider) const;
  [[nodiscard]] Hecho porSusClientes(ServidorDeTmux const& servidor, std::string const& tty,
                                     std::span<PaneDeTmux const> vistas, int nivel) const;
  [[nodiscard]] Hecho porCliente(ServidorDeTmux const& servidor, ClienteDeTmux const& cliente,
                                 PaneDeTmux const& vista, Anfitriona const& anfitriona, int nivel) const;
  [[nodiscard]] Hecho enVentanaNueva(ServidorDeTmux const& servidor, std::string const& tty,
                                     PaneDeTmux const& pane) const;

  FichaDeTerminal const* elegida_;
  std::span<std::string const> entorno_;
  std::string programa_;
};

Hecho Enfoque::pane(std::string const& tty, int nivel, std::optional<pid_t> deQuien) const {
  auto const lider = liderDelTty(tty, deQuien);
  if (!lider) return noEsta(tty);
  auto const escrito = variableDelProceso(lider->pid, "TMUX");
  auto const enchufe = enchufePropio(escrito.empty() ? enchufeDeCostumbre(entorno_) : escrito);
  if (!enchufe && escrito.empty()) return fueraDeTmux(tty, *lider);
  if (!enchufe) {
    return std::unexpected{"The tmux server of " + visible(tty) +
                           " cannot be reached: its socket is not one of yours. Look for the session where "
                           "tmux was started."};
  }
  if (programa_.empty()) {
    return std::unexpected{"The session on " + visible(tty) +
                           " is inside tmux, and there is no tmux in PATH to ask. Add its folder to PATH."};
  }
  ServidorDeTmux const servidor{programa_, *enchufe};
  auto vistas = servidor.panes();
  if (!vistas) return std::unexpected{vistas.error()};
  std::erase_if(*vistas, [&](PaneDeTmux const& una) { return ttyCorto(una.tty) != ttyCorto(tty); });
  if (vistas->empty()) return fueraDeTmux(tty, *lider);
  return porSusClientes(servidor, tty, *vistas, nivel);
}

Hecho Enfoque::fueraDeTmux(std::string const& tty, Proceso const& lider) const {
  bool const esPane = nombreDelProceso(lider.padre) == procesoDelServidorDeTmux;
  if (esPane || elegida_ == nullptr || !puedeEnfocarse(*elegida_)) return noEsta(tty);
  return enfocar(*elegida_, tty);
}

Hecho Enfoque::porSusClientes(ServidorDeTmux const& servidor, std::string const& tty,
                              std::span<PaneDeTmux const> vistas, int nivel) const {
  auto clientes = servidor.clientes();
  if (!clientes) return std::unexpected{clientes.error()};
  auto const ordenados = porConveniencia(*std::move(clientes), vistas);
  if (ordenados.empty()) return enVentanaNueva(servidor, tty, vistas.front());
  for (auto const& cliente : ordenados) {
    auto const anfitriona = anfitrionaDe(cliente.tty);
    if (std::holds_alternative<std::monostate>(anfitriona)) continue;
    return porCliente(servidor, cliente, vistaPara(cliente, vistas), anfitriona, nivel);
  }
  return sinVentanaAqui(servidor, tty, ordenados.front(), vistaPara(ordenados.front(), vistas));
}

Hecho Enfoque::porCliente(ServidorDeTmux const& servidor, ClienteDeTmux const& cliente,
                          PaneDeTmux const& vista, Anfitriona const& anfitriona, int nivel) const {
  if (nivel == nivelesComoMucho) {
    return std::unexpected{"The tmux servers around " + visible(vista.tty) +
                           " stand too many inside one another."};
  }
  if (auto hecho = servidor.mostrar(cliente, vista); !hecho) return hecho;
  if (std::holds_alternative<OtroTmux>(anfitriona)) return pane(cliente.tty, nivel + 1);
  return enfocar(*std::get<FichaDeTerminal const*>(anfitriona), cliente.tty);
}

Hecho Enfoque::enVentanaNueva(ServidorDeTmux const& servidor, std::string const& tty,
                              PaneDeTmux const& pane) const {
  auto const orden = servidor.ordenParaUnirse(pane);
  if (elegida_ == nullptr) {
    return std::unexpected{"No window shows the tmux session on " + visible(tty) +
                           ", and no terminal is chosen for a new one. Choose one in the settings, or run in "
                           "a terminal of yours: " +
                           textoVisible(orden)};
  }
  auto const abierta = abrir(*elegida_, homeDelUsuario().value_or("/"), orden, entorno_);
  if (!abierta) return std::unexpected{abierta.error().mensaje};
  esperarAlClienteDe(pane.sesion, servidor);
  return {};
}

}  // namespace

Hecho enfocarEnTmux(std::string const& tty, FichaDeTerminal const* elegida,
                    std::span<std::string const> entorno, std::optional<pid_t> deQuien) {
  return Enfoque{elegida, entorno}.pane(tty, 1, deQuien);
}

}  // namespace zorve::ayudante
