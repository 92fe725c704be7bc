#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Dobles/AplicacionesFijas.h"
#include "Dobles/Blancos.h"
#include "Exigir.h"
#include "ZorveCore/Terminales/AnfitrionaTmux.h"
#include "ZorveCore/Terminales/Launcher.h"
#include "ZorveCore/Terminales/TerminalDeLinux.h"
#include "ZorveCore/Terminales/TerminalesDeMac.h"

namespace zorve::fuzz {
namespace {

constexpr std::int32_t suPid = 40;
constexpr int nivelesComoMucho = 12;

/// What one run of ps comes to.
struct Respuesta {
  bool arranca = true;
  std::int32_t codigo = 0;
  std::string_view salida;
};

/// The input cut at each NUL: "!" before an answer means that ps cannot be started, "#" that it fails.
std::vector<Respuesta> respuestasDe(std::string_view bytes) {
  std::vector<Respuesta> todas;
  while (!bytes.empty()) {
    auto const fin = std::min(bytes.find('\0'), bytes.size());
    Respuesta una{.salida = bytes.substr(0, fin)};
    if (una.salida.starts_with('!')) una.arranca = false;
    if (una.salida.starts_with('#')) una.codigo = 1, una.salida.remove_prefix(1);
    todas.push_back(una);
    bytes.remove_prefix(std::min(fin + 1, bytes.size()));
  }
  return todas;
}

/// Gives those answers one after the other, then failures, and keeps which process was asked for.
class PsDeEntrada final : public Ejecutor {
 public:
  explicit PsDeEntrada(std::vector<Respuesta> respuestas) : respuestas_{std::move(respuestas)} {}
  std::expected<ResultadoDeEjecucion, FalloDelSistema> correr(
      std::string const& ruta, std::span<std::string const> args) const override {
    exigir(ruta == "/bin/ps" && args.size() == 4 && args[0] == "-o" && args[2] == "-p");
    exigir(args[1] == (preguntados.empty() ? "tty=" : "ppid=,comm="));
    preguntados.push_back(args[3]);
    auto const cual = preguntados.size() - 1;
    if (cual >= respuestas_.size()) return ResultadoDeEjecucion{1, ""};
    auto const& una = respuestas_[cual];
    if (!una.arranca) return std::unexpected{FalloDelSistema{2, "no ps"}};
    return ResultadoDeEjecucion{una.codigo, std::string{una.salida}};
  }
  mutable std::vector<std::string> preguntados;

 private:
  std::vector<Respuesta> respuestas_;
};

/// A 32-bit decimal number with at most one sign, else 0.
std::int32_t numero(std::string_view texto) {
  bool const menos = texto.starts_with('-');
  if (menos || texto.starts_with('+')) texto.remove_prefix(1);
  std::int64_t valor = 0;
  for (char const letra : texto) {
    if (letra < '0' || letra > '9' || valor > std::numeric_limits<std::int32_t>::max()) return 0;
    valor = valor * 10 + (letra - '0');
  }
  valor = menos ? -valor : valor;
  return std::in_range<std::int32_t>(valor) ? static_cast<std::int32_t>(valor) : 0;
}

/// Who hosts a process of that command, by its name; nothing for none.
std::optional<std::string> hospeda(std::string_view comando) {
  if (comando.contains("/iTerm.app/")) return "iTerm2";
  if (comando.contains("/Ghostty.app/")) return "Ghostty";
  if (comando.contains("/Terminal.app/")) return "Terminal";
  auto const barra = comando.rfind('/');
  if (comando.substr(barra == std::string_view::npos ? 0 : barra + 1) == "kitty") return "kitty";
  if (comando == "tmux: server") return "tmux";
  return std::nullopt;
}

/// What a plan is to come to: a host's name and the tty, a plan without focus, or a failure.
struct Esperado {
  std::string anfitriona = "kitty";
  std::optional<std::string> tty;
  bool falla = false;
  std::vector<std::string> preguntados;
};

Esperado esperado(std::vector<Respuesta> const& todas) {
  auto const dada = [&](std::size_t i) { return i < todas.size() ? todas[i] : Respuesta{.codigo = 1}; };
  Esperado fin{.preguntados = {std::to_string(suPid)}};
  if (!dada(0).arranca || dada(0).codigo != 0) {
    fin.falla = true;
    return fin;
  }
  auto tty = dobles::sinBlancos(dada(0).salida);
  if (tty.empty() || tty == "?" || tty == "??") return fin;
  fin.tty = std::string{tty.starts_with("/dev/") ? tty.substr(5) : tty};
  std::int32_t pid = suPid;
  for (int nivel = 1; nivel <= nivelesComoMucho; ++nivel) {
    fin.preguntados.push_back(std::to_string(pid));
    auto const una = dada(static_cast<std::size_t>(nivel));
    auto const trozos = dobles::entreBlancos(una.salida);
    if (!una.arranca || una.codigo != 0 || trozos.size() < 2) break;
    auto const desde = trozos[1].data() - una.salida.data();
    auto const quien = hospeda(dobles::sinBlancos(una.salida.substr(static_cast<std::size_t>(desde))));
    if (quien) fin.anfitriona = *quien;
    pid = numero(trozos[0]);
    if (quien || pid <= 1) break;
  }
  return fin;
}

void probar(std::string_view bytes) {
  static dobles::AplicacionesFijas const aplicaciones;
  static auto const deMac = todas(aplicaciones);
  static auto const deLinux = terminalesDeLinux(aplicaciones, "/ayudante", SesionGrafica::x11);
  static auto const kitty =
      *std::ranges::find_if(deLinux, [](auto const& una) { return una->nombre() == "kitty"; });
  static auto const tmux = std::make_shared<AnfitrionaTmux>("/ayudante", kitty, true);
  std::vector<AnfitrionaRef> conocidas(deMac.begin(), deMac.end());
  conocidas.insert(conocidas.end(), {kitty, tmux});

  auto const respuestas = respuestasDe(bytes);
  PsDeEntrada const ps{respuestas};
  Launcher const lanzador{kitty, ps, "/bin/ps", conocidas};
  auto const plan =
      lanzador.plan({.cwd = "/x", .liveState = LiveState::idle, .sessionId = "a", .pid = suPid});
  auto const fin = esperado(respuestas);
  exigir(ps.preguntados == fin.preguntados);
  if (fin.falla) return exigir(!plan);
  if (fin.tty && fin.anfitriona == "Ghostty") return exigir(std::holds_alternative<NoSePuedeEnfocar>(*plan));
  if (!fin.tty) return exigir(*plan == PlanDeApertura{NoSePuedeEnfocar{fin.tty}});
  auto const& comando = std::get<std::vector<ComandoDeApertura>>(*plan).at(0);
  // The host takes the prefix away once more.
  auto const tty = fin.tty->starts_with("/dev/") ? fin.tty->substr(5) : *fin.tty;
  std::vector<std::string> palabras{"focus", fin.anfitriona, tty};
  if (fin.anfitriona == "tmux") palabras.emplace_back("kitty");
  palabras.push_back(std::to_string(suPid));
  bool const deAqui = fin.anfitriona == "kitty" || fin.anfitriona == "tmux";
  exigir(deAqui ? comando.args == palabras : comando.args[1].contains("\"" + fin.anfitriona + "\""));
}

}  // namespace
}  // namespace zorve::fuzz

/// Whatever ps says of a session's processes, the plan is that for the terminal device and the host that
/// another reading finds there, and no more processes are asked for than it takes.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* datos, std::size_t largo) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): bytes are bytes
  zorve::fuzz::probar({reinterpret_cast<char const*>(datos), largo});
  return 0;
}
