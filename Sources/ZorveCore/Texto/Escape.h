#pragma once

#include <string>
#include <string_view>

namespace zorve {

/// One single-quoted word of a POSIX shell, whatever `texto` holds.
[[nodiscard]] std::string palabraDeShell(std::string_view texto);

/// One word of sh, bash, zsh and fish alike, whatever `texto` holds: fish reads backslashes within single
/// quotes, so that those stand outside them, as quotes do.
[[nodiscard]] std::string palabraDeCualquierShell(std::string_view texto);

/// An AppleScript text literal: backslashes and quotation marks escaped, everything else as it is.
[[nodiscard]] std::string literalDeAppleScript(std::string_view texto);

/// A terminal device's name without one leading "/dev/".
[[nodiscard]] std::string ttyCorto(std::string_view tty);

}  // namespace zorve
