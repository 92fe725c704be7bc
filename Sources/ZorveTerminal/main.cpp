#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <expected>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/SenalesDeHijos.h"
#include "ZorveTerminal/Abrir.h"
#include "ZorveTerminal/Enfocar.h"
#include "ZorveTerminal/EnfocarTmux.h"

namespace {

using namespace zorve;

constexpr int usoIncorrecto = 2;

constexpr std::string_view ayuda =
    "Usage: zorve-terminal open TERMINAL DIRECTORY COMMANDLINE\n"
    "       zorve-terminal focus TERMINAL TTY\n"
    "       zorve-terminal focus tmux TTY [TERMINAL]\n"
    "       zorve-terminal --help | --version\n"
    "\n"
    "Opens a new window of the terminal TERMINAL in DIRECTORY, runs the shell command line COMMANDLINE\n"
    "there in the person's shell and leaves that shell waiting; or brings the window of the session on the\n"
    "terminal device TTY to the front. Of a tmux pane that is the window that shows it, or else a new one "
    "of\n"
    "TERMINAL.\n"
    "\n"
    "Terminals:";

void escribir(int descriptor, std::string_view texto) {
  while (!texto.empty()) {
    auto const n = ::write(descriptor, texto.data(), texto.size());
    if (n <= 0) return;
    texto.remove_prefix(static_cast<std::size_t>(n));
  }
}

int quejarse(std::string const& mensaje, int codigo) {
  escribir(STDERR_FILENO, "zorve-terminal: " + mensaje + "\n");
  return codigo;
}

int mostrarAyuda() {
  std::string texto{ayuda};
  for (auto const& ficha : fichasDeLinux()) texto += " " + ficha.identificador;
  escribir(STDOUT_FILENO, texto + "\n");
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
  escribir(STDERR_FILENO, "zorve-terminal: the desktop did not answer in time\n");
  ::_exit(1);
}

int enfocadoConPlazo(std::function<std::expected<void, std::string>()> const& enfocarlo) {
  if (std::signal(SIGALRM, rendirse) != SIG_ERR) ::alarm(plazoDeEnfoque);
  auto const resultado = enfocarlo();
  return resultado ? 0 : quejarse(resultado.error(), 1);
}

int enfocarPaneDeTmux(std::span<std::string const> args) {
  if (args.size() != 1 && args.size() != 2) {
    return quejarse("focus tmux takes a tty and a terminal", usoIncorrecto);
  }
  auto const* const elegida = args.size() == 2 ? fichaDeLinux(args[1]) : nullptr;
  if (args.size() == 2 && elegida == nullptr) return quejarse("unknown terminal: " + args[1], usoIncorrecto);
  return enfocadoConPlazo([&] { return enfocarEnTmux(args[0], elegida, entornoDelProceso()); });
}

int enfocarVentana(std::span<std::string const> args) {
  if (!args.empty() && args[0] == "tmux") return enfocarPaneDeTmux(args.subspan(1));
  if (args.size() != 2) return quejarse("focus takes a terminal and a tty", usoIncorrecto);
  auto const* const ficha = fichaDeLinux(args[0]);
  if (ficha == nullptr) return quejarse("unknown terminal: " + args[0], usoIncorrecto);
  return enfocadoConPlazo([&] { return enfocar(*ficha, args[1]); });
}

int correr(std::span<std::string const> args) {
  if (args.size() == 1 && args[0] == "--help") return mostrarAyuda();
  if (args.size() == 1 && args[0] == "--version") {
    escribir(STDOUT_FILENO, "zorve-terminal " ZORVE_VERSION "\n");
    return 0;
  }
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
