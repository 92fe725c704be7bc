#include "ZorveCore/Texto/PuntoOculto.h"

#include "ZorveCore/Texto/TextoVisible.h"

namespace zorve {

bool seOculta(std::int32_t punto) {
  return (punto >= 0x80 && punto < 0xA0) || punto == 0x2028 || punto == 0x2029 || punto == 0xFEFF ||
         gobiernaLaDireccion(punto);
}

}  // namespace zorve
