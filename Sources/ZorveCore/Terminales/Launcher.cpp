#include "ZorveCore/Terminales/Launcher.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "ZorveCore/Texto/Entero.h"
#include "ZorveCore/Texto/Escape.h"
#include "ZorveCore/Texto/Texto.h"

namespace zorve {

namespace {

/// How many processes the walk looks at: the session's own and its ancestors.
constexpr int nivelesDelArbol = 12;

std::unexpected<FalloDeApertura> fallo(std::string mensaje) {
  return std::unexpected{FalloDeApertura{IndexError{IndexSource::launcher, std::move(mensaje)}}};
}

std::string recortada(std::string_view texto) {
  auto const resto = recortar(texto);
  return std::string{resto.empty() ? std::string_view{"(empty)"} : resto};
}

/// A decimal 32-bit integer with an optional sign, 0 when it is none.
std::int32_t enteroO0(std::string_view texto) {
  if (texto.starts_with('+') && !texto.starts_with("+-")) texto.remove_prefix(1);
  return enteroEn<std::int32_t>(texto).value_or(0);
}

/// A process as `ps -o ppid=,comm=` prints it.
struct Proceso {
  std::int32_t padre = 0;
  std::string_view comando;
};

std::optional<Proceso> procesoDe(std::string_view salida) {
  auto const linea = recortar(salida);
  auto const trozos = palabras(linea);
  if (trozos.size() < 2) return std::nullopt;
  return Proceso{enteroO0(trozos.front()), recortar(linea.substr(trozos.front().size()))};
}

std::expected<ResultadoDeEjecucion, FalloDeApertura> correrPs(Launcher const& launcher,
                                                              std::string const& columnas, std::int32_t pid) {
  std::array<std::string, 4> const args{"-o", columnas, "-p", std::to_string(pid)};
  auto resultado = launcher.ejecutor.correr(launcher.rutaPs, args);
  if (!resultado) return std::unexpected{FalloDeApertura{std::move(resultado).error()}};
  return *std::move(resultado);
}

/// The helper zorve-terminal is told the session's process too: a container may have a device of the same
/// name.
PlanDeApertura conSuProceso(PlanDeApertura plan, std::int32_t pid) {
  if (auto* comandos = std::get_if<std::vector<ComandoDeApertura>>(&plan)) {
    for (auto& comando : *comandos) {
      if (!comando.args.empty() && comando.args.front() == "focus")
        comando.args.push_back(std::to_string(pid));
    }
  }
  return plan;
}

}  // namespace

std::expected<PlanDeApertura, FalloDeApertura> Launcher::plan(Session const& sesion) const {
  if (!sesion.sessionId) {
    return fallo("the Claude session in " + sesion.cwd + " has no sessionId; `claude -r` needs it");
  }
  if (sesion.liveState != LiveState::dead) return planParaSesionViva(*sesion.sessionId, sesion);
  return terminal->planParaAbrir(sesion.cwd, "claude -r " + palabraDeShell(*sesion.sessionId));
}

std::expected<PlanDeApertura, FalloDeApertura> Launcher::planParaSesionViva(std::string const& sessionId,
                                                                            Session const& sesion) const {
  if (!sesion.pid) {
    return fallo("the live session " + sessionId + " has no pid; without a pid its tty cannot be resolved");
  }
  auto tty = ttyDe(*sesion.pid);
  if (!tty) return std::unexpected{std::move(tty).error()};
  if (!*tty) return NoSePuedeEnfocar{};
  auto const hallada = laQueHospeda(*sesion.pid).value_or(nullptr);
  auto const anfitriona = hallada ? hallada : AnfitrionaRef{terminal};
  if (!anfitriona->puedeEnfocar()) return NoSePuedeEnfocar{*std::move(tty)};
  auto enfoque = anfitriona->planParaEnfocar(**tty);
  if (!enfoque) return std::unexpected{FalloDeApertura{std::move(enfoque).error()}};
  return conSuProceso(*std::move(enfoque), *sesion.pid);
}

std::expected<std::optional<std::string>, FalloDeApertura> Launcher::ttyDe(std::int32_t pid) const {
  auto const resultado = correrPs(*this, "tty=", pid);
  if (!resultado) return std::unexpected{resultado.error()};
  if (resultado->codigo != 0) {
    return fallo("ps could not resolve the tty of pid " + std::to_string(pid) + ": exit code " +
                 std::to_string(resultado->codigo) + ", output: " + recortada(resultado->salida));
  }
  auto const nombre = recortar(resultado->salida);
  if (nombre.empty() || nombre == "??" || nombre == "?") return std::nullopt;
  return ttyCorto(nombre);
}

std::expected<AnfitrionaRef, FalloDeApertura> Launcher::laQueHospeda(std::int32_t pid) const {
  for (int nivel = 0; nivel < nivelesDelArbol; ++nivel) {
    auto const resultado = correrPs(*this, "ppid=,comm=", pid);
    if (!resultado) return std::unexpected{resultado.error()};
    auto const proceso = resultado->codigo == 0 ? procesoDe(resultado->salida) : std::nullopt;
    if (!proceso) return nullptr;
    auto const hallada = std::ranges::find_if(
        conocidas, [&](AnfitrionaRef const& conocida) { return conocida->hospeda(proceso->comando); });
    if (hallada != conocidas.end()) return *hallada;
    if (proceso->padre <= 1) return nullptr;
    pid = proceso->padre;
  }
  return nullptr;
}

}  // namespace zorve
