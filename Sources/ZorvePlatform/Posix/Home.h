#pragma once

#include <expected>
#include <string>

namespace zorve {

/// The user's home directory, absolute, without slashes at its end: HOME if that is absolute, else the
/// account's entry. Fails with one line that says what to do. Any thread, as long as none changes the
/// environment.
[[nodiscard]] std::expected<std::string, std::string> homeDelUsuario();

/// A directory that a person named, absolute, without slashes at its end; it need not exist.
[[nodiscard]] std::string homeNombrado(std::string const& ruta);

}  // namespace zorve
