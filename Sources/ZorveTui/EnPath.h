#pragma once

#include <string>
#include <string_view>

namespace zorve::tui {

/// The absolute path of the program `nombre` by `path`, a PATH whose relative parts do not count; empty when
/// it is not there.
[[nodiscard]] std::string enPath(std::string_view path, std::string_view nombre);

/// The absolute path of the person's shell: `variable` ($SHELL), else the account's entry, else /bin/sh; each
/// only if it can be run.
[[nodiscard]] std::string shellDeLaPersona(std::string const& variable);

}  // namespace zorve::tui
