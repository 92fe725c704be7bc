#include "ZorveCore/Modelo.h"

namespace zorve {

std::string Session::id() const { return "claude:" + sessionId.value_or(cwd); }

std::string IndexError::id() const { return std::string{textoCrudo(fuente)} + "|" + mensaje; }

}  // namespace zorve
