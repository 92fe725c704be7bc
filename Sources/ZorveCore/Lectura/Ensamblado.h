#pragma once

#include <cstddef>
#include <span>

#include "ZorveCore/Lectura/HistoryStore.h"
#include "ZorveCore/Lectura/LiveProbe.h"
#include "ZorveCore/Lectura/TranscriptScanner.h"
#include "ZorveCore/Modelo.h"

namespace zorve::SessionIndex {

/// Longest title made from a first prompt, in user-perceived characters, before it is cut.
inline constexpr std::size_t largoDelTitulo = 80;

/// The merge alone: sessions by last activity, newest first, and at most one notice. Touches no file.
[[nodiscard]] IndexResult ensamblar(std::span<Transcript const> transcripciones,
                                    EntradasDeHistoria const& history, SesionesVivas const& vivas);

}  // namespace zorve::SessionIndex
