#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <expected>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Texto/Entero.h"
#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Flujo.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"
#include "ZorveTerminal/Abrir.h"
#include "ZorveTerminal/Enfocar.h"
#include "ZorveTerminal/EnfocarTmux.h"
#include "ZorveTerminal/VentanasDeGnome.h"

namespace {

using namespace zorve::ayudante;
using namespace zorve;

constexpr int usoIncorrecto = 2;

constexpr std::string_view ayuda =
    "Usage: zorve-terminal open TERMINAL DIRECTORY COMMANDLINE\n"
    "       zorve-terminal focus TERMINAL TTY [PID]\n"
    "       zorve-terminal focus tmux TTY [TERMINAL [PID]]\n"
    "       zorve-terminal desktop\n"
    "       zorve-terminal --help | --version\n"
    "\n"
    "Opens a new window of the terminal TERMINAL in DIRECTORY, runs the shell command line COMMANDLINE\n"
    "there in the person's shell and leaves that shell waiting; or brings the window of the session on the\n"
    "terminal device TTY to the front. Of a tmux pane that is the window that shows it, or else a new one "
    "of\n"
    "TERMINAL. PID is a process of that session, which tells it from another on a device of the same name.\n"
    "desktop tells what can be asked for windows here: x11, sway, kwin, gnome, gnome off "
    "(GNOME\n"
    "on Wayland without Zorve's extension) or nothing.\n"
    "\n"
    "Terminals:";

int quejarse(std::string const& mensaje, int codigo) {
  (void)escribirTodo(STDERR_FILENO, "zorve-terminal: " + mensaje + "\n");
  return codigo;
}

int mostrarAyuda() {
  std::string texto{ayuda};
  for (auto const& ficha : fichasDeLinux()) texto += " " + ficha.identificador;
  (void)escribirTodo(STDOUT_FILENO, texto + "\n");
  return 0;
}

int abrirVentana(std::span<std::string const> args) {
  if (args.size() != 3)
    return quejarse("open takes a terminal, a directory and a command line", usoIncorrecto);
  auto const* const ficha = fichaDeLinux(args[0]);
  if (ficha == nullptr) return quejarse("unknown terminal: " + args[0], usoIncorrecto);
  auto const resultado = abrir(*ficha, args[1], args[2], entornoDelProceso());
  return resultado ? 0 : quejarse(resultado.error().mensaje, resultado.error().codigo);
}

/// A hung display server must not hang whoever asked: after this long, in seconds, that is the answer.
constexpr unsigned plazoDeEnfoque = 8;

void rendirse(int /*senal*/) {
  (void)escribirTodo(STDERR_FILENO, "zorve-terminal: the desktop did not answer in time\n");
  ::_exit(1);
}

int enfocadoConPlazo(std::function<std::expected<void, std::string>()> const& enfocarlo) {
  if (std::signal(SIGALRM, rendirse) != SIG_ERR) ::alarm(plazoDeEnfoque);
  auto const resultado = enfocarlo();
  return resultado ? 0 : quejarse(resultado.error(), 1);
}

/// The process number that stands there, or that none does; nothing for anything else.
std::optional<std::optional<pid_t>> procesoEn(std::span<std::string const> args, std::size_t donde) {
  if (args.size() <= donde) return std::make_optional(std::optional<pid_t>{});
  auto const pid = enteroEn<pid_t>(args[donde]);
  if (!pid || *pid <= 0) return std::nullopt;
  return std::make_optional(pid);
}

int enfocarPaneDeTmux(std::span<std::string const> args) {
  auto const pid = procesoEn(args, 2);
  if (args.empty() || args.size() > 3 || !pid) {
    return quejarse("focus tmux takes a tty, a terminal and a process number", usoIncorrecto);
  }
  auto const* const elegida = args.size() > 1 ? fichaDeLinux(args[1]) : nullptr;
  if (args.size() > 1 && elegida == nullptr) return quejarse("unknown terminal: " + args[1], usoIncorrecto);
  return enfocadoConPlazo([&] { return enfocarEnTmux(args[0], elegida, entornoDelProceso(), *pid); });
}

int enfocarVentana(std::span<std::string const> args) {
  if (!args.empty() && args[0] == "tmux") return enfocarPaneDeTmux(args.subspan(1));
  auto const pid = procesoEn(args, 2);
  if (args.size() < 2 || args.size() > 3 || !pid) {
    return quejarse("focus takes a terminal, a tty and a process number", usoIncorrecto);
  }
  auto const* const ficha = fichaDeLinux(args[0]);
  if (ficha == nullptr) return quejarse("unknown terminal: " + args[0], usoIncorrecto);
  return enfocadoConPlazo([&] { return enfocar(*ficha, args[1], *pid); });
}

std::string_view nombreDe(SesionGrafica sesion) {
  constexpr std::array<std::string_view, 6> nombres{"nothing", "x11", "sway", "kwin", "gnome", "gnome off"};
  return nombres.at(static_cast<std::size_t>(sesion));
}

int decirElEscritorio() {
  (void)escribirTodo(STDOUT_FILENO, std::string{nombreDe(sesionDeAhora())} + "\n");
  return 0;
}

int correr(std::span<std::string const> args) {
  if (args.size() == 1 && args[0] == "--help") return mostrarAyuda();
  if (args.size() == 1 && args[0] == "--version") {
    (void)escribirTodo(STDOUT_FILENO, "zorve-terminal " ZORVE_VERSION "\n");
    return 0;
  }
  if (args.size() == 1 && args[0] == "desktop") return decirElEscritorio();
  if (!args.empty() && args[0] == "open") return abrirVentana(args.subspan(1));
  if (!args.empty() && args[0] == "focus") return enfocarVentana(args.subspan(1));
  return quejarse("wrong usage; see zorve-terminal --help", usoIncorrecto);
}

/// Descriptors 0, 1 and 2 always lead somewhere, so that no other file ever takes their numbers.
void asegurarFlujos() {
  for (int abierto = ::open("/dev/null", O_RDWR); abierto >= 0; abierto = ::open("/dev/null", O_RDWR)) {
    if (abierto > STDERR_FILENO) {
      ::close(abierto);
      return;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  asegurarFlujos();
  recordarALosHijos();
  std::span<char* const> const crudos{argv, static_cast<std::size_t>(argc)};
  std::vector<std::string> args;
  for (auto const* const crudo : crudos.subspan(crudos.empty() ? 0 : 1)) args.emplace_back(crudo);
  return correr(args);
}
