#pragma once

#include <fcntl.h>
#include <spawn.h>
#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): posix_openpt() is POSIX, not C++
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace zorve::pruebas {

/// Runs `palabras[0]` with standard output and error on a terminal `columnas` wide and the environment
/// `entorno` ("NAME=value"), and gives everything it printed, with plain line feeds.
inline std::string enTerminal(std::vector<std::string> palabras, unsigned short columnas,
                              std::vector<std::string> entorno) {
  int const maestro = ::posix_openpt(O_RDWR | O_NOCTTY);
  if (maestro < 0 || ::grantpt(maestro) != 0 || ::unlockpt(maestro) != 0) throw std::runtime_error("no pty");
  std::string const esclavo = ::ptsname(maestro);
  int const abierto = ::open(esclavo.c_str(), O_RDWR | O_NOCTTY);
  struct winsize tamano{};
  tamano.ws_row = 24;
  tamano.ws_col = columnas;
  if (::ioctl(abierto, TIOCSWINSZ, &tamano) != 0) throw std::runtime_error("TIOCSWINSZ failed");
  auto const punteros = [](std::vector<std::string>& textos) {
    std::vector<char*> todos;
    todos.reserve(textos.size() + 1);
    for (auto& texto : textos) todos.push_back(texto.data());
    todos.push_back(nullptr);
    return todos;
  };
  posix_spawn_file_actions_t acciones;
  posix_spawn_file_actions_init(&acciones);
  posix_spawn_file_actions_adddup2(&acciones, abierto, 1);
  posix_spawn_file_actions_adddup2(&acciones, abierto, 2);
  ::pid_t hijo = 0;
  int const fallo = ::posix_spawn(&hijo, palabras.front().c_str(), &acciones, nullptr,
                                  punteros(palabras).data(), punteros(entorno).data());
  posix_spawn_file_actions_destroy(&acciones);
  ::close(abierto);
  if (fallo != 0) throw std::runtime_error("could not start " + palabras.front());
  std::string salida;
  std::array<char, 4096> trozo{};
  for (auto n = ::read(maestro, trozo.data(), trozo.size()); n > 0;
       n = ::read(maestro, trozo.data(), trozo.size())) {
    salida.append(trozo.data(), static_cast<std::size_t>(n));
  }
  ::close(maestro);
  ::waitpid(hijo, nullptr, 0);
  std::erase(salida, '\r');
  return salida;
}

}  // namespace zorve::pruebas
