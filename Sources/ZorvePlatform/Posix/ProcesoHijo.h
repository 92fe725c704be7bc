#pragma once

#include <spawn.h>
#include <sys/types.h>

#include <expected>
#include <string>
#include <vector>

namespace zorve {

/// What a child does with its descriptors before it becomes the program: /dev/null is its standard input,
/// `salida` its standard output, `error` (-1: /dev/null) its standard error, and it has no other of ours.
class AccionesDelHijo {
 public:
  AccionesDelHijo(int salida, int error);
  AccionesDelHijo(AccionesDelHijo const&) = delete;
  AccionesDelHijo& operator=(AccionesDelHijo const&) = delete;
  ~AccionesDelHijo();

#if defined(__GLIBC__)
  /// It starts in the directory, which is there.
  void empezarEn(std::string const& directorio);
#endif
  /// 0, or the errno value that says why it cannot be so.
  [[nodiscard]] int codigo() const { return codigo_; }
  [[nodiscard]] posix_spawn_file_actions_t const* puntero() const { return &acciones_; }

 private:
  template <class Accion>
  void anotar(Accion accion) {
    if (codigo_ == 0) codigo_ = accion();
  }

  posix_spawn_file_actions_t acciones_{};
  int codigo_ = 0;
  bool iniciadas_ = false;
};

/// A child's signals: each at its default, none blocked.
class AtributosDelHijo {
 public:
  /// `ademas`: what else is asked for (POSIX_SPAWN_SETPGROUP, POSIX_SPAWN_SETSID).
  explicit AtributosDelHijo(unsigned ademas = 0);
  AtributosDelHijo(AtributosDelHijo const&) = delete;
  AtributosDelHijo& operator=(AtributosDelHijo const&) = delete;
  ~AtributosDelHijo();

  /// 0, or the errno value that says why it cannot be so.
  [[nodiscard]] int codigo() const { return codigo_; }
  [[nodiscard]] posix_spawnattr_t const* puntero() const { return &atributos_; }

 private:
  template <class Accion>
  void anotar(Accion accion) {
    if (codigo_ == 0) codigo_ = accion();
  }

  posix_spawnattr_t atributos_{};
  int codigo_ = 0;
  bool iniciados_ = false;
};

/// A program to start.
struct Arranque {
  /// Its absolute path, and what follows the program's name.
  std::string ruta;
  std::vector<std::string> args = {};
  /// "NAME=value" texts.
  std::vector<std::string> entorno = {};
  /// Where its output goes, and its errors (-1: nowhere).
  int salida = -1;
  int error = -1;
  /// POSIX_SPAWN_SETPGROUP, POSIX_SPAWN_SETSID.
  unsigned ademas = 0;
  /// Where it starts: a directory that is there; the empty text: where this process is.
  std::string directorio = {};
};

/// Starts it as the two records above say, and gives its number, or the errno value that says why not.
[[nodiscard]] std::expected<pid_t, int> empezarHijo(Arranque arranque);

/// Children that end wait to be asked how. Whoever starts a program with SIGCHLD ignored takes that from it:
/// the kernel then forgets them at once (sigaction(2), POSIX). For the beginning of a main.
void recordarALosHijos();

/// `textos` as exec takes them, a null pointer at the end; they hold while `textos` does.
[[nodiscard]] std::vector<char*> punteros(std::vector<std::string>& textos);

}  // namespace zorve
