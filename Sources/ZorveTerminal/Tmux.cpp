#include "ZorveTerminal/Tmux.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <tuple>
#include <utility>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/Texto.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorvePlatform/Linux/ProgramaAcotado.h"
#include "ZorvePlatform/Posix/Propiedad.h"

namespace zorve::ayudante {

namespace {

using Reloj = std::chrono::steady_clock;

constexpr std::chrono::milliseconds plazoDeUnaOrden{2000};
constexpr char const* formatoDePanes = "#{pane_tty} #{session_id} #{window_id} #{pane_id}";
constexpr char const* formatoDeClientes =
    "#{client_tty} #{session_id} #{client_activity} #{client_readonly} #{client_control_mode} "
    "flags:#{client_flags} ends:#{destroy-unattached}";

/// "$12", "@12" or "%12".
bool esIdentificador(std::string_view texto, char clase) {
  return texto.size() > 1 && texto.front() == clase &&
         std::ranges::all_of(texto.substr(1), [](char letra) { return letra >= '0' && letra <= '9'; });
}

std::optional<PaneDeTmux> leerPane(std::string_view linea) {
  auto const campos = palabras(linea);
  if (campos.size() != 4 || !campos[0].starts_with("/dev/") || !esIdentificador(campos[1], '$') ||
      !esIdentificador(campos[2], '@') || !esIdentificador(campos[3], '%')) {
    return std::nullopt;
  }
  return PaneDeTmux{std::string{campos[0]}, std::string{campos[1]}, std::string{campos[2]},
                    std::string{campos[3]}};
}

std::optional<ClienteDeTmux> leerCliente(std::string_view linea) {
  auto const campos = palabras(linea);
  if (campos.size() != 7 || !campos[0].starts_with("/dev/") || !esIdentificador(campos[1], '$')) {
    return std::nullopt;
  }
  auto const actividad = enteroEn<std::int64_t>(campos[2]);
  bool const sinPantalla = campos[4] != "0" || campos[5].contains("suspended");
  if (!actividad || *actividad < 0 || sinPantalla) return std::nullopt;
  bool const noTermina = campos[6] == "ends:" || campos[6] == "ends:0" || campos[6] == "ends:off";
  return ClienteDeTmux{std::string{campos[0]}, std::string{campos[1]}, *actividad, campos[3] != "0",
                       !noTermina};
}

template <class Leer>
auto leerLineas(std::string_view texto, Leer const& leer) {
  std::vector<typename decltype(leer(texto))::value_type> leidas;
  while (!texto.empty()) {
    if (auto una = leer(sacarLinea(texto))) leidas.push_back(*std::move(una));
  }
  return leidas;
}

std::string destino(PaneDeTmux const& pane) { return pane.sesion + ":" + pane.ventana + "." + pane.pane; }

}  // namespace

std::vector<PaneDeTmux> leerPanes(std::string_view texto) { return leerLineas(texto, leerPane); }

std::vector<ClienteDeTmux> leerClientes(std::string_view texto) { return leerLineas(texto, leerCliente); }

std::vector<ClienteDeTmux> porConveniencia(std::vector<ClienteDeTmux> clientes,
                                           std::span<PaneDeTmux const> vistas) {
  auto const fuera = [&](ClienteDeTmux const& cliente) {
    return std::ranges::find(vistas, cliente.sesion, &PaneDeTmux::sesion) == vistas.end();
  };
  std::erase_if(clientes, [&](auto const& cliente) { return cliente.laSostiene && fuera(cliente); });
  std::ranges::stable_sort(clientes, {}, [&](ClienteDeTmux const& cliente) {
    return std::tuple{cliente.soloLectura, fuera(cliente), -cliente.actividad};
  });
  return clientes;
}

PaneDeTmux const& vistaPara(ClienteDeTmux const& cliente, std::span<PaneDeTmux const> vistas) {
  auto const suya = std::ranges::find(vistas, cliente.sesion, &PaneDeTmux::sesion);
  return suya == vistas.end() ? vistas.front() : *suya;
}

std::optional<std::string> enchufePropio(std::string_view variable) {
  std::string ruta{variable.substr(0, variable.find(','))};
  struct stat estado{};
  if (!ruta.starts_with('/') || ::lstat(ruta.c_str(), &estado) != 0) return std::nullopt;
  if (!S_ISSOCK(estado.st_mode) || estado.st_uid != ::geteuid()) return std::nullopt;
  return soloNuestra(std::filesystem::path{ruta}.parent_path().string()) ? std::optional{ruta} : std::nullopt;
}

ServidorDeTmux::ServidorDeTmux(std::string programa, std::string enchufe)
    : programa_{std::move(programa)}, enchufe_{std::move(enchufe)} {}

std::expected<std::string, std::string> ServidorDeTmux::correr(std::vector<std::string> args) const {
  auto const orden = args.front();
  args.insert(args.begin(), {"-S", enchufe_});
  auto const empieza = Reloj::now();
  if (auto salida = salidaDe(programa_, args, plazoDeUnaOrden)) return *std::move(salida);
  auto const cual = "The tmux server on " + textoVisible(enchufe_);
  if (Reloj::now() - empieza >= plazoDeUnaOrden) {
    return std::unexpected{cual + " did not answer in two seconds. Try again once it goes on."};
  }
  return std::unexpected{cual + " refused \"" + orden + "\". See what \"tmux -S " +
                         textoVisible(palabraDeShell(enchufe_)) + " list-clients\" says."};
}

std::expected<std::vector<PaneDeTmux>, std::string> ServidorDeTmux::panes() const {
  auto const salida = correr({"list-panes", "-a", "-F", formatoDePanes});
  if (!salida) return std::unexpected{salida.error()};
  return leerPanes(*salida);
}

std::expected<std::vector<ClienteDeTmux>, std::string> ServidorDeTmux::clientes() const {
  auto const salida = correr({"list-clients", "-F", formatoDeClientes});
  if (!salida) return std::unexpected{salida.error()};
  return leerClientes(*salida);
}

std::expected<void, std::string> ServidorDeTmux::mostrar(ClienteDeTmux const& cliente,
                                                         PaneDeTmux const& pane) const {
  auto const hecho = correr({"switch-client", "-c", cliente.tty, "-t", destino(pane)});
  if (!hecho) return std::unexpected{hecho.error()};
  return {};
}

std::string ServidorDeTmux::ordenParaUnirse(PaneDeTmux const& pane) const {
  return palabraDeShell(programa_) + " -S " + palabraDeShell(enchufe_) + " attach -t " +
         palabraDeShell(destino(pane));
}

}  // namespace zorve::ayudante
