#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <sys/types.h>

#include "Dobles/CarpetaTemporal.h"
#include "Dobles/Correr.h"
#include "ZorveCore/Terminales/FichaDeTerminal.h"

namespace zorve {

/// How tests name a terminal.
inline void PrintTo(FichaDeTerminal const& ficha, std::ostream* salida) { *salida << ficha.identificador; }

}  // namespace zorve

namespace zorve::pruebas {

/// Asks `condicion` again and again until it holds. False when `plazo` is over.
[[nodiscard]] bool esperarA(std::function<bool()> const& condicion,
                            std::chrono::seconds plazo = std::chrono::seconds{30});

/// Everything in a file as far as it can be read, or the empty text.
[[nodiscard]] std::string leerArchivoDePrueba(std::string const& ruta);

/// What the stand-in for `claude` wrote down when it started.
struct Anotado {
  std::string directorio;
  std::string tty;
  std::vector<std::string> args;
  pid_t pid = 0;
};

/// A person's home and a private display with a session bus and a window manager. Ends every process that
/// was started with its runtime directory, by pid.
class Escritorio {
 public:
  enum class Pantalla { x11, wayland, kwin, ninguna };

  explicit Escritorio(Pantalla pantalla, std::string const& gestorDeVentanas = "openbox");
  Escritorio(Escritorio const&) = delete;
  Escritorio& operator=(Escritorio const&) = delete;
  ~Escritorio();

  /// Runs the helper with `args` in this desktop.
  [[nodiscard]] dobles::Corrida ayudante(std::vector<std::string> const& args) const;
  /// Runs any program of the PATH in this desktop.
  [[nodiscard]] dobles::Corrida correr(std::vector<std::string> palabras) const;
  /// Starts a program of the PATH in this desktop and leaves it running.
  pid_t empezar(std::vector<std::string> const& palabras) const;
  /// Waits until the stand-ins for `claude` have written down `cuantos` starts.
  [[nodiscard]] std::vector<Anotado> anotados(std::size_t cuantos) const;
  /// Forgets what was written down.
  void olvidar() const;
  /// Replaces the program that runs as `claude`, or any other of the person's own.
  void programa(std::string const& nombre, std::string const& guion) const;

  /// The window manager's process.
  [[nodiscard]] pid_t gestorDeVentanas() const { return gestor_; }
  [[nodiscard]] dobles::CarpetaTemporal const& home() const { return home_; }
  std::map<std::string, std::string> variables;

 private:
  void empezarBus();
  void empezarX(std::string const& gestorDeVentanas);
  void empezarSway();
  void empezarKWin();
  /// Waits for a socket in the runtime directory, and names it in the variable.
  [[nodiscard]] bool esperarEnchufe(std::string const& principio, std::string const& variable);
  [[nodiscard]] std::vector<std::string> entorno() const;
  [[nodiscard]] std::vector<pid_t> procesosPropios() const;
  void terminarTodo() const;

  dobles::CarpetaTemporal home_;
  std::string marca_;
  pid_t gestor_ = 0;
};

/// The absolute path of a program of /usr/bin or the like, or nothing.
[[nodiscard]] std::optional<std::string> programaInstalado(std::string const& nombre);

}  // namespace zorve::pruebas
