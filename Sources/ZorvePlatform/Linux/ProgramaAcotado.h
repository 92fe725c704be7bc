#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>

namespace zorve {

/// What the program at the absolute path `ruta` writes to its standard output, at most 64 KiB. Nothing when
/// it cannot be started, ends with a failure, or has not ended after `plazo`: then it is killed, with all
/// that it started in its process group. Its other streams lead nowhere. Any thread.
[[nodiscard]] std::optional<std::string> salidaDe(std::string const& ruta, std::span<std::string const> args,
                                                  std::chrono::milliseconds plazo);

}  // namespace zorve
