#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Dobles/Blancos.h"
#include "Exigir.h"
#include "ZorveTerminal/Tmux.h"

namespace zorve::fuzz {
namespace {

using namespace ayudante;

std::vector<std::vector<std::string_view>> lineasDe(std::string_view texto) {
  std::vector<std::vector<std::string_view>> lineas;
  while (!texto.empty()) {
    auto const fin = std::min(texto.find('\n'), texto.size());
    lineas.push_back(dobles::entreBlancos(texto.substr(0, fin)));
    texto.remove_prefix(std::min(fin + 1, texto.size()));
  }
  return lineas;
}

bool sonCifras(std::string_view texto) {
  return !texto.empty() && texto.find_first_not_of("0123456789") == std::string_view::npos;
}

bool esDe(char clase, std::string_view texto) {
  return texto.starts_with(clase) && sonCifras(texto.substr(1));
}

/// Seconds since 1970, nothing for what is none or beyond 64 bits.
std::optional<std::int64_t> segundos(std::string_view texto) {
  constexpr std::string_view mayor = "9223372036854775807";
  if (texto.starts_with('-')) texto.remove_prefix(1);
  if (!sonCifras(texto)) return std::nullopt;
  while (texto.size() > 1 && texto.front() == '0') texto.remove_prefix(1);
  if (texto.size() > mayor.size() || (texto.size() == mayor.size() && texto > mayor)) return std::nullopt;
  return std::stoll(std::string{texto});
}

std::vector<PaneDeTmux> panesDe(std::string_view texto) {
  std::vector<PaneDeTmux> todos;
  for (auto const& c : lineasDe(texto)) {
    if (c.size() == 4 && c[0].starts_with("/dev/") && esDe('$', c[1]) && esDe('@', c[2]) && esDe('%', c[3])) {
      todos.push_back({std::string{c[0]}, std::string{c[1]}, std::string{c[2]}, std::string{c[3]}});
    }
  }
  return todos;
}

std::vector<ClienteDeTmux> clientesDe(std::string_view texto) {
  std::vector<ClienteDeTmux> todos;
  for (auto const& c : lineasDe(texto)) {
    if (c.size() != 7 || !c[0].starts_with("/dev/") || !esDe('$', c[1])) continue;
    auto const cuando = segundos(c[2]);
    bool const antesDe1970 = c[2].starts_with('-') && cuando != 0;
    if (!cuando || antesDe1970 || c[4] != "0" || c[5].contains("suspended")) continue;
    bool const dura = c[6] == "ends:" || c[6] == "ends:0" || c[6] == "ends:off";
    todos.push_back({std::string{c[0]}, std::string{c[1]}, *cuando, c[3] != "0", !dura});
  }
  return todos;
}

bool muestra(ClienteDeTmux const& cliente, std::vector<PaneDeTmux> const& vistas) {
  return std::ranges::any_of(vistas, [&](auto const& una) { return una.sesion == cliente.sesion; });
}

/// Whether `a` suits better than `b`.
bool antes(ClienteDeTmux const& a, ClienteDeTmux const& b, std::vector<PaneDeTmux> const& vistas) {
  if (a.soloLectura != b.soloLectura) return b.soloLectura;
  if (muestra(a, vistas) != muestra(b, vistas)) return muestra(a, vistas);
  return a.actividad > b.actividad;
}

void probar(std::string_view bytes) {
  auto const corte = std::min(bytes.find('\0'), bytes.size());
  auto const dePanes = bytes.substr(0, corte);
  auto const deClientes = bytes.substr(std::min(corte + 1, bytes.size()));
  auto const panes = leerPanes(dePanes);
  auto const clientes = leerClientes(deClientes);
  exigir(panes == panesDe(dePanes));
  exigir(clientes == clientesDe(deClientes));

  auto const ordenados = porConveniencia(clientes, panes);
  std::vector<ClienteDeTmux> quedan;
  for (auto const& uno : clientes) {
    if (!uno.laSostiene || muestra(uno, panes)) quedan.push_back(uno);
  }
  // Insertion, one by one: the slow way that keeps equals in their order.
  std::vector<ClienteDeTmux> esperados;
  for (auto const& uno : quedan) {
    auto lugar = esperados.end();
    while (lugar != esperados.begin() && antes(uno, *(lugar - 1), panes)) --lugar;
    esperados.insert(lugar, uno);
  }
  exigir(ordenados == esperados);
  if (panes.empty()) return;
  for (auto const& uno : ordenados) {
    exigir(!muestra(uno, panes) || vistaPara(uno, panes).sesion == uno.sesion);
    exigir(muestra(uno, panes) || vistaPara(uno, panes) == panes.front());
  }
}

}  // namespace
}  // namespace zorve::fuzz

/// Whatever tmux answers, panes and clients are those that another reading finds, and clients come in the
/// order in which they suit.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
