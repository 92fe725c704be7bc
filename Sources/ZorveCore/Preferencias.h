#pragma once

#include <expected>
#include <optional>
#include <string>
#include <variant>

#include "ZorveCore/Modelo.h"

namespace zorve {

/// The user's stored settings, read fresh at each call. Failures have source `launcher` and say what to do.
/// Any thread.
class Preferencias {
 public:
  using Valor = std::variant<bool, std::string>;

  Preferencias() = default;
  Preferencias(Preferencias const&) = delete;
  Preferencias& operator=(Preferencias const&) = delete;
  virtual ~Preferencias() = default;

  /// The value under `clave`, or nothing when absent or of a type other than these two.
  [[nodiscard]] virtual std::expected<std::optional<Valor>, IndexError> leer(
      std::string const& clave) const = 0;
  [[nodiscard]] virtual std::expected<void, IndexError> escribir(std::string const& clave,
                                                                 Valor const& valor) = 0;
  [[nodiscard]] virtual std::expected<void, IndexError> quitar(std::string const& clave) = 0;
};

/// The text under `clave`, or nothing when absent or not a text.
[[nodiscard]] std::expected<std::optional<std::string>, IndexError> leerTexto(
    Preferencias const& preferencias, std::string const& clave);

/// The same; nothing when unreadable too.
[[nodiscard]] std::optional<std::string> textoGuardado(Preferencias const& preferencias,
                                                       std::string const& clave);

}  // namespace zorve
