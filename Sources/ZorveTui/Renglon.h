#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zorve::tui {

/// One line of text being written, and the caret in it. It moves and rubs out by user-perceived characters.
class Renglon {
 public:
  [[nodiscard]] std::string const& texto() const { return texto_; }
  [[nodiscard]] std::string_view antes() const { return std::string_view{texto_}.substr(0, caret_); }
  [[nodiscard]] std::string_view despues() const { return std::string_view{texto_}.substr(caret_); }

  /// The caret stands behind it.
  void poner(std::string texto);
  /// At the caret. What no line can hold (line breaks, tabs) becomes a blank, other C0 controls go.
  void escribir(std::string_view texto);

  void izquierda();
  void derecha();
  void alPrincipio() { caret_ = 0; }
  void alFinal() { caret_ = texto_.size(); }
  void borrarAtras();
  void borrarAdelante();
  /// Back to the start of the word.
  void borrarPalabra();
  void borrarTodo();

 private:
  [[nodiscard]] std::size_t anterior() const;

  std::string texto_;
  std::size_t caret_ = 0;
};

}  // namespace zorve::tui
