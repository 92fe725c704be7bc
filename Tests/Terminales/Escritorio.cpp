#include "Terminales/Escritorio.h"

#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <thread>

#include "ZorvePlatform/Posix/ProcesoHijo.h"

namespace zorve::pruebas {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view claudeDePrueba =
    "n=$(mktemp \"%CASA%/anotados/t.XXXXXX\") || exit 1\n"
    "printf '%s\\0' \"$(pwd -P; echo .)\" \"$(tty)\" \"$$\" \"$@\" >\"$n\"\n"
    "mv \"$n\" \"%CASA%/anotados/$$\"\n"
    "while read -r linea; do printf '%s\\n' \"$linea\" >>\"%CASA%/teclas/$$\"; done\n";

constexpr std::string_view laCasa = "%CASA%";

/// Nobody: graphical programs refuse root, so a test that runs as root runs them as an ordinary user.
constexpr uid_t usuarioOrdinario = 65534;

std::vector<std::string> comoUsuarioOrdinario(std::vector<std::string> palabras) {
  if (::geteuid() != 0) return palabras;
  auto const numero = std::to_string(usuarioOrdinario);
  std::vector<std::string> const delante{"setpriv", "--reuid", numero, "--regid", numero, "--clear-groups"};
  palabras.insert(palabras.begin(), delante.begin(), delante.end());
  return palabras;
}

std::vector<std::string> partir(std::string const& todo) {
  std::vector<std::string> partes;
  for (std::size_t i = 0; i < todo.size();) {
    auto const fin = std::min(todo.find('\0', i), todo.size());
    partes.push_back(todo.substr(i, fin - i));
    i = fin + 1;
  }
  return partes;
}

std::optional<Anotado> leerAnotado(std::string const& ruta) {
  auto partes = partir(leerArchivoDePrueba(ruta));
  if (partes.size() < 3 || partes[0].size() < 2) return std::nullopt;
  partes[0].resize(partes[0].size() - 2);
  return Anotado{partes[0], partes[1], {partes.begin() + 3, partes.end()}, std::stoi(partes[2])};
}

}  // namespace

bool esperarA(std::function<bool()> const& condicion, std::chrono::seconds plazo) {
  auto const limite = std::chrono::steady_clock::now() + plazo;
  while (!condicion()) {
    if (std::chrono::steady_clock::now() >= limite) return false;
    std::this_thread::sleep_for(20ms);
  }
  return true;
}

std::string leerArchivoDePrueba(std::string const& ruta) {
  std::ifstream const entrada{ruta, std::ios::binary};
  std::ostringstream todo;
  todo << entrada.rdbuf();  // what cannot be read to the end, as of a process that ends, is no exception
  return std::move(todo).str();
}

std::optional<std::string> programaInstalado(std::string const& nombre) {
  for (auto const* const carpeta : {"/usr/local/bin/", "/usr/bin/", "/bin/", "/usr/sbin/"}) {
    if (::access((carpeta + nombre).c_str(), X_OK) == 0) return carpeta + nombre;
  }
  return std::nullopt;
}

Escritorio::Escritorio(Pantalla pantalla, std::string const& gestorDeVentanas)
    : marca_{"XDG_RUNTIME_DIR=" + home_.carpeta("r")} {
  std::filesystem::permissions(home_.dentro("r"), std::filesystem::perms{0700});
  home_.carpeta("anotados");
  home_.carpeta("teclas");
  home_.carpeta(".config");
  std::string claude{claudeDePrueba};
  for (auto i = claude.find(laCasa); i != std::string::npos; i = claude.find(laCasa)) {
    claude.replace(i, laCasa.size(), home_.ruta());
  }
  programa("claude", claude);
  home_.escribir(".bashrc", "PATH=\"$HOME/propios:$PATH\"\nPS1='LISTO> '\n");
  variables = {
      {"HOME", home_.ruta()}, {"PATH", "/usr/local/bin:/usr/bin:/bin"}, {"SHELL", "/bin/bash"},
      {"LANG", "C.UTF-8"},    {"XDG_RUNTIME_DIR", home_.dentro("r")},   {"LIBGL_ALWAYS_SOFTWARE", "1"},
      {"NO_AT_BRIDGE", "1"},  {"GSETTINGS_BACKEND", "memory"}};
  std::filesystem::copy_file(ZORVE_TERMINAL, home_.dentro("zorve-terminal"));
  for (auto const* const carpeta : {"", "r", "anotados", "teclas", ".config"}) {
    if (::geteuid() == 0 && ::chown(home_.dentro(carpeta).c_str(), usuarioOrdinario, usuarioOrdinario) != 0) {
      throw std::runtime_error("chown failed");
    }
  }
  if (pantalla == Pantalla::ninguna) return;
  try {
    if (pantalla == Pantalla::x11) empezarX(gestorDeVentanas);
    if (pantalla == Pantalla::wayland) empezarSway();
    if (pantalla == Pantalla::kwin) empezarKWin();
  } catch (...) {
    terminarTodo();
    throw;
  }
}

Escritorio::~Escritorio() { terminarTodo(); }

void Escritorio::programa(std::string const& nombre, std::string const& guion) const {
  auto const ruta = home_.escribir("propios/" + nombre, "#!/bin/sh\n" + guion);
  std::filesystem::permissions(ruta, std::filesystem::perms{0755});
}

std::vector<std::string> Escritorio::entorno() const {
  std::vector<std::string> todo;
  todo.reserve(variables.size());
  for (auto const& [nombre, valor] : variables) todo.emplace_back(nombre).append("=").append(valor);
  return todo;
}

pid_t Escritorio::empezar(std::vector<std::string> const& palabras) const {
  auto argumentos = comoUsuarioOrdinario(palabras);
  auto variablesDelHijo = entorno();
  auto const registro = home_.dentro("registro-" + std::filesystem::path{palabras.at(0)}.filename().string());
  posix_spawn_file_actions_t acciones;
  posix_spawn_file_actions_init(&acciones);
  posix_spawn_file_actions_addopen(&acciones, 0, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&acciones, 1, registro.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&acciones, 2, (registro + ".error").c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                   0600);
  posix_spawn_file_actions_addchdir_np(&acciones, home_.ruta().c_str());
  pid_t pid = 0;
  auto const ruta = programaInstalado(argumentos.at(0)).value_or(argumentos.at(0));
  int const codigo = posix_spawn(&pid, ruta.c_str(), &acciones, nullptr, punteros(argumentos).data(),
                                 punteros(variablesDelHijo).data());
  posix_spawn_file_actions_destroy(&acciones);
  if (codigo != 0) throw std::runtime_error("could not start " + palabras.at(0));
  return pid;
}

dobles::Corrida Escritorio::correr(std::vector<std::string> palabras) const {
  std::vector<std::string> todas{"/usr/bin/env", "-i", "-C", home_.ruta()};
  for (auto const& variable : entorno()) todas.push_back(variable);
  palabras = comoUsuarioOrdinario(std::move(palabras));
  todas.insert(todas.end(), palabras.begin(), palabras.end());
  return dobles::correr(todas);
}

dobles::Corrida Escritorio::ayudante(std::vector<std::string> const& args) const {
  std::vector<std::string> palabras{home_.dentro("zorve-terminal")};
  palabras.insert(palabras.end(), args.begin(), args.end());
  return correr(palabras);
}

void Escritorio::empezarBus() {
  empezar({"dbus-daemon", "--session", "--nofork", "--print-address"});
  auto const registro = home_.dentro("registro-dbus-daemon");
  if (!esperarA([&] { return leerArchivoDePrueba(registro).ends_with('\n'); })) {
    throw std::runtime_error("no session bus");
  }
  auto direccion = leerArchivoDePrueba(registro);
  direccion.pop_back();
  variables["DBUS_SESSION_BUS_ADDRESS"] = direccion;
}

void Escritorio::empezarX(std::string const& gestorDeVentanas) {
  empezar({"Xvfb", "-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp", "-noreset"});
  auto const registro = home_.dentro("registro-Xvfb");
  if (!esperarA([&] { return leerArchivoDePrueba(registro).ends_with('\n'); })) {
    throw std::runtime_error("no X server");
  }
  auto numero = leerArchivoDePrueba(registro);
  numero.pop_back();
  variables["DISPLAY"] = ":" + numero;
  empezarBus();
  auto const manda = [this] {
    return correr({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).salida.contains("window id");
  };
  for (int intento = 0; intento < 3; ++intento) {
    gestor_ = empezar({gestorDeVentanas});
    if (esperarA(manda, 10s)) return;
  }
  throw std::runtime_error("no window manager: " + gestorDeVentanas);
}

std::vector<Anotado> Escritorio::anotados(std::size_t cuantos) const {
  std::vector<Anotado> todos;
  (void)esperarA([&] {
    todos.clear();
    for (auto const& entrada : std::filesystem::directory_iterator{home_.dentro("anotados")}) {
      if (entrada.path().filename().string().starts_with("t.")) continue;
      if (auto anotado = leerAnotado(entrada.path().string())) todos.push_back(*anotado);
    }
    return todos.size() >= cuantos;
  });
  std::ranges::sort(todos, {}, &Anotado::pid);
  return todos;
}

void Escritorio::olvidar() const {
  for (auto const& entrada : std::filesystem::directory_iterator{home_.dentro("anotados")}) {
    std::filesystem::remove(entrada.path());
  }
}

std::vector<pid_t> Escritorio::procesosPropios() const {
  std::vector<pid_t> propios;
  for (auto const& entrada : std::filesystem::directory_iterator{"/proc"}) {
    auto const nombre = entrada.path().filename().string();
    pid_t pid = 0;
    auto const [fin, error] = std::from_chars(nombre.data(), nombre.data() + nombre.size(), pid);
    if (error != std::errc{} || *fin != '\0' || pid == ::getpid()) continue;
    if (leerArchivoDePrueba("/proc/" + nombre + "/environ").contains(marca_)) {
      propios.push_back(pid);
    }
  }
  return propios;
}

void Escritorio::terminarTodo() const {
  for (int const senal : {SIGTERM, SIGKILL}) {
    for (auto const pid : procesosPropios()) ::kill(pid, senal);
    auto const limite = std::chrono::steady_clock::now() + 1s;
    while (!procesosPropios().empty() && std::chrono::steady_clock::now() < limite) {
      while (::waitpid(-1, nullptr, WNOHANG) > 0) {
      }
      std::this_thread::sleep_for(20ms);
    }
  }
  while (::waitpid(-1, nullptr, WNOHANG) > 0) {
  }
}

}  // namespace zorve::pruebas
