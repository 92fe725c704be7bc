#pragma once

#include <chrono>
#include <cstddef>
#include <expected>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace zorve {

/// How much is read of a descriptor, and until when.
struct TopesDeLectura {
  std::size_t bytes = std::numeric_limits<std::size_t>::max();
  std::optional<std::chrono::steady_clock::time_point> limite = {};
};

/// What comes from the descriptor until its end. Fails with an errno value: ETIMEDOUT when the time is over
/// before, EFBIG when there is more.
[[nodiscard]] std::expected<std::string, int> leerHastaElFin(int descriptor,
                                                             TopesDeLectura const& topes = {});

/// Writes all of it; 0, or the errno value that stopped it.
[[nodiscard]] int escribirTodo(int descriptor, std::string_view texto);

}  // namespace zorve
