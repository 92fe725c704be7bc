#include "zorvectl/Salida.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>

#include "ZorveCore/FalloDelSistema.h"
#include "ZorveCore/Texto/Entero.h"
#include "ZorveCore/Texto/TextoVisible.h"
#include "ZorvePlatform/Posix/Variable.h"

namespace zorve::ctl {

namespace {

std::optional<std::size_t> columnasDelEntorno() {
  auto const columnas = enteroEn<std::size_t>(variable("COLUMNS"));
  return columnas == 0UZ ? std::nullopt : columnas;
}

std::optional<std::size_t> columnasDelTerminal() {
  struct winsize tamano{};
  if (::ioctl(STDOUT_FILENO, TIOCGWINSZ, &tamano) != 0 || tamano.ws_col == 0) return std::nullopt;
  return tamano.ws_col;
}

}  // namespace

Pantalla pantallaDeSalida() {
  bool const terminal = ::isatty(STDOUT_FILENO) != 0;
  auto columnas = columnasDelTerminal();
  if (!columnas) columnas = columnasDelEntorno();
  return {columnas, terminal && variable("NO_COLOR").empty() && variable("TERM") != "dumb"};
}

void escribir(Contexto& contexto, std::string_view texto) {
  bool const escrito = std::fwrite(texto.data(), 1, texto.size(), stdout) == texto.size();
  if (escrito && std::fflush(stdout) == 0) return;
  terminarCon(contexto, Contexto::fallo,
              "Could not write the output: " + FalloDelSistema::deErrno(errno).descripcion);
}

void avisar(std::string_view linea) {
  auto const visible = textoVisible(linea) + "\n";
  std::fwrite(visible.data(), 1, visible.size(), stderr);
}

void terminarCon(Contexto& contexto, int codigo, std::string_view linea) {
  contexto.codigo = codigo;
  avisar("zorvectl: " + std::string{linea});
}

}  // namespace zorve::ctl
