#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zorve {

/// The texts one behind the other, with `entre` between each two.
[[nodiscard]] std::string unidos(std::span<std::string const> textos, std::string_view entre);

}  // namespace zorve
