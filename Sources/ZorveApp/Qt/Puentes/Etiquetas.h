#pragma once

#include <QString>
#include <string_view>

namespace zorve {

/// Longest text given to a label, in UTF-16 units; what is beyond could not be seen.
inline constexpr qsizetype largoDeUnaLinea = 600;
inline constexpr qsizetype largoDeUnAviso = 8000;

/// `texto` fit for a label of one line: line breaks and tabs are spaces; other control characters, and
/// those that impose a direction on text (embeddings and overrides), are shown as U+FFFD; isolates that the
/// text leaves open are closed at its end; cut with "…" beyond `largoDeUnaLinea`.
[[nodiscard]] QString enUnaLinea(std::string_view texto);

/// The same for a label that wraps: line feeds stay; cut beyond `largoDeUnAviso`.
[[nodiscard]] QString enVariasLineas(std::string_view texto);

}  // namespace zorve
