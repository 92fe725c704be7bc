#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <expected>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ZorvePlatform/Posix/EjecutorDeProcesos.h"
#include "ZorvePlatform/Posix/Flujo.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"
#include "ZorveTerminal/Abrir.h"
#include "ZorveTerminal/Enfocar.h"
#include "ZorveTerminal/EnfocarTmux.h"
#include "ZorveTerminal/Orden.h"
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

int hacer(PedirAyuda const& /*nada*/) {
  std::string texto{ayuda};
  for (auto const& ficha : fichasDeLinux()) texto += " " + ficha.identificador;
  (void)escribirTodo(STDOUT_FILENO, texto + "\n");
  return 0;
}

int hacer(PedirVersion const& /*nada*/) {
  (void)escribirTodo(STDOUT_FILENO, "zorve-terminal " ZORVE_VERSION "\n");
  return 0;
}

int hacer(PedirAbrir const& pedido) {
  auto const resultado = abrir(*pedido.ficha, pedido.directorio, pedido.orden, entornoDelProceso());
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

int hacer(PedirEnfocarTmux const& pedido) {
  return enfocadoConPlazo(
      [&] { return enfocarEnTmux(pedido.tty, pedido.elegida, entornoDelProceso(), pedido.pid); });
}

int hacer(PedirEnfocar const& pedido) {
  return enfocadoConPlazo([&] { return enfocar(*pedido.ficha, pedido.tty, pedido.pid); });
}

std::string_view nombreDe(SesionGrafica sesion) {
  constexpr std::array<std::string_view, 6> nombres{"nothing", "x11", "sway", "kwin", "gnome", "gnome off"};
  return nombres.at(static_cast<std::size_t>(sesion));
}

int hacer(PedirEscritorio const& /*nada*/) {
  (void)escribirTodo(STDOUT_FILENO, std::string{nombreDe(sesionDeAhora())} + "\n");
  return 0;
}

int correr(std::span<std::string const> args) {
  auto const orden = leerOrden(args);
  if (!orden) return quejarse(orden.error(), usoIncorrecto);
  return std::visit([](auto const& pedido) { return hacer(pedido); }, *orden);
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
