#pragma once

#include <sys/types.h>
#include <vterm.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zorve::pruebas {

/// A colour of a cell: nothing for the terminal's own, a number of its table, or red, green and blue.
struct ColorDeCelda {
  enum class Clase { propio, numero, directo };
  Clase clase = Clase::propio;
  int numero = 0;
  int rojo = 0;
  int verde = 0;
  int azul = 0;
  bool operator==(ColorDeCelda const&) const = default;
};

struct CeldaVista {
  std::string texto;
  ColorDeCelda tinta;
  ColorDeCelda fondo;
  bool negrita = false;
};

/// A program on a pseudoterminal whose other end is a whole terminal without a window (libvterm).
class PantallaVirtual {
 public:
  struct Con {
    std::vector<std::string> palabras;
    /// "NAME=value".
    std::vector<std::string> entorno;
    std::string carpeta = "/";
    int columnas = 80;
    int filas = 24;
    /// What it answers when it is asked for its background ("rgb:0000/0000/0000"); empty: nothing.
    std::string fondo;
    /// Runs in the child in place of a program; its result is the exit status.
    std::function<int()> enLugar;
  };
  explicit PantallaVirtual(Con con);
  PantallaVirtual(PantallaVirtual const&) = delete;
  PantallaVirtual& operator=(PantallaVirtual const&) = delete;
  ~PantallaVirtual();

  void escribir(std::string_view teclas) const;
  void redimensionar(int columnas, int filas);
  /// Reads until `listo` holds; false when `plazo` is over.
  bool esperarA(std::function<bool()> const& listo, std::chrono::seconds plazo = std::chrono::seconds{20});
  /// Until a line has `texto`.
  bool esperar(std::string_view texto);
  /// Until what was sent ends with a frame of the panel.
  bool esperarCuadro();

  [[nodiscard]] std::string linea(int fila) const;
  [[nodiscard]] std::vector<std::string> lineas() const;
  [[nodiscard]] CeldaVista celda(int fila, int columna) const;
  [[nodiscard]] std::optional<std::pair<int, int>> donde(std::string_view texto) const;
  /// Line and column.
  [[nodiscard]] std::pair<int, int> cursor() const;
  [[nodiscard]] int columnas() const { return columnas_; }
  [[nodiscard]] int filas() const { return filas_; }
  /// Everything the program sent since the last call.
  [[nodiscard]] std::string sacarBytes();
  [[nodiscard]] bool enPantallaAparte() const { return aparte_; }
  [[nodiscard]] bool cursorVisible() const { return cursorVisible_; }
  /// Whether keys are echoed and lines edited, as a shell finds its terminal.
  [[nodiscard]] bool comoUnaShellLaQuiere() const;
  [[nodiscard]] pid_t pid() const { return pid_; }
  /// Reads to the program's end: its exit status, or minus the number of the signal that ended it.
  int terminar();
  /// The terminal is gone. Gives how long the program lived on.
  std::chrono::milliseconds colgar();

 private:
  bool leer(int milisegundos);
  void responder(std::string_view trozo);
  static int alCambiar(VTermProp propiedad, VTermValue* valor, void* este);
  static int alMoverse(VTermPos donde, VTermPos antes, int visible, void* este);

  VTerm* terminal_ = nullptr;
  VTermScreen* pantalla_ = nullptr;
  VTermScreenCallbacks llamadas_{};
  int maestro_ = -1;
  pid_t pid_ = 0;
  int columnas_;
  int filas_;
  std::string fondo_;
  std::string bytes_;
  bool aparte_ = false;
  bool cursorVisible_ = true;
  VTermPos cursor_{};
};

}  // namespace zorve::pruebas
