#include "ZorveTerminal/Orden.h"

#include "ZorveCore/Texto/Entero.h"

namespace zorve::ayudante {

namespace {

using Leida = std::expected<Orden, std::string>;

Leida desconocida(std::string const& terminal) { return std::unexpected{"unknown terminal: " + terminal}; }

/// The process number that stands there, or that none does; nothing for anything else.
std::optional<std::optional<pid_t>> procesoEn(std::span<std::string const> args, std::size_t donde) {
  if (args.size() <= donde) return std::make_optional(std::optional<pid_t>{});
  auto const pid = enteroEn<pid_t>(args[donde]);
  if (!pid || *pid <= 0) return std::nullopt;
  return std::make_optional(pid);
}

Leida leerAbrir(std::span<std::string const> args) {
  if (args.size() != 3) return std::unexpected{"open takes a terminal, a directory and a command line"};
  auto const* const ficha = fichaDeLinux(args[0]);
  if (ficha == nullptr) return desconocida(args[0]);
  return PedirAbrir{ficha, args[1], args[2]};
}

Leida leerEnfocarTmux(std::span<std::string const> args) {
  auto const pid = procesoEn(args, 2);
  if (args.empty() || args.size() > 3 || !pid) {
    return std::unexpected{"focus tmux takes a tty, a terminal and a process number"};
  }
  auto const* const elegida = args.size() > 1 ? fichaDeLinux(args[1]) : nullptr;
  if (args.size() > 1 && elegida == nullptr) return desconocida(args[1]);
  return PedirEnfocarTmux{args[0], elegida, *pid};
}

Leida leerEnfocar(std::span<std::string const> args) {
  if (!args.empty() && args[0] == "tmux") return leerEnfocarTmux(args.subspan(1));
  auto const pid = procesoEn(args, 2);
  if (args.size() < 2 || args.size() > 3 || !pid) {
    return std::unexpected{"focus takes a terminal, a tty and a process number"};
  }
  auto const* const ficha = fichaDeLinux(args[0]);
  if (ficha == nullptr) return desconocida(args[0]);
  return PedirEnfocar{ficha, args[1], *pid};
}

}  // namespace

std::expected<Orden, std::string> leerOrden(std::span<std::string const> args) {
  if (args.size() == 1 && args[0] == "--help") return PedirAyuda{};
  if (args.size() == 1 && args[0] == "--version") return PedirVersion{};
  if (args.size() == 1 && args[0] == "desktop") return PedirEscritorio{};
  if (!args.empty() && args[0] == "open") return leerAbrir(args.subspan(1));
  if (!args.empty() && args[0] == "focus") return leerEnfocar(args.subspan(1));
  return std::unexpected{"wrong usage; see zorve-terminal --help"};
}

}  // namespace zorve::ayudante
