#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zorve {

/// A setting as KDE reads it from configuration files of one name, `textos` from the least to the most
/// important: the last word counts, within a file and among them, but for what an earlier file locks (`[$i]`
/// behind the key, the group or alone at its beginning); `[$d]` behind the key takes earlier words back. Keys
/// for one language do not count. Nothing when no file has it, or it is empty.
/// Source: KDE's documentation of KConfig entries and of its lock down ("KDE System Administration, Kiosk").
[[nodiscard]] std::optional<std::string> ajusteDeKde(std::span<std::string const> textos,
                                                     std::string_view grupo, std::string_view clave);

}  // namespace zorve
