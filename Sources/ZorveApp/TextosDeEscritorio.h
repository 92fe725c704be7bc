#pragma once

#include <string>
#include <string_view>

namespace zorve {

/// One of our texts or messages as a Linux desktop shows it: "this computer" for "this Mac", Ctrl for ⌘,
/// `zorvectl choose` for the defaults command, no hint about /Applications. A message may stand behind its
/// source ("launcher: ") and "Could not resolve the terminal: ". Any other text, and whatever a path, name or
/// description inside a message holds, comes back unchanged. Any thread.
[[nodiscard]] std::string textoDeEscritorio(std::string_view texto);

}  // namespace zorve
