#include "Dobles/Correr.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "Dobles/CarpetaTemporal.h"

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
    if (!valor.empty()) todo.push_back(nombre + "=" + valor);
  }
  return todo;
}

std::vector<char*> punteros(std::vector<std::string>& textos) {
  std::vector<char*> resultado;
  resultado.reserve(textos.size() + 1);
  for (auto& texto : textos) resultado.push_back(texto.data());
  resultado.push_back(nullptr);
  return resultado;
}

}  // namespace

Corrida correr(std::vector<std::string> const& palabras, std::map<std::string, std::string> const& entorno) {
  CarpetaTemporal const carpeta;
  auto const salida = carpeta.dentro("salida");
  auto const error = carpeta.dentro("error");
  auto argumentos = palabras;
  auto cambios = entorno;
  // A process whose effective user is not its own cannot be looked into, which the leak checker needs.
  if (::geteuid() != ::getuid()) cambios.try_emplace("ASAN_OPTIONS", "detect_leaks=0");
  auto variables = entornoCon(cambios);
  posix_spawn_file_actions_t acciones;
  posix_spawn_file_actions_init(&acciones);
  posix_spawn_file_actions_addopen(&acciones, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&acciones, 1, salida.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&acciones, 2, error.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  pid_t hijo = 0;
  int const codigo = posix_spawn(&hijo, palabras.at(0).c_str(), &acciones, nullptr,
                                 punteros(argumentos).data(), punteros(variables).data());
  posix_spawn_file_actions_destroy(&acciones);
  if (codigo != 0) throw std::runtime_error("could not start " + palabras.at(0));
  int estado = 0;
  while (::waitpid(hijo, &estado, 0) < 0) {
  }
  return {WIFEXITED(estado) ? WEXITSTATUS(estado) : -WTERMSIG(estado), leerTodo(salida), leerTodo(error)};
}

}  // namespace zorve::dobles
