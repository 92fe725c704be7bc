#include "ZorveTui/SitioEnTmux.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <utility>
#include <vector>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorvePlatform/Posix/LeerArchivo.h"
#include "ZorvePlatform/Posix/Propiedad.h"

namespace zorve::tui {

namespace {

/// How many processes the walk looks at: the session's own and its ancestors.
constexpr int nivelesDelArbol = 16;
constexpr std::size_t entornoComoMucho = 1UZ << 20U;

struct Proceso {
  std::int32_t padre = 0;
  std::string tty;
};

std::optional<Proceso> procesoDe(std::int32_t pid, TmuxDeAqui const& tmux, Ejecutor const& ejecutor) {
  std::array<std::string, 4> const args{"-o", "ppid=,tty=", "-p", std::to_string(pid)};
  auto const corrida = ejecutor.correr(tmux.rutaPs, args);
  if (!corrida || corrida->codigo != 0) return std::nullopt;
  auto const campos = palabras(corrida->salida);
  auto const padre = campos.empty() ? std::nullopt : enteroEn<std::int32_t>(campos.front());
  if (!padre || campos.size() < 2) return std::nullopt;
  return Proceso{*padre, ttyCorto(campos[1])};
}

/// The process and those above it, and the terminal it runs on.
struct Linaje {
  std::vector<std::int32_t> procesos;
  std::string tty;
};

Linaje linajeDe(std::int32_t pid, TmuxDeAqui const& tmux, Ejecutor const& ejecutor) {
  Linaje linaje;
  for (int nivel = 0; nivel < nivelesDelArbol && pid > 1; ++nivel) {
    auto const uno = procesoDe(pid, tmux, ejecutor);
    if (!uno) break;
    if (linaje.procesos.empty()) linaje.tty = uno->tty;
    linaje.procesos.push_back(pid);
    pid = uno->padre;
  }
  return linaje;
}

std::string enchufeEn(std::string_view variable) {
  return std::string{variable.substr(0, variable.find(','))};
}

bool esNuestro(std::string const& enchufe) {
  struct stat estado{};
  if (!enchufe.starts_with('/') || ::lstat(enchufe.c_str(), &estado) != 0) return false;
  return S_ISSOCK(estado.st_mode) && estado.st_uid == ::geteuid() &&
         soloNuestra(std::filesystem::path{enchufe}.parent_path().string());
}

/// $TMUX of another process, where the system shows its environment.
std::string enchufeDe(std::int32_t pid) {
  auto const entorno = leerArchivo("/proc/" + std::to_string(pid) + "/environ", entornoComoMucho);
  if (!entorno) return {};
  constexpr std::string_view nombre = "TMUX=";
  for (std::string_view resto = *entorno; !resto.empty();) {
    auto const una = resto.substr(0, resto.find('\0'));
    if (una.starts_with(nombre)) return enchufeEn(una.substr(nombre.size()));
    resto.remove_prefix(std::min(resto.size(), una.size() + 1));
  }
  return {};
}

std::vector<std::string> enchufes(std::int32_t pid, TmuxDeAqui const& tmux) {
  std::vector<std::string> todos;
  for (auto const& uno : {tmux.enchufePropio(), enchufeDe(pid), tmux.enchufeDeCostumbre}) {
    if (std::ranges::count(todos, uno) == 0 && esNuestro(uno)) todos.push_back(uno);
  }
  return todos;
}

std::expected<std::string, std::string> correr(TmuxDeAqui const& tmux, std::string const& enchufe,
                                               std::vector<std::string> args, Ejecutor const& ejecutor) {
  args.insert(args.begin(), {"-S", enchufe});
  auto const corrida = ejecutor.correr(tmux.programa, args);
  if (!corrida) return std::unexpected{corrida.error().descripcion};
  if (corrida->codigo != 0) return std::unexpected{std::string{recortar(corrida->salida)}};
  return corrida->salida;
}

/// A line of list-panes: the device, the first process, and the three identifiers.
std::optional<std::string> destinoSiEs(std::string_view linea, Linaje const& linaje) {
  auto const campos = palabras(linea);
  if (campos.size() != 5 || ttyCorto(campos[0]) != linaje.tty) return std::nullopt;
  auto const primero = enteroEn<std::int32_t>(campos[1]);
  if (!primero || std::ranges::count(linaje.procesos, *primero) == 0) return std::nullopt;
  return std::string{campos[2]} + ":" + std::string{campos[3]} + "." + std::string{campos[4]};
}

/// The client that asks: of those that show our session the one used last. Nothing: tmux knows best.
std::optional<std::string> clienteQuePide(TmuxDeAqui const& tmux, Ejecutor const& ejecutor) {
  auto const sesion = tmux.sesionPropia();
  if (sesion.empty()) return std::nullopt;
  auto const salida =
      correr(tmux, tmux.enchufePropio(),
             {"list-clients", "-t", sesion, "-F", "#{client_activity} #{client_tty}"}, ejecutor);
  std::optional<std::string> cual;
  std::int64_t ultima = -1;
  for (std::string_view resto = salida ? std::string_view{*salida} : std::string_view{}; !resto.empty();) {
    auto const campos = palabras(sacarLinea(resto));
    auto const actividad = campos.size() == 2 ? enteroEn<std::int64_t>(campos[0]) : std::nullopt;
    if (!actividad || *actividad <= ultima) continue;
    ultima = *actividad;
    cual = std::string{campos[1]};
  }
  return cual;
}

}  // namespace

std::string TmuxDeAqui::enchufePropio() const { return enchufeEn(variable); }

std::string TmuxDeAqui::sesionPropia() const {
  auto const desde = variable.rfind(',');
  auto const numero = desde == std::string::npos ? std::nullopt : enteroEn<int>(variable.substr(desde + 1));
  return numero ? "$" + std::to_string(*numero) : std::string{};
}

std::optional<SitioEnTmux> sitioEnTmux(std::int32_t pid, TmuxDeAqui const& tmux, Ejecutor const& ejecutor) {
  if (tmux.programa.empty()) return std::nullopt;
  auto const candidatos = enchufes(pid, tmux);
  if (candidatos.empty()) return std::nullopt;
  auto const linaje = linajeDe(pid, tmux, ejecutor);
  for (auto const& enchufe : candidatos) {
    auto const panes =
        correr(tmux, enchufe,
               {"list-panes", "-a", "-F", "#{pane_tty} #{pane_pid} #{session_id} #{window_id} #{pane_id}"},
               ejecutor);
    for (std::string_view resto = panes ? std::string_view{*panes} : std::string_view{}; !resto.empty();) {
      if (auto const destino = destinoSiEs(sacarLinea(resto), linaje)) return SitioEnTmux{enchufe, *destino};
    }
  }
  return std::nullopt;
}

std::expected<void, std::string> mostrarEnTmux(SitioEnTmux const& sitio, TmuxDeAqui const& tmux,
                                               Ejecutor const& ejecutor) {
  std::vector<std::string> args{"switch-client"};
  if (auto const cliente = clienteQuePide(tmux, ejecutor)) args.insert(args.end(), {"-c", *cliente});
  args.insert(args.end(), {"-t", sitio.destino});
  auto const hecho = correr(tmux, sitio.enchufe, std::move(args), ejecutor);
  if (!hecho) return std::unexpected{hecho.error()};
  return {};
}

std::expected<void, std::string> ventanaDeTmux(std::string const& directorio,
                                               std::vector<std::string> const& palabras,
                                               TmuxDeAqui const& tmux, Ejecutor const& ejecutor) {
  std::vector<std::string> args{"new-window", "-c", directorio};
  if (auto const sesion = tmux.sesionPropia(); !sesion.empty()) args.insert(args.end(), {"-t", sesion + ":"});
  args.emplace_back("--");
  args.insert(args.end(), palabras.begin(), palabras.end());
  auto const hecho = correr(tmux, tmux.enchufePropio(), std::move(args), ejecutor);
  if (!hecho) return std::unexpected{hecho.error()};
  return {};
}

}  // namespace zorve::tui
