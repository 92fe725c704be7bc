#pragma once

#include <string>

namespace zorve {

/// The current user's home directory: absolute, without a slash at its end. Any thread.
[[nodiscard]] std::string directorioHomeMac();

}  // namespace zorve
