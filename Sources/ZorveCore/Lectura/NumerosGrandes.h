#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zorve {

/// Copies the JSON text `json` behind `salida` so that a parser of 64-bit integers and finite doubles takes
/// every number the grammar allows: an integer of more than 18 digits is written as a double, and a number
/// for which `cabe` (asked with its text, which it gives back as it was) says no becomes `true`, which no
/// reader of numbers accepts. What is no number of the grammar, and everything else, is copied unchanged. Any
/// thread.
void reescribirNumeros(std::string_view json, std::function<bool(std::string&)> const& cabe,
                       std::string& salida);

/// Copies the JSON text `json` behind `salida` with every number of the grammar written as 0, and gives the
/// numbers as they stood, in their order; they live as long as `json`. What is no number of the grammar, and
/// everything else, is copied unchanged. Any thread.
[[nodiscard]] std::vector<std::string_view> apartarNumeros(std::string_view json, std::string& salida);

}  // namespace zorve
