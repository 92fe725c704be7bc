#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

namespace zorve::dobles {

/// A program that runs on a terminal device of its own, with the test at the other end.
class Pseudoterminal {
 public:
  /// Starts `palabras[0]` (a path) with the rest as arguments and `entorno` ("NAME=value") in `carpeta`.
  Pseudoterminal(std::vector<std::string> palabras, std::vector<std::string> entorno,
                 std::string const& carpeta);
  Pseudoterminal(Pseudoterminal const&) = delete;
  Pseudoterminal& operator=(Pseudoterminal const&) = delete;
  /// Hangs up and ends the program's session.
  ~Pseudoterminal();

  /// What the keyboard sends.
  void escribir(std::string_view teclas) const;
  /// Waits until `texto` appears behind what earlier calls found. False when `plazo` is over.
  [[nodiscard]] bool esperar(std::string_view texto, std::chrono::seconds plazo = std::chrono::seconds{20});
  /// Everything that was shown so far.
  [[nodiscard]] std::string const& pantalla() const { return pantalla_; }
  /// Waits for the program's end: its exit status, or minus the number of the signal that ended it.
  [[nodiscard]] int terminar();

 private:
  bool leer(int milisegundos);

  int maestro_ = -1;
  pid_t pid_ = 0;
  std::string pantalla_;
  std::size_t visto_ = 0;
};

}  // namespace zorve::dobles
