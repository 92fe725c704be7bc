#include "ZorveCore/FalloDelSistema.h"

#include <system_error>

namespace zorve {

FalloDelSistema FalloDelSistema::deErrno(int codigo) {
  return {codigo, std::generic_category().message(codigo)};
}

}  // namespace zorve
