#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zorve::ayudante {

/// The numbers of the child objects named `prefijo` and a number, ascending, in the text of an object's
/// introspection (D-Bus Specification, "Introspection data format").
[[nodiscard]] std::vector<std::uint32_t> nodosNumerados(std::string_view introspeccion,
                                                        std::string_view prefijo);

}  // namespace zorve::ayudante
