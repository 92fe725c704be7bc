#include "ZorveCore/Texto/Unir.h"

namespace zorve {

std::string unidos(std::span<std::string const> textos, std::string_view entre) {
  std::string todos;
  for (auto const& texto : textos) {
    if (&texto != textos.data()) todos += entre;
    todos += texto;
  }
  return todos;
}

}  // namespace zorve
