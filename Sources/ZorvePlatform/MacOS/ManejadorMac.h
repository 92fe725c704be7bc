#pragma once

#include <optional>
#include <string>

namespace zorve {

/// The bundle identifier of the application that opens shell scripts, or nothing when the system does not know
/// the type, has no application for it, or the application has no identifier. Any thread.
[[nodiscard]] std::optional<std::string> manejadorRegistrado();

}  // namespace zorve
