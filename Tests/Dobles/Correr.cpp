#include "Dobles/Correr.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "Dobles/CarpetaTemporal.h"
#include "ZorvePlatform/Posix/ProcesoHijo.h"

extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace zorve::dobles {

namespace {

std::string leerTodo(std::string const& ruta) {
  std::ifstream entrada{ruta, std::ios::binary};
  return {std::istreambuf_iterator<char>{entrada}, {}};
}

std::vector<std::string> entornoCon(std::map<std::string, std::string> const& cambios) {
  std::vector<std::string> todo;
  for (char** par = environ; *par != nullptr; ++par) {
    std::string_view const texto{*par};
    if (!cambios.contains(std::string{texto.substr(0, texto.find('='))})) todo.emplace_back(texto);
  }
  for (auto const& [nombre, valor] : cambios) {
    if (!valor.empty()) todo.emplace_back(nombre).append("=").append(valor);
  }
  return todo;
}

void abrirComo(int descriptor, char const* ruta, int modo) {
  int const abierto = ::open(ruta, modo, 0600);
  if (abierto < 0 || ::dup2(abierto, descriptor) < 0) ::_exit(126);
}

/// Becomes the program. Its real user is the effective one: a process with two users cannot be looked into,
/// which the leak checker needs.
[[noreturn]] void serHijo(std::vector<char*> const& palabras, std::vector<char*> const& variables,
                          std::string const& salida, std::string const& error) {
  abrirComo(0, "/dev/null", O_RDONLY);
  abrirComo(1, salida.c_str(), O_WRONLY | O_CREAT | O_TRUNC);
  abrirComo(2, error.c_str(), O_WRONLY | O_CREAT | O_TRUNC);
  auto const usuario = ::geteuid();
  if (::setreuid(usuario, usuario) != 0) ::_exit(126);
  ::execve(palabras.front(), palabras.data(), variables.data());
  ::_exit(127);
}

}  // namespace

Corrida correr(std::vector<std::string> const& palabras, std::map<std::string, std::string> const& entorno) {
  CarpetaTemporal const carpeta;
  auto const salida = carpeta.dentro("salida");
  auto const error = carpeta.dentro("error");
  auto argumentos = palabras;
  auto variables = entornoCon(entorno);
  auto const palabrasC = punteros(argumentos);
  auto const variablesC = punteros(variables);
  if (::access(palabras.at(0).c_str(), X_OK) != 0)
    throw std::runtime_error("could not start " + palabras.at(0));
  pid_t const hijo = ::fork();
  if (hijo < 0) throw std::runtime_error("could not fork");
  if (hijo == 0) serHijo(palabrasC, variablesC, salida, error);
  int estado = 0;
  while (::waitpid(hijo, &estado, 0) < 0) {
  }
  return {WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado), leerTodo(salida), leerTodo(error)};
}

}  // namespace zorve::dobles
