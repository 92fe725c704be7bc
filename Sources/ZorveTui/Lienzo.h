#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveTui/Trazo.h"

namespace zorve::tui {

struct Tamano {
  std::size_t columnas = 0;
  std::size_t filas = 0;
  bool operator==(Tamano const&) const = default;
};

struct Posicion {
  std::size_t fila = 0;
  std::size_t columna = 0;
  bool operator==(Posicion const&) const = default;
};

/// One column of one line. The second column of a wide character is empty, `ancho` 0.
struct Celda {
  std::string texto = " ";
  std::size_t ancho = 1;
  Trazo trazo = {};
  bool operator==(Celda const&) const = default;
};

/// The screen as cells, counted from 0. Nothing leaves its edges.
class Lienzo {
 public:
  Lienzo() = default;
  explicit Lienzo(Tamano de) : tamano_{de}, celdas_(de.columnas * de.filas) {}

  [[nodiscard]] Tamano tamano() const { return tamano_; }
  [[nodiscard]] Celda const& celda(std::size_t fila, std::size_t columna) const {
    return celdas_[fila * tamano_.columnas + columna];
  }
  /// Writes valid UTF-8 without controls; gives the column behind it. A character that does not fit whole is
  /// left out, with all behind it.
  std::size_t poner(Posicion donde, std::string_view texto, Trazo const& trazo);
  /// One line, from one edge to the other.
  void llenar(std::size_t fila, std::string_view caracter, Trazo const& trazo);
  /// A line's cells as one text, blanks at the end cut.
  [[nodiscard]] std::string linea(std::size_t fila) const;

 private:
  void unir(std::size_t fila, std::size_t columna, std::string_view caracter);

  Tamano tamano_;
  std::vector<Celda> celdas_;
};

/// A screen, where the cursor stands, and which row of the panel each line shows.
struct Cuadro {
  Lienzo lienzo;
  std::optional<Posicion> cursor;
  std::vector<std::optional<std::size_t>> filaEnLinea;
};

}  // namespace zorve::tui
