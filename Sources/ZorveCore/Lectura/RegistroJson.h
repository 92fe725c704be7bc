#pragma once

#include <cstddef>
#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace zorve {

/// Bytes behind which `RegistroJson::margen` more may be read (their values do not matter).
struct ConMargen {
  char const* datos = nullptr;
  std::size_t largo = 0;

  [[nodiscard]] std::string_view texto() const { return {datos, largo}; }
};

/// One JSON object (RFC 8259) read strictly: keys compared after unescaping, of equal keys the first counts,
/// other keys ignored; text after the object, a lone surrogate, bad UTF-8 or NaN make it unreadable. Numbers
/// in keys that nobody asks for may be of any size. Memory is kept from one record to the next. One thread at
/// a time.
class RegistroJson {
 public:
  static constexpr std::size_t margen = 64;

  enum class Tipo : std::uint8_t { texto, numero, entero32 };
  struct Campo {
    std::string_view clave;
    Tipo tipo = Tipo::texto;
    bool requerido = true;
  };
  /// `monostate`: absent (only for keys that are not required; null counts as absent there).
  /// Texts live until the next call. `entero32` must be written as an integer and fit 32 bits.
  using Valor = std::variant<std::monostate, std::string_view, double, std::int32_t>;

  RegistroJson();
  RegistroJson(RegistroJson const&) = delete;
  RegistroJson& operator=(RegistroJson const&) = delete;
  ~RegistroJson();

  /// Reads one object into `valores`, one per entry of `campos`, in order. Fails with a one-line description
  /// that names the key or the problem.
  [[nodiscard]] std::expected<void, std::string> leer(ConMargen bytes, std::span<Campo const> campos,
                                                      std::span<Valor> valores);

 private:
  struct Interior;
  std::unique_ptr<Interior> interior_;
};

}  // namespace zorve
