#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Texto/Filtro.h"

namespace zorve {

/// The search texts of sessions, folded once, one after another in one buffer.
class TextosPlegados {
 public:
  TextosPlegados() = default;
  /// Any thread.
  TextosPlegados(std::span<Session const> sesiones, ReglaDePlegado regla);

  [[nodiscard]] std::size_t cantidad() const { return finales_.size(); }
  [[nodiscard]] std::string_view texto(std::size_t posicion) const;

 private:
  std::string todo_;
  std::vector<std::size_t> finales_;
};

/// The positions that a search keeps, equal to `filtrar` over the same sessions. Folded texts live as long as
/// the sessions they came from; the positions as long as the search text too.
class ListaFiltrada {
 public:
  explicit ListaFiltrada(ReglaDePlegado regla) : regla_{regla} {}

  /// Other sessions, folded with this list's rule.
  void cambiarTextos(TextosPlegados textos);
  void cambiarConsulta(std::string_view consulta);

  [[nodiscard]] std::span<std::size_t const> visibles() const { return visibles_; }
  /// The folded words of the search text.
  [[nodiscard]] std::span<std::string const> fichas() const { return fichas_; }
  [[nodiscard]] ReglaDePlegado regla() const { return regla_; }

 private:
  void filtrarDeNuevo();

  ReglaDePlegado regla_;
  TextosPlegados textos_;
  std::vector<std::string> fichas_;
  std::vector<std::size_t> visibles_;
};

}  // namespace zorve
