#pragma once

#include <string>
#include <string_view>

namespace zorve {

/// One single-quoted word of a POSIX shell, whatever `texto` holds.
[[nodiscard]] std::string palabraDeShell(std::string_view texto);

/// An AppleScript text literal: backslashes and quotation marks escaped, everything else as it is.
[[nodiscard]] std::string literalDeAppleScript(std::string_view texto);

/// A terminal device's name without one leading "/dev/".
[[nodiscard]] std::string ttyCorto(std::string_view tty);

}  // namespace zorve
