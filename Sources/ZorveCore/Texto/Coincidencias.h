#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "ZorveCore/Texto/TextoPlegado.h"

namespace zorve {

/// A part of a text, in bytes: from `desde` up to `hasta`, which it does not reach.
struct Tramo {
  std::size_t desde = 0;
  std::size_t hasta = 0;
  bool operator==(Tramo const&) const = default;
};

/// Bytes of a text in which marks are looked for; what lies beyond no label shows.
inline constexpr std::size_t largoConMarcas = 4096;

/// The parts of `texto` in which any of `fichas` occurs, as the filter compares: in order, apart from each
/// other, and each of whole user-perceived characters (extended grapheme clusters, UAX #29), so that no
/// combining mark and no character that folds to several ("ß", "ﬁ") is parted. `fichas` are `fichasDe`'s.
/// Any thread.
[[nodiscard]] std::vector<Tramo> tramosDe(std::string_view texto, std::span<std::string const> fichas,
                                          ReglaDePlegado regla);

/// The piece of `prompt` around the first of `fichas` that occurs neither in `titulo` nor in `cwd`, on one
/// line, with "…" where it is cut; empty when each occurs in one of those, or none in the first
/// `largoDelPrompt` bytes of `prompt`. Any thread.
[[nodiscard]] std::string trozoQueCoincide(std::string_view titulo, std::string_view cwd,
                                           std::string_view prompt, std::span<std::string const> fichas,
                                           ReglaDePlegado regla);

/// Bytes of a prompt that are looked through.
inline constexpr std::size_t largoDelPrompt = std::size_t{64} * 1024;

}  // namespace zorve
